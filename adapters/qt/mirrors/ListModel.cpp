#include "adapters/qt/mirrors/ListModel.h"

#include "adapters/looks/Text.h"

namespace orvelle::qt {

void ListModel::Follow() {
    const ListView::Change change = list.LastChange();
    const int row = change.Row - 1;
    switch (change.What) {
        case ListView::Change::Added:
            beginInsertRows({}, row, row);
            ++rows;
            endInsertRows();
            break;
        case ListView::Change::Altered:
            emit dataChanged(index(row, 0), index(row, columnCount() - 1));
            break;
        case ListView::Change::Removed:
            beginRemoveRows({}, row, row);
            --rows;
            endRemoveRows();
            break;
    }
}

int ListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(list.Headings.size());
}

QVariant ListModel::data(const QModelIndex& index, int role) const {
    const bool isText = role == Qt::DisplayRole || role == Qt::ToolTipRole;
    // While a row is being taken out, the views may still ask for the one behind the last.
    if (!isText || index.row() >= list.Count()) return {};
    const Long row = index.row() + 1;
    return ToQt(index.column() == 0 ? list.Row(row).Text : list.SubItem(row, index.column()));
}

QVariant ListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    return ToQt(list.Headings[static_cast<std::size_t>(section)]);
}

}  // namespace orvelle::qt
