#include "adapters/mqtt/HeardDirectories.h"

#include "adapters/mqtt/Bounds.h"

namespace orvelle::mqtt {

bool HeardDirectories::Take(const Key& key, std::size_t length) {
    if (length == 0) {
        known.erase(key);
        return true;
    }
    std::size_t count = 1;
    std::size_t bytes = length;
    for (auto each = known.lower_bound({key.first, ""}); each != known.end() && each->first.first == key.first;
         ++each) {
        // Of those that were known before a connection nobody knows whether they are there still.
        if (each->first == key || each->second.IsOld) continue;
        ++count;
        bytes += each->second.Length;
    }
    if (count > bounds::DirectoriesOfOneComputer || bytes > bounds::Directory) return false;
    known[key] = {length, false};
    return true;
}

void HeardDirectories::Begin() {
    for (auto& [key, heard] : known) heard.IsOld = true;
}

std::vector<HeardDirectories::Key> HeardDirectories::End() {
    std::vector<Key> gone;
    for (const auto& [key, heard] : known)
        if (heard.IsOld) gone.push_back(key);
    for (const Key& key : gone) known.erase(key);
    return gone;
}

}  // namespace orvelle::mqtt
