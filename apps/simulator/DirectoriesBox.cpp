#include "apps/simulator/DirectoriesBox.h"

#include <QDesktopServices>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QUrl>
#include <algorithm>
#include <system_error>
#include <utility>

#include "adapters/looks/Text.h"
#include "apps/simulator/DirectoryRows.h"
#include "apps/simulator/LeastHeight.h"
#include "deck/fields/Fields.h"
#include "deck/fields/Readout.h"

namespace orvelle {

namespace {

constexpr int LeastRows = 3;
constexpr int FaultLines = 2;

QPlainTextEdit* NewFaults() {
    auto* edit = new QPlainTextEdit;
    edit->setObjectName("DirectoryFaults");
    edit->setAccessibleName("What is wrong with the selected directory");
    edit->setToolTip("What is wrong with the selected directory, by line and field");
    edit->setPlaceholderText("What is wrong with the selected directory stands here.");
    edit->setReadOnly(true);
    edit->setTabChangesFocus(true);
    return edit;
}

}  // namespace

DirectoriesBox::DirectoriesBox(DirectoryDoings directoryDoings)
    : Section("DirectoriesSection", "Directories of voice channels", 4),
      doings(std::move(directoryDoings)),
      faults(NewFaults()),
      address(new QLineEdit),
      remove(deck::NewButton("RemoveDirectory", "Remo&ve", "Takes the selected address out", [this] { Remove(); })),
      up(deck::NewButton("DirectoryUp", "U&p", "The selected address counts before the one above it",
                         [this] { Move(-1); })),
      down(deck::NewButton("DirectoryDown", "Dow&n", "The selected address counts after the one below it",
                           [this] { Move(1); })),
      fetch(deck::NewButton("FetchDirectories", "Fetc&h now", "Fetches all addresses at once",
                            [this] {
                                doings.FetchNow();
                                answer->Show(QString("The addresses are being fetched."));
                            })),
      answer(new deck::Readout("DirectoryAnswer")) {
    address->setObjectName("DirectoryAddress");
    address->setPlaceholderText("www.example.org/channels.json");
    address->setToolTip("Where a community keeps its directory, by HTTPS; Enter adds it");
    connect(address, &QLineEdit::returnPressed, this, [this] { EnterTyped(); });
    connect(table.Widget(), &QTableWidget::itemSelectionChanged, this, [this] { ShowSelected(); });
    auto* folder = new deck::Readout("DirectoryFolder");
    folder->Show(doings.Folder.string());
    AddAtLeast(*this, table.Widget(), LeastRows + 1, 2);
    AddAtLeast(*this, faults, FaultLines, 1);
    AddRow("", {remove, up, down, fetch});
    AddRow("Add&ress", {address, nullptr, nullptr,
                        deck::NewButton("AddDirectory", "Add addr&ess", "Adds what is typed, and fetches it",
                                        [this] { EnterTyped(); })});
    AddRow("Folder", {folder, nullptr, nullptr,
                      deck::NewButton("OpenDirectories", "&Open folder",
                                      "Opens the folder in which files that end in .json are directories",
                                      [this] { OpenFolder(); })});
    AddRow("", {answer});
    answer->setAccessibleName("Directories");
    ShowSelected();
}

void DirectoriesBox::Show(std::vector<directory::DirectoryTold> told, const std::vector<std::string>& addresses) {
    entered = addresses;
    for (const std::string& each : entered) {
        if (std::ranges::find(told, each, &directory::DirectoryTold::Source) != told.end()) continue;
        told.emplace_back().Source = each;
    }
    directories = std::move(told);
    table.Show(directories);
    ShowSelected();
}

void DirectoriesBox::ShowSelected() {
    const auto found = std::ranges::find(directories, table.Selected(), &directory::DirectoryTold::Source);
    const QString text = found == directories.end() ? QString() : FaultWords(*found);
    if (faults->toPlainText() != text) faults->setPlainText(text);
    const std::size_t place = SelectedPlace();
    remove->setEnabled(place < entered.size());
    up->setEnabled(place > 0 && place < entered.size());
    down->setEnabled(place + 1 < entered.size());
    fetch->setEnabled(!entered.empty());
}

std::size_t DirectoriesBox::SelectedPlace() const {
    return static_cast<std::size_t>(std::ranges::find(entered, table.Selected()) - entered.begin());
}

void DirectoriesBox::EnterTyped() {
    const QString typed = address->text().trimmed();
    if (typed.isEmpty()) return;
    std::vector<std::string> next = entered;
    next.push_back(FromQt(typed));
    Apply(next, "The address is kept, and being fetched.");
}

void DirectoriesBox::Remove() {
    std::vector<std::string> next = entered;
    next.erase(next.begin() + static_cast<std::ptrdiff_t>(SelectedPlace()));
    Apply(next, "The address is taken out.");
}

void DirectoriesBox::Move(int places) {
    std::vector<std::string> next = entered;
    const auto place = static_cast<std::ptrdiff_t>(SelectedPlace());
    std::swap(next.at(static_cast<std::size_t>(place)), next.at(static_cast<std::size_t>(place + places)));
    Apply(next, "The order is kept.");
}

void DirectoriesBox::Apply(const std::vector<std::string>& addresses, const QString& success) {
    const std::string failure = doings.Enter(addresses);
    if (failure.empty() && addresses.size() > entered.size()) address->clear();
    answer->Show(failure.empty() ? success : ToQt(failure));
    Changed();
}

// It may not be there yet.
void DirectoriesBox::OpenFolder() {
    std::error_code error;
    std::filesystem::create_directories(doings.Folder, error);
    const bool isOpen = !error && QDesktopServices::openUrl(QUrl::fromLocalFile(ToQt(doings.Folder.string())));
    answer->Show(isOpen ? QString() : "The folder " + ToQt(doings.Folder.string()) + " can't be opened.");
}

}  // namespace orvelle
