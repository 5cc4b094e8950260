// The audio devices of this computer by name, one list for the voice engine and the mixers. A device's number is its
// place in its list; -1 is the system's default device. No name holds a line feed.
#pragma once

#include <string>
#include <vector>

namespace orvelle {

class AudioDevices {
public:
    virtual ~AudioDevices() = default;

    virtual std::vector<std::string> InputNames() const = 0;
    virtual std::vector<std::string> OutputNames() const = 0;
};

}  // namespace orvelle
