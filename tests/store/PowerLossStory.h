// What the store's process did, up to a moment that goes on: the disk then, and what was promised to be on it. A moment
// is the number of calls in the journal that were made. Used by the trial of losses.
#pragma once

#include <cstddef>
#include <filesystem>
#include <vector>

#include "tests/store/PowerLossDisk.h"
#include "tests/store/PowerLossMarks.h"

namespace orvelle::store {

class PowerLossStory {
public:
    // The journal stays for as long as the story.
    PowerLossStory(const std::filesystem::path& folder, const std::vector<JournaledCall>& journal)
        : calls(journal), disk(folder) {}

    std::size_t Length() const { return calls.size(); }
    // So many calls were made. Moments come in their order.
    void GoOn(std::size_t moment);
    const PowerLossDisk& Disk() const { return disk; }
    const PowerLossPromise& Promise() const { return promise; }

private:
    const std::vector<JournaledCall>& calls;
    std::size_t made = 0;
    PowerLossDisk disk;
    PowerLossPromise promise{};
    std::size_t heard = 0;  // bytes of the marks
};

}  // namespace orvelle::store
