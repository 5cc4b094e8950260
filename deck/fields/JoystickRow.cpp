#include "deck/fields/JoystickRow.h"

#include <QHBoxLayout>
#include <QToolButton>

#include "adapters/looks/Text.h"
#include "deck/fields/Section.h"
#include "platform/sides/SimulatorSide.h"

namespace orvelle::deck {

namespace {

constexpr int Buttons = 8;

QToolButton* NewJoystickButton(SimulatorSide& simulator, const std::string& device, int number) {
    const std::string text = std::to_string(number);
    const std::string button = "Button " + text;
    auto* widget = new QToolButton;
    widget->setObjectName(ToQt(device + text));
    widget->setText(ToQt(text));
    widget->setToolTip(ToQt("Hold \"" + device + "." + button + "\" down"));
    widget->setAccessibleName(ToQt(device + " " + button));
    // A mouse press doesn't take the focus, so that keys stay held meanwhile.
    widget->setFocusPolicy(Qt::TabFocus);
    widget->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    QObject::connect(widget, &QToolButton::pressed, widget,
                     [&simulator, device, button] { simulator.PressButton(device, button); });
    QObject::connect(widget, &QToolButton::released, widget,
                     [&simulator, device, button] { simulator.ReleaseButton(device, button); });
    return widget;
}

}  // namespace

JoystickRow::JoystickRow(SimulatorSide& simulator, const std::string& device) {
    setObjectName(ToQt(device));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Unit / 2);
    for (int number = 1; number <= Buttons; ++number) row->addWidget(NewJoystickButton(simulator, device, number));
}

}  // namespace orvelle::deck
