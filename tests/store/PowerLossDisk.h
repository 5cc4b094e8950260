// A folder on a disk that loses its power: a journal is played into it, call by call, and at any of them it tells what
// the next start may find. That is all that was synced; of later writes some, in any order, the last one torn; of
// later changes of a folder the first ones. The memory that SQLite's connections share ("-shm") outlives no loss and is
// left out. Used by the trial of losses.
#pragma once

#include <memory>

#include "tests/store/PowerLossFile.h"
#include "tests/store/PowerLossJournal.h"

namespace orvelle::store {

// Each entry of `later` is the whole folder after one more change.
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
    std::vector<Entries> later;
};

class PowerLossDisk {
public:
    // The folder is on the disk, and empty. Calls elsewhere are none of its business.
    explicit PowerLossDisk(std::filesystem::path folder);
    PowerLossDisk(const PowerLossDisk&) = delete;
    PowerLossDisk& operator=(const PowerLossDisk&) = delete;

    void Play(const JournaledCall& call);

    DiskTree Now() const;
    DiskTree AfterLoss(std::mt19937& random) const;
    // "" where there is none
    const std::string& BytesOf(const std::string& name) const;

private:
    // A name in one of the folders; Folder is null where it isn't here.
    struct Place {
        PowerLossFolder* Folder = nullptr;
        std::string Name;
    };

    Place Find(const std::string& path) const;
    std::shared_ptr<PowerLossNode> NodeAt(const std::string& path) const;
    void Open(const JournaledCall& call);
    void Rename(const std::string& from, const std::string& to);

    std::filesystem::path root;
    std::shared_ptr<PowerLossFolder> top = std::make_shared<PowerLossFolder>();
    std::map<int, std::shared_ptr<PowerLossNode>> open;  // by descriptor
};

}  // namespace orvelle::store
