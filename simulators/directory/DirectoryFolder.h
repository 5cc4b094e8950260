// Directories as files *.json of a folder, by default directory.d in the data folder: read at the start, and again
// whenever one comes, changes or goes. Links are followed, but what happens where they lead is not seen; names that
// begin with a dot are left out. What is no plain file or too long is told and counts as none. Of a file that was good
// in this run, its last good text counts until the file goes.
#pragma once

#include <filesystem>
#include <map>
#include <set>
#include <string>

#include "adapters/shared/FolderWatch.h"
#include "platform/EventLoop.h"
#include "simulators/directory/Directories.h"
#include "simulators/directory/LastGood.h"

namespace orvelle::directory {

class DirectoryFolder : public DirectorySource {
public:
    static constexpr std::size_t MostFiles = 100;  // the first ones by name

    // The folder may come later.
    DirectoryFolder(EventLoop& eventLoop, std::filesystem::path folder);

    const std::vector<Found>& Directories() const override { return found; }

private:
    void ReadAll();
    void Read(const std::string& name);
    void ReadTouched();
    void TellChange();
    void Gather();

    EventLoop& loop;
    const std::filesystem::path folder;
    FolderWatch watch;
    std::map<std::string, LastGood> files;
    std::string trouble;  // with the folder itself
    std::vector<Found> found;
    std::set<std::string> touched;
    Ticket settled;
};

}  // namespace orvelle::directory
