// Scan-code sequences: decimal key codes joined by "+", in the order in which the keys were pressed ("29+46"). A code
// is a set 1 scan code, plus 256 for an extended key: 0 to 511.
#pragma once

#include <string>

#include "platform/Types.h"

namespace orvelle {

// Takes the codes from the front one at a time, so that those before a bad one are served. The empty sequence holds one
// code, which is bad.
class ScanCodeReader {
public:
    explicit ScanCodeReader(const std::string& sequence) : keys(sequence) {}

    bool AtEnd() const { return next == std::string::npos; }
    // Run-time error 13 for text that is no number, 6 for a number that is no Long.
    Long Next();

private:
    const std::string& keys;
    std::size_t next = 0;
};

}  // namespace orvelle
