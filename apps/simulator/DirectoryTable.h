// The table of the directories of voice channels, a row each, of which one may be selected: it stays so wherever its
// directory stands at the next showing. Part of the box of directories.
#pragma once

#include <QTableWidget>
#include <string>
#include <vector>

#include "simulators/directory/Directories.h"

namespace orvelle {

class DirectoryTable {
public:
    DirectoryTable();

    // Belongs to whom it is added to.
    QTableWidget* Widget() const { return table; }
    void Show(const std::vector<directory::DirectoryTold>& directories);
    std::string Selected() const;  // from where it comes; "" for none

private:
    void ShowRow(int row, const directory::DirectoryTold& told);

    QTableWidget* const table;
};

}  // namespace orvelle
