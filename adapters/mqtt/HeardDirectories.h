// Which directories of the set-up's computers are known from the broker, and which of them it doesn't have any more
// when a connection stands again. A computer can't make us keep more than bounds::DirectoriesOfOneComputer, with texts
// of bounds::Directory together. Used by the simulator's member, which hands the texts on.
#pragma once

#include <cstddef>
#include <map>
#include <utility>
#include <vector>

#include "adapters/mqtt/Topics.h"

namespace orvelle::mqtt {

class HeardDirectories {
public:
    using Key = std::pair<int, std::string>;  // identity, name

    // A length of 0 takes it away. False for one that is beyond the bounds: what stood there stays.
    bool Take(const Key& key, std::size_t length);
    // The broker tells from now on what it has.
    void Begin();
    // It has told all: those that it didn't tell of since Begin, which are known no more.
    std::vector<Key> End();

private:
    struct Heard {
        std::size_t Length = 0;
        bool IsOld = false;  // heard before Begin
    };

    std::map<Key, Heard> known;
};

}  // namespace orvelle::mqtt
