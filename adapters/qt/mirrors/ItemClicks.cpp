#include "adapters/qt/mirrors/ItemClicks.h"

#include <QAbstractItemView>
#include <QGuiApplication>
#include <utility>

namespace orvelle::qt {

ItemClicks::ItemClicks(QAbstractItemView& itemView, std::function<void(const QModelIndex&)> callback)
    : picked(std::move(callback)) {
    connect(itemView.selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this](const QItemSelection& selected) {
                if (!selected.isEmpty()) Selected(selected.indexes().constFirst());
            });
    connect(&itemView, &QAbstractItemView::clicked, this, [this](const QModelIndex& index) {
        if (!std::exchange(pickedByPress, false)) picked(index);
    });
}

void ItemClicks::Selected(const QModelIndex& index) {
    if (quiet != 0) return;
    pickedByPress = QGuiApplication::mouseButtons() != Qt::NoButton;
    picked(index);
}

}  // namespace orvelle::qt
