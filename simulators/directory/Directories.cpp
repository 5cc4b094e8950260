#include "simulators/directory/Directories.h"

#include <algorithm>
#include <ctime>
#include <utility>

#include "simulators/directory/LastGood.h"

namespace orvelle::directory {

long long SecondsSinceBoot() {
    timespec now{};
    clock_gettime(CLOCK_BOOTTIME, &now);
    return now.tv_sec;
}

Directories::Directories(std::vector<DirectorySource*> inOrder) : sources(std::move(inOrder)) {
    for (DirectorySource* source : sources) source->Changed = [this] { Gather(); };
    Gather();
}

std::vector<DirectoryTold> Directories::Told() const {
    std::vector<DirectoryTold> told;
    for (const DirectorySource* source : sources) {
        for (const DirectorySource::Found& found : source->Directories()) {
            told.push_back(found.Told);
            if (found.ReadAt) told.back().Age = SecondsSinceBoot() - *found.ReadAt;
        }
    }
    return told;
}

void Directories::Gather() {
    const auto contents = [this] {
        std::vector<std::shared_ptr<const Directory>> all;
        for (const DirectorySource::Found& found : gathered)
            if (found.Content) all.push_back(found.Content);
        return all;
    };
    std::vector<DirectorySource::Found> all;
    for (const DirectorySource* source : sources)
        all.insert(all.end(), source->Directories().begin(), source->Directories().end());
    if (std::ranges::equal(all, gathered, IsSame)) return;
    const auto before = contents();
    gathered = std::move(all);
    if (auto now = contents(); now != before) index = StationIndex(std::move(now), index);
    Changed();
}

}  // namespace orvelle::directory
