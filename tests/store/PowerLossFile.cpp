#include "tests/store/PowerLossFile.h"

#include <algorithm>

namespace orvelle::store {

namespace {

constexpr std::size_t Sector = 512;  // bytes, which a disk writes whole or not at all

// A part of a write, from its begin or to its end, that ends between two sectors of the file.
void Tear(std::size_t& offset, std::string& bytes, std::mt19937& random) {
    const std::size_t first = offset / Sector;
    const std::size_t end = (offset + bytes.size() + Sector - 1) / Sector;
    const std::size_t border = (first + random() % (end - first + 1)) * Sector;
    const std::size_t head = std::clamp(border, offset, offset + bytes.size()) - offset;
    if (random() % 2 == 0) {
        bytes.resize(head);
    } else {
        bytes.erase(0, head);
        offset += head;
    }
}

}  // namespace

std::size_t Reached(std::size_t count, std::mt19937& random) {
    switch (random() % 3) {
        case 0:
            return 0;
        case 1:
            return count;
        default:
            return random() % (count + 1);
    }
}

void PowerLossFile::Write(std::size_t offset, const std::string& bytes) {
    if (now.size() < offset + bytes.size()) now.resize(offset + bytes.size());
    now.replace(offset, bytes.size(), bytes);
    unsynced.push_back({offset, bytes, now.size()});
}

void PowerLossFile::Resize(std::size_t size) {
    now.resize(size);
    unsynced.push_back({0, "", size});
}

void PowerLossFile::Sync() {
    for (const Change& change : unsynced) {
        synced.resize(change.Size);
        synced.replace(change.Offset, change.Bytes.size(), change.Bytes);
    }
    unsynced.clear();
}

void PowerLossFile::AddAfterLoss(const std::filesystem::path& path, std::mt19937& random, DiskTree& tree) const {
    tree[path] = AfterLoss(random);
}

// Sizes reach the disk in their order, bytes in any. What a file was cut off by is gone where its size has reached it.
std::string PowerLossFile::AfterLoss(std::mt19937& random) const {
    const std::size_t sizes = Reached(unsynced.size(), random);
    std::string bytes = synced;
    for (std::size_t index = 0; index < sizes; ++index) bytes.resize(std::min(bytes.size(), unsynced[index].Size));

    const unsigned fourths = random() % 5;  // of the changes are kept
    std::vector<Change> kept;
    std::size_t limit = sizes == 0 ? now.max_size() : unsynced[sizes - 1].Size;
    for (std::size_t index = unsynced.size(); index-- > 0;) {
        const Change& change = unsynced[index];
        if (index < sizes) limit = std::min(limit, change.Size);
        if (change.Bytes.empty() || random() % 4 >= fourths) continue;
        if (index >= sizes)
            kept.push_back(change);
        else if (change.Offset < limit)
            kept.push_back({change.Offset, change.Bytes.substr(0, limit - change.Offset), 0});
    }
    std::ranges::shuffle(kept, random);
    if (!kept.empty()) Tear(kept.back().Offset, kept.back().Bytes, random);
    for (const Change& change : kept) {
        bytes.resize(std::max(bytes.size(), change.Offset + change.Bytes.size()));
        bytes.replace(change.Offset, change.Bytes.size(), change.Bytes);
    }
    bytes.resize(sizes == 0 ? synced.size() : unsynced[sizes - 1].Size);
    return bytes;
}

}  // namespace orvelle::store
