#include "adapters/looks/reach/Reach.h"

#include <QCheckBox>
#include <QDialog>
#include <QFrame>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>

#include "adapters/looks/reach/ReachedButton.h"
#include "adapters/looks/reach/ReachedChoice.h"
#include "adapters/looks/reach/ReachedReading.h"
#include "adapters/looks/reach/ReachedSlider.h"

namespace orvelle {

namespace {

QAccessibleInterface* ReachedFrame(QFrame& frame) {
    const bool isLine = frame.frameShape() == QFrame::HLine || frame.frameShape() == QFrame::VLine;
    return new ReachedWidget(frame, isLine ? QAccessible::Separator : QAccessible::Grouping);
}

// Without a role of its own a window counts as a mere part of one.
QAccessibleInterface* ReachedWindow(QWidget& window) {
    switch (window.windowType()) {
        case Qt::Window:
            return new ReachedWidget(window, QAccessible::Window);
        case Qt::Dialog:
            return new ReachedWidget(window, QAccessible::Dialog);
        default:
            return nullptr;
    }
}

QAccessibleInterface* ReachedButtonOf(QAbstractButton& button) {
    if (qobject_cast<QCheckBox*>(&button)) return new ReachedButton(button, QAccessible::CheckBox);
    if (qobject_cast<QRadioButton*>(&button)) return new ReachedButton(button, QAccessible::RadioButton);
    const bool isUsual = qobject_cast<QPushButton*>(&button) || qobject_cast<QToolButton*>(&button);
    return isUsual ? new ReachedButton(button, QAccessible::Button) : nullptr;
}

// Asked for each class of an object, from its own to the last that it is made of; Qt's answer follows where ours is
// null.
QAccessibleInterface* Reached(const QString& className, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    if (widget == nullptr) return nullptr;
    if (const auto* reading = dynamic_cast<const Reading*>(object)) return new ReachedReading(*widget, *reading);
    if (auto* label = qobject_cast<QLabel*>(object)) return new ReachedReading(*label);
    if (auto* button = qobject_cast<QAbstractButton*>(object)) return ReachedButtonOf(*button);
    if (auto* box = qobject_cast<QComboBox*>(object)) return new ReachedChoice(*box);
    if (auto* slider = qobject_cast<QSlider*>(object)) return new ReachedSlider(*slider);
    if (className == QLatin1String("QFrame")) return ReachedFrame(*static_cast<QFrame*>(widget));
    if (className == QLatin1String("QWidget") && widget->isWindow()) return ReachedWindow(*widget);
    return nullptr;
}

}  // namespace

void InstallReach() { QAccessible::installFactory(Reached); }

void TellWords(QWidget& widget, const QString& before, const QString& now) {
    if (!QAccessible::isActive() || before == now) return;
    QAccessibleTextUpdateEvent words(&widget, 0, before, now);
    QAccessible::updateAccessibility(&words);
    QAccessibleEvent name(&widget, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&name);
}

}  // namespace orvelle
