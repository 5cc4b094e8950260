// What the broker keeps of sessions and records, as it brought it on one connection, for whoever asks later. A computer
// can't make us keep more than bounds::RecordsOfOneComputer and bounds::BytesOfOneComputer. Used by the panel's and the
// simulator's member.
#pragma once

#include <cstddef>
#include <map>
#include <string>

#include "adapters/mqtt/Topics.h"

namespace orvelle::mqtt {

class RetainedMessages {
public:
    // An empty payload ends what stood there. False for one that is beyond the bounds: what stood there stays.
    bool Take(const Topic& topic, const std::string& payload);
    void Clear();

    const std::map<std::string, std::string>& All() const { return byTopic; }

private:
    struct Extent {
        std::size_t Records = 0;
        std::size_t Bytes = 0;
    };

    std::map<std::string, std::string> byTopic;
    std::map<int, Extent> extents;  // of the records, by identity
};

}  // namespace orvelle::mqtt
