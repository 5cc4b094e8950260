#include "deck/fields/Tables.h"

#include <QHeaderView>

namespace orvelle::deck {

namespace {

constexpr int CellMargin = 3;

}  // namespace

QTableWidget* NewTable(const QString& name, const QString& toolTip, const QStringList& headings, int wide) {
    auto* table = new QTableWidget(0, static_cast<int>(headings.size()));
    table->setObjectName(name);
    table->setAccessibleName(toolTip);
    table->setToolTip(toolTip);
    table->setHorizontalHeaderLabels(headings);
    table->setSelectionBehavior(QTableWidget::SelectRows);
    table->setSelectionMode(QTableWidget::SingleSelection);
    table->setTabKeyNavigation(false);
    table->setAlternatingRowColors(true);
    table->setShowGrid(false);
    table->setWordWrap(false);
    table->verticalHeader()->hide();
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 2 * CellMargin);
    table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table->horizontalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table->horizontalHeader()->setSectionResizeMode(wide, QHeaderView::Stretch);
    return table;
}

QTableWidgetItem& ShowCell(QTableWidget& table, int row, int column, const QVariant& value) {
    QTableWidgetItem* item = table.item(row, column);
    if (!item) {
        item = new QTableWidgetItem;
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        table.setItem(row, column, item);
    }
    if (item->data(Qt::DisplayRole) != value) item->setData(Qt::DisplayRole, value);
    return *item;
}

}  // namespace orvelle::deck
