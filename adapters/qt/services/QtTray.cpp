#include "adapters/qt/services/QtTray.h"

#include <QTimer>
#include <string>

#include "adapters/looks/Text.h"

namespace orvelle::qt {

namespace {

constexpr int TimeToBePlaced = 1000;  // milliseconds

QString Explanation() {
    return "This desktop has no notification area, so this icon stands in for it: a click shows or hides the panel.";
}

}  // namespace

void QtTray::Shell_NotifyIconA(Long command, const NotifyIconData& data) {
    if (command == NotifyIconDelete) {
        Remove();
        return;
    }
    const NotifyIconData before = held;
    Take(data);
    if (command == NotifyIconModify) {
        // Most changes of the status leave the icon as it is.
        if (held.Icon != before.Icon || held.Tip != before.Tip) Dress();
        return;
    }
    isAdded = true;
    QTimer::singleShot(0, &context, [this] {
        if (host == nullptr) host = std::make_unique<TrayHost>([this] { Place(); });
        Place();
    });
}

void QtTray::Tell(const std::string& sentence) {
    untold.append(ToQt(sentence));
    QTimer::singleShot(0, &context, [this] { TellWhatWaits(); });
}

QRect QtTray::StandInPlace() const {
    return standIn != nullptr && standIn->isVisible() ? standIn->frameGeometry() : QRect();
}

// A second balloon would take the place of the first.
void QtTray::TellWhatWaits() {
    if (untold.isEmpty() || (trayIcon == nullptr && standIn == nullptr)) return;
    const QString words = untold.join('\n');
    untold.clear();
    if (trayIcon != nullptr)
        trayIcon->showMessage("Orvelle Control Panel", words, trayIcon->icon());
    else
        standIn->Say(words);
}

void QtTray::Take(const NotifyIconData& data) {
    held.Window = data.Window;
    held.Id = data.Id;
    if ((data.Flags & NotifyIconMessage) != 0) held.CallbackMessage = data.CallbackMessage;
    if ((data.Flags & NotifyIconPicture) != 0) held.Icon = data.Icon;
    if ((data.Flags & NotifyIconTip) != 0) held.Tip = data.Tip.substr(0, data.Tip.find('\0'));
}

void QtTray::Remove() {
    isAdded = false;
    trayIcon.reset();
    standIn.reset();
}

void QtTray::Place() {
    if (!isAdded) return;
    if (host->IsThere()) {
        if (standIn != nullptr) standIn->hide();
        trayIcon = std::make_unique<QSystemTrayIcon>();
        QObject::connect(trayIcon.get(), &QSystemTrayIcon::activated, &context,
                         [this](QSystemTrayIcon::ActivationReason reason) { Activated(reason); });
        Dress();
        trayIcon->show();
        // A balloon points at the icon, which the tray has yet to place.
        QTimer::singleShot(TimeToBePlaced, &context, [this] { TellWhatWaits(); });
    } else {
        trayIcon.reset();
        if (standIn == nullptr)
            standIn = std::make_unique<StandInIcon>([this](StandInIcon::Mouse mouse) { Clicked(mouse); });
        Dress();
        standIn->Appear(ToQt(held.Tip), Explanation());
        TellWhatWaits();
    }
}

void QtTray::Dress() {
    if (trayIcon != nullptr) {
        trayIcon->setIcon(iconOf(held.Icon));
        trayIcon->setToolTip(ToQt(held.Tip));
    }
    if (standIn != nullptr) standIn->SetIcon(iconOf(held.Icon));
}

void QtTray::Activated(QSystemTrayIcon::ActivationReason reason) {
    switch (reason) {
        case QSystemTrayIcon::Trigger:
            Send(LeftDown);
            break;
        case QSystemTrayIcon::Context:
            Send(RightDown);
            break;
        case QSystemTrayIcon::DoubleClick:
            Send(LeftDoubleClick);
            break;
        default:
            break;
    }
}

void QtTray::Clicked(StandInIcon::Mouse mouse) {
    switch (mouse) {
        case StandInIcon::Mouse::LeftPress:
            Send(LeftDown);
            break;
        case StandInIcon::Mouse::RightPress:
            Send(RightDown);
            break;
        case StandInIcon::Mouse::DoubleClick:
            Send(LeftDoubleClick);
            break;
    }
}

void QtTray::Send(NotifyIconMouse message) {
    if (isAdded && held.Window != nullptr) table.Deliver(*held.Window, held.CallbackMessage, held.Id, message);
}

}  // namespace orvelle::qt
