// The deck's tables: made alike, and filled in place, so that the row at hand, an open editor and the scroll position
// survive a change elsewhere.
#pragma once

#include <QStringList>
#include <QTableWidget>

namespace orvelle::deck {

// Columns as wide as their contents, `wide` takes the rest.
QTableWidget* NewTable(const QString& name, const QString& toolTip, const QStringList& headings, int wide);
// Makes the cell where it is missing.
QTableWidgetItem& ShowCell(QTableWidget& table, int row, int column, const QVariant& value);

}  // namespace orvelle::deck
