#include "tests/store/PowerLossFolder.h"

namespace orvelle::store {

namespace fs = std::filesystem;

void PowerLossFolder::Sync() {
    synced = Now();
    later.clear();
}

void PowerLossFolder::AddNow(const fs::path& path, DiskTree& tree) const {
    tree[path] = std::nullopt;
    for (const auto& [name, node] : Now()) node->AddNow(path / name, tree);
}

void PowerLossFolder::AddAfterLoss(const fs::path& path, std::mt19937& random, DiskTree& tree) const {
    tree[path] = std::nullopt;
    const std::size_t reached = Reached(later.size(), random);
    for (const auto& [name, node] : reached == 0 ? synced : later[reached - 1])
        node->AddAfterLoss(path / name, random, tree);
}

}  // namespace orvelle::store
