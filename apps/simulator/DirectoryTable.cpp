#include "apps/simulator/DirectoryTable.h"

#include <QHeaderView>
#include <algorithm>

#include "adapters/looks/SignIcon.h"
#include "adapters/looks/Text.h"
#include "apps/simulator/DirectoryRows.h"
#include "deck/fields/Tables.h"

namespace orvelle {

namespace {

enum Column { Name, From, Stations, Age, Trouble };

}  // namespace

DirectoryTable::DirectoryTable()
    : table(deck::NewTable("Directories", "The directories of voice channels, the first that lists a channel counts",
                           {"Name", "From", "Stations", "Age", "Trouble"}, Trouble)) {
    table->setEditTriggers(QTableWidget::NoEditTriggers);
    // Addresses may be long, too.
    table->horizontalHeader()->setSectionResizeMode(From, QHeaderView::Stretch);
}

void DirectoryTable::Show(const std::vector<directory::DirectoryTold>& directories) {
    const std::string selected = Selected();
    const QSignalBlocker quiet(table);
    table->setRowCount(static_cast<int>(directories.size()));
    for (int row = 0; const directory::DirectoryTold& told : directories) ShowRow(row++, told);
    const auto found = std::ranges::find(directories, selected, &directory::DirectoryTold::Source);
    if (selected.empty() || found == directories.end())
        table->clearSelection();
    else if (Selected() != selected)
        table->selectRow(static_cast<int>(found - directories.begin()));
}

void DirectoryTable::ShowRow(int row, const directory::DirectoryTold& told) {
    const QString trouble = TroubleWords(told);
    deck::ShowCell(*table, row, Name, told.Name.empty() ? QString("-") : ToQt(told.Name));
    auto& from = deck::ShowCell(*table, row, From, ToQt(told.Source));
    from.setToolTip(PlainTip(ToQt(told.Source)));
    deck::ShowCell(*table, row, Stations, static_cast<qulonglong>(told.Stations));
    deck::ShowCell(*table, row, Age, AgeWords(told));
    auto& cell = deck::ShowCell(*table, row, Trouble, trouble);
    cell.setIcon(SignIcon(SignOf(told)));
    cell.setToolTip(PlainTip(trouble));
}

std::string DirectoryTable::Selected() const {
    const QList<QTableWidgetItem*> selected = table->selectedItems();
    return selected.isEmpty() ? "" : FromQt(table->item(selected.first()->row(), From)->text());
}

}  // namespace orvelle
