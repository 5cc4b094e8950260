// The directories of voice channels that this computer has: from where each comes, how many stations it lists, how old
// it is, and what is wrong with it, by line and field; the addresses among them are entered, removed and put in order
// here. Part of the simulator's page.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "apps/simulator/DirectoryTable.h"
#include "deck/fields/Section.h"
#include "platform/Event.h"
#include "simulators/directory/Directories.h"

class QLineEdit;
class QPlainTextEdit;
class QPushButton;

namespace orvelle {

namespace deck {
class Readout;
}  // namespace deck

struct DirectoryDoings {
    std::filesystem::path Folder;                                       // of the user's own files
    std::function<std::string(const std::vector<std::string>&)> Enter;  // the addresses; "" for success, else why not
    std::function<void()> FetchNow;
};

class DirectoriesBox : public deck::Section {
public:
    explicit DirectoriesBox(DirectoryDoings directoryDoings);

    // An address that isn't among those that are told has a row of its own, below them.
    void Show(std::vector<directory::DirectoryTold> told, const std::vector<std::string>& addresses);

    Event<> Changed;  // the user entered, removed or moved an address

private:
    void ShowSelected();
    void EnterTyped();
    void Remove();
    void Move(int places);
    void Apply(const std::vector<std::string>& addresses, const QString& success);
    void OpenFolder();
    std::size_t SelectedPlace() const;  // among the addresses; their number for none

    const DirectoryDoings doings;
    std::vector<directory::DirectoryTold> directories;  // a row each
    std::vector<std::string> entered;
    DirectoryTable table;
    QPlainTextEdit* faults;
    QLineEdit* address;
    QPushButton *remove, *up, *down, *fetch;
    deck::Readout* answer;
};

}  // namespace orvelle
