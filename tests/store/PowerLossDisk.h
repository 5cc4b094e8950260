// A folder on a disk that loses its power: a journal is played into it, call by call, and at any of them it tells what
// the next start may find. That is all that was synced; of later writes some, in any order, the last one torn; of
// later changes of a folder the first ones. The memory that SQLite's connections share ("-shm") outlives no loss and is
// left out. Used by the trial of losses.
#pragma once

#include <map>
#include <memory>
#include <string>

#include "tests/store/PowerLossFolder.h"
#include "tests/store/PowerLossJournal.h"

namespace orvelle::store {

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
