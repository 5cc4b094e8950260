#include "adapters/qt/mirrors/ListMirror.h"

#include <QApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QWheelEvent>

namespace orvelle::qt {

namespace {

QTreeView& WithModel(QTreeView& view, ListModel& model) {
    view.setModel(&model);
    return view;
}

}  // namespace

ListMirror::ListMirror(ListView& listView, QTreeView& view)
    : Mirror(listView, view),
      control(listView),
      widget(view),
      model(listView),
      clicks(WithModel(view, model), [this](const QModelIndex& index) {
          control.UserClickRow(index.row() + 1);
          ShowSelected();
      }) {
    widget.viewport()->installEventFilter(this);
    widget.setRootIsDecorated(false);
    widget.setItemsExpandable(false);
    widget.setUniformRowHeights(true);
    widget.setAllColumnsShowFocus(true);
    widget.setAlternatingRowColors(true);
    QHeaderView& header = *widget.header();
    header.setSectionsMovable(false);
    header.setStretchLastSection(false);
    header.setResizeContentsPrecision(0);
    header.setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    const int last = model.columnCount() - 1;
    for (int column = 0; column <= last; ++column)
        header.setSectionResizeMode(column, column == last ? QHeaderView::ResizeToContents : QHeaderView::Stretch);
}

// A table that can't be changed can still be read to its end.
bool ListMirror::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Wheel && !widget.isEnabled()) {
        constexpr int Notch = 120;  // eighths of a degree
        const int turned = static_cast<QWheelEvent*>(event)->angleDelta().y();
        QScrollBar& bar = *widget.verticalScrollBar();
        bar.setValue(bar.value() - turned * QApplication::wheelScrollLines() * bar.singleStep() / Notch);
        return true;
    }
    return Mirror::eventFilter(watched, event);
}

void ListMirror::ShowOwn(ControlProperty property) {
    if (property == ControlProperty::Rows) {
        const ItemClicks::Quiet quiet(clicks);
        model.Follow();
        if (control.LastChange().What == ListView::Change::Removed) ShowSelected();
    }
    if (property == ControlProperty::Selected) ShowSelected();
}

void ListMirror::ShowSelected() {
    const ItemClicks::Quiet quiet(clicks);
    const Long row = control.SelectedRow();
    if (row == 0) {
        widget.selectionModel()->clear();
        return;
    }
    const QModelIndex index = model.index(row - 1, 0);
    widget.selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    widget.scrollTo(index);
}

}  // namespace orvelle::qt
