#include "adapters/looks/reach/ReachedChoice.h"

#include <QAbstractItemView>
#include <QLineEdit>

namespace orvelle {

namespace {

void Pick(QComboBox& box, int entry) {
    if (!box.isEnabled() || entry == box.currentIndex()) return;
    box.setCurrentIndex(entry);
    emit box.activated(entry);
}

}  // namespace

void ReachedChoice::HearList() const {
    if (selections) return;
    // While the list is open the mouse and the keys mark its entries, and the box itself sees what is picked.
    const auto selected = [&box = box](const QItemSelection& entries) {
        if (entries.isEmpty() || box.view()->isVisible()) return;
        QMetaObject::invokeMethod(
            &box, [&box, entry = entries.indexes().constFirst().row()] { Pick(box, entry); }, Qt::QueuedConnection);
    };
    selections = QObject::connect(box.view()->selectionModel(), &QItemSelectionModel::selectionChanged, &box, selected);
}

QString ReachedChoice::text(QAccessible::Text kind) const {
    return kind == QAccessible::Value ? Words() : ReachedWords::text(kind);
}

QAccessible::State ReachedChoice::state() const {
    QAccessible::State state = ReachedWords::state();
    state.expandable = true;
    state.expanded = box.view()->isVisible();
    state.editable = box.isEditable();
    return state;
}

QAccessibleInterface* ReachedChoice::child(int index) const {
    if (index == 0) {
        HearList();
        return QAccessible::queryAccessibleInterface(box.view());
    }
    return index == 1 && box.isEditable() ? QAccessible::queryAccessibleInterface(box.lineEdit()) : nullptr;
}

int ReachedChoice::indexOfChild(const QAccessibleInterface* child) const {
    if (child->object() == box.view()) return 0;
    return box.isEditable() && child->object() == box.lineEdit() ? 1 : -1;
}

QAccessibleInterface* ReachedChoice::childAt(int x, int y) const {
    return box.isEditable() && box.lineEdit()->rect().contains(box.lineEdit()->mapFromGlobal(QPoint(x, y))) ? child(1)
                                                                                                            : nullptr;
}

QStringList ReachedChoice::actionNames() const {
    QStringList names = ReachedWords::actionNames();
    if (box.isEnabled()) names = QStringList{showMenuAction(), pressAction()} + names;
    return names;
}

void ReachedChoice::doAction(const QString& name) {
    if (name != showMenuAction() && name != pressAction()) {
        ReachedWords::doAction(name);
    } else if (box.view()->isVisible()) {
        box.hidePopup();
    } else if (box.isEnabled()) {
        box.showPopup();
    }
}

}  // namespace orvelle
