// A folder on a disk that loses its power. Its changes reach the disk in their order, a rename within it as one; those
// before its last sync have reached it. Owned and played by PowerLossDisk.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "tests/store/PowerLossFile.h"

namespace orvelle::store {

class PowerLossFolder : public PowerLossNode {
public:
    using Entries = std::map<std::string, std::shared_ptr<PowerLossNode>>;

    const Entries& Now() const { return later.empty() ? synced : later.back(); }
    void Change(Entries entries) { later.push_back(std::move(entries)); }

    void Sync() override;
    void AddNow(const std::filesystem::path& path, DiskTree& tree) const override;
    void AddAfterLoss(const std::filesystem::path& path, std::mt19937& random, DiskTree& tree) const override;

private:
    Entries synced;
    std::vector<Entries> later;  // the whole folder after one more change each
};

}  // namespace orvelle::store
