// The icon of the simulator's program in the desktop's notification area, where there is one, with its menu. Whether
// there is one may change meanwhile. Events come from the loop.
#pragma once

#include <QMenu>
#include <QSystemTrayIcon>
#include <memory>

#include "adapters/looks/Signs.h"
#include "adapters/x11/TrayHost.h"
#include "platform/Event.h"

namespace orvelle {

class SimulatorTray {
public:
    SimulatorTray();

    bool IsThere() const { return icon != nullptr; }
    void Show(Sign newSign, const QString& newTip);
    const QString& Tip() const { return tip; }
    QMenu& Menu() { return menu; }
    // A sentence for the user, who may see no window; nothing where there is no icon.
    void Tell(const QString& title, const QString& sentence);

    Event<> Pressed;
    Event<> ShowAsked;
    Event<> EndAsked;
    Event<> Changed;  // it came or went

private:
    void Place();

    QMenu menu;
    Sign sign = Sign::Off;
    QString tip;
    std::unique_ptr<QSystemTrayIcon> icon;
    TrayHost host;
};

}  // namespace orvelle
