#include "adapters/looks/reach/ReachedButton.h"

#include <QCheckBox>

#include "adapters/looks/Text.h"

namespace orvelle {

QString ReachedButton::text(QAccessible::Text kind) const {
    if (kind == QAccessible::Name && button.accessibleName().isEmpty()) return WithoutMnemonic(button.text());
    if (kind == QAccessible::Accelerator) return button.shortcut().toString(QKeySequence::NativeText);
    return ReachedWidget::text(kind);
}

QAccessible::State ReachedButton::state() const {
    QAccessible::State state = ReachedWidget::state();
    state.checkable = button.isCheckable();
    state.checked = button.isChecked();
    state.pressed = button.isDown();
    const auto* box = qobject_cast<const QCheckBox*>(&button);
    state.checkStateMixed = box != nullptr && box->checkState() == Qt::PartiallyChecked;
    return state;
}

QStringList ReachedButton::actionNames() const {
    QStringList names = ReachedWidget::actionNames();
    if (button.isEnabled()) names.prepend(OwnAction());
    return names;
}

// The click comes from the loop: what it opens must not keep the asking program waiting.
void ReachedButton::doAction(const QString& name) {
    if (name == OwnAction())
        button.animateClick();
    else
        ReachedWidget::doAction(name);
}

QStringList ReachedButton::keyBindingsForAction(const QString& name) const {
    const bool isOwn = name == OwnAction() && !button.shortcut().isEmpty();
    return isOwn ? QStringList{button.shortcut().toString()} : ReachedWidget::keyBindingsForAction(name);
}

}  // namespace orvelle
