#include "apps/SimulatorTray.h"

#include <QTimer>

#include "apps/SimulatorIcon.h"

namespace orvelle {

SimulatorTray::SimulatorTray()
    : host([this] {
          Place();
          Changed();
      }) {
    menu.setObjectName("SimulatorMenu");
    QObject::connect(menu.addAction("&Show"), &QAction::triggered, &menu, [this] { ShowAsked(); });
    menu.addSeparator();
    QObject::connect(menu.addAction("&End"), &QAction::triggered, &menu, [this] { EndAsked(); });
    Place();
}

void SimulatorTray::Place() {
    icon.reset();
    if (!host.IsThere()) return;
    icon = std::make_unique<QSystemTrayIcon>(SimulatorIcon(sign));
    icon->setToolTip(tip);
    icon->setContextMenu(&menu);
    QObject::connect(icon.get(), &QSystemTrayIcon::activated, &menu, [this](QSystemTrayIcon::ActivationReason reason) {
        if (reason == QSystemTrayIcon::Trigger) Pressed();
    });
    icon->show();
}

void SimulatorTray::Show(Sign newSign, const QString& newTip) {
    if (newSign == sign && newTip == tip) return;
    const bool hasOtherSign = newSign != sign;
    sign = newSign;
    tip = newTip;
    if (!icon) return;
    if (hasOtherSign) icon->setIcon(SimulatorIcon(sign));
    icon->setToolTip(tip);
}

void SimulatorTray::Tell(const QString& title, const QString& sentence) {
    if (icon) icon->showMessage(title, sentence, QSystemTrayIcon::Information);
}

}  // namespace orvelle
