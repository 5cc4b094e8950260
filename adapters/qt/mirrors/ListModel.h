// The rows of a headless list, as a view asks for them: nothing is copied, and each change touches only its row, so
// that a list of 100,000 rows is as quick as a short one.
#pragma once

#include <QAbstractTableModel>

#include "platform/controls/ListView.h"

namespace orvelle::qt {

class ListModel : public QAbstractTableModel {
public:
    explicit ListModel(const ListView& listView) : list(listView), rows(listView.Count()) {}

    // Follows ListView::LastChange.
    void Follow();

    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows; }
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    const ListView& list;
    int rows;  // as far as the views have been told
};

}  // namespace orvelle::qt
