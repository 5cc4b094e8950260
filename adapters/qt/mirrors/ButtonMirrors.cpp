#include "adapters/qt/mirrors/ButtonMirrors.h"

#include <algorithm>

#include "adapters/looks/Text.h"
#include "adapters/qt/mirrors/Mnemonic.h"

namespace orvelle::qt {

namespace {

constexpr Long Unticked = 0;
constexpr Long Ticked = 1;

Qt::CheckState CheckStateOf(Long value) {
    if (value == Unticked) return Qt::Unchecked;
    return value == Ticked ? Qt::Checked : Qt::PartiallyChecked;
}

}  // namespace

ButtonMirror::ButtonMirror(CommandButton& commandButton, QPushButton& pushButton)
    : Mirror(commandButton, pushButton),
      control(commandButton),
      widget(pushButton),
      purpose(pushButton.accessibleName()) {
    widget.setAutoDefault(true);  // Enter presses it, as Space does
    connect(&widget, &QPushButton::clicked, this, [this] {
        const QWidget& window = *widget.window();
        const bool hadFocus = window.focusWidget() == &widget;
        control.UserClick();
        // A handler that turned the button off meanwhile made it lose the focus.
        if (hadFocus && window.focusWidget() != &widget && widget.isEnabled()) widget.setFocus();
    });
}

void ButtonMirror::ShowOwn(ControlProperty property) {
    if (property != ControlProperty::Caption) return;
    const QString caption = ToQt(control.Caption);
    widget.setText(ShownCaption(caption, widget));
    if (purpose.isEmpty()) return;
    const bool isWord = std::any_of(caption.begin(), caption.end(), [](QChar letter) { return letter.isLetter(); });
    widget.setAccessibleName(isWord ? caption + QLatin1String(", ") + purpose : purpose);
}

CheckBoxMirror::CheckBoxMirror(CheckBox& checkBox, QCheckBox& box)
    : Mirror(checkBox, box), control(checkBox), widget(box) {
    connect(&widget, &QCheckBox::clicked, this, [this] {
        control.UserCheck(control.Value == Unticked ? Ticked : Unticked);
        ShowOwn(ControlProperty::Value);
    });
}

void CheckBoxMirror::ShowOwn(ControlProperty property) {
    if (property == ControlProperty::Caption) widget.setText(ShownCaption(ToQt(control.Caption), widget));
    if (property == ControlProperty::Value) {
        const Qt::CheckState state = CheckStateOf(control.Value);
        widget.setTristate(state == Qt::PartiallyChecked);
        widget.setCheckState(state);
    }
}

void CheckBoxMirror::ShowAllOwn() {
    ShowOwn(ControlProperty::Caption);
    ShowOwn(ControlProperty::Value);
}

OptionMirror::OptionMirror(OptionButton& optionButton, QRadioButton& radioButton)
    : Mirror(optionButton, radioButton), control(optionButton), widget(radioButton) {
    connect(&widget, &QRadioButton::clicked, this, [this] {
        control.UserClick();
        ShowOwn(ControlProperty::Value);
    });
    // A click on another option turned this one's widget off; should that option not have taken the click, this one is
    // still on.
    connect(
        &widget, &QRadioButton::toggled, this, [this] { ShowOwn(ControlProperty::Value); }, Qt::QueuedConnection);
}

void OptionMirror::ShowOwn(ControlProperty property) {
    if (property == ControlProperty::Caption) widget.setText(ShownCaption(ToQt(control.Caption), widget));
    if (property != ControlProperty::Value || widget.isChecked() == control.Value) return;
    widget.setAutoExclusive(control.Value);
    widget.setChecked(control.Value);
    widget.setAutoExclusive(true);
}

void OptionMirror::ShowAllOwn() {
    ShowOwn(ControlProperty::Caption);
    ShowOwn(ControlProperty::Value);
}

}  // namespace orvelle::qt
