#include "adapters/qt/mirrors/ComboMirror.h"

#include <QEvent>
#include <QLineEdit>
#include <QSignalBlocker>

#include "adapters/looks/Text.h"

namespace orvelle::qt {

ComboMirror::ComboMirror(ComboBox& comboBox, QComboBox& box) : Mirror(comboBox, box), control(comboBox), widget(box) {
    widget.setInsertPolicy(QComboBox::NoInsert);
    widget.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    widget.setFocusPolicy(Qt::StrongFocus);  // not by the wheel
    widget.installEventFilter(this);
    if (control.IsEditable()) MakeEditable();
    connect(&widget, &QComboBox::activated, this, [this](int index) {
        control.UserPick(index);
        ShowSelection();
    });
}

void ComboMirror::MakeEditable() {
    widget.setEditable(true);
    widget.setCompleter(nullptr);
    // Qt would pick the entry that equals the text when the field loses the focus.
    disconnect(widget.lineEdit(), SIGNAL(editingFinished()), &widget, nullptr);
    widget.lineEdit()->setAccessibleName(widget.accessibleName());
    // Whoever wrote it: an assistive program doesn't type. The text of an entry that is picked comes with its pick.
    connect(widget.lineEdit(), &QLineEdit::textChanged, this, [this](const QString& written) {
        if (written == ToQt(control.Text)) return;
        if (widget.currentIndex() >= 0 && written == widget.itemText(widget.currentIndex())) return;
        control.UserType(FromQt(written));
        ShowSelection();
    });
    connect(widget.lineEdit(), &QLineEdit::returnPressed, this, [this] {
        control.UserKey(EnterKey);
        ShowSelection();
    });
}

// The wheel scrolls past a box; it picks only where the user has gone to the box first.
bool ComboMirror::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Wheel && !widget.hasFocus()) {
        event->ignore();
        return true;
    }
    return Mirror::eventFilter(watched, event);
}

void ComboMirror::ShowOwn(ControlProperty property) {
    if (property == ControlProperty::List) ShowList();
    if (property == ControlProperty::List || property == ControlProperty::ListIndex ||
        property == ControlProperty::Text)
        ShowSelection();
}

void ComboMirror::ShowList() {
    const QSignalBlocker quiet(widget.lineEdit());
    const int count = control.ListCount();
    if (widget.count() >= count) widget.clear();
    for (int entry = widget.count(); entry < count; ++entry)
        widget.addItem(ToQt(control.List()[static_cast<std::size_t>(entry)]));
}

void ComboMirror::ShowSelection() {
    const QSignalBlocker quiet(widget.lineEdit());
    const QString text = ToQt(control.Text);
    // Selecting writes the field anew; who is typing keeps the place in the text.
    const int cursor = control.IsEditable() ? widget.lineEdit()->cursorPosition() : 0;
    const bool isSelected = control.ListIndex() >= 0;
    if (widget.currentIndex() != control.ListIndex()) widget.setCurrentIndex(control.ListIndex());
    if (!control.IsEditable()) {
        widget.setPlaceholderText(isSelected ? QString() : text);
    } else if (widget.currentText() != text) {
        widget.setEditText(text);
        widget.lineEdit()->setCursorPosition(cursor);
    }
}

}  // namespace orvelle::qt
