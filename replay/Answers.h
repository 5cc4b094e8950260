// What the peers were told to answer. Each answer is the list of the result and of what comes back by reference. A
// member that was told several gives them one per call and the last one for ever; what was told for certain arguments
// comes before what was told for any.
#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <optional>
#include <string>

#include "replay/Value.h"

namespace orvelle::replay {

// The order in which answers and the peers' own values came; of the two the later one holds. 0 is before everything.
using Stamp = std::uint64_t;

// A value of a peer that calls change.
template <typename T>
struct Kept {
    T Held;
    Stamp Since = 0;
};

class Answers {
public:
    // `call` is "Tessaly.VoiceSoftware(0)", or without brackets for any arguments. `answers` is not empty.
    void Give(const std::string& call, const std::deque<Values>& answers);

    // The answer to this call, if one was given after `since`.
    std::optional<Values> Next(const std::string& member, const std::string& arguments, Stamp since);

    Stamp Now() { return ++stamp; }
    template <typename T>
    void Keep(Kept<T>& kept, T value) {
        kept = {std::move(value), Now()};
    }

private:
    struct Given {
        std::deque<Values> Queue;
        Stamp When = 0;
    };

    Given* Find(const std::string& call, Stamp since);

    std::map<std::string, Given> given;
    Stamp stamp = 0;
};

}  // namespace orvelle::replay
