// The notification area: one icon with a tip in the desktop's tray, or in a small window of its own while the desktop
// has no tray. Presses on it come as messages to the window that the record names: wParam the icon's id, lParam
// LeftDown, RightDown or LeftDoubleClick. The icon appears from the loop, after the windows that the program showed.
#pragma once

#include <QIcon>
#include <QObject>
#include <QStringList>
#include <QSystemTrayIcon>
#include <functional>
#include <memory>
#include <string>

#include "adapters/qt/services/StandInIcon.h"
#include "adapters/shared/WindowTable.h"
#include "adapters/x11/TrayHost.h"
#include "platform/NotificationArea.h"

namespace orvelle::qt {

class QtTray : public NotificationArea {
public:
    using IconSource = std::function<QIcon(const Picture&)>;

    QtTray(const WindowTable& windowTable, IconSource iconSource) : table(windowTable), iconOf(std::move(iconSource)) {}

    void Shell_NotifyIconA(Long command, const NotifyIconData& data) override;
    // A sentence that needs no answer, shown beside the icon for a while; as soon as there is one.
    void Tell(const std::string& sentence);
    // Of the small window that stands in for the icon; null while there is none.
    QRect StandInPlace() const;

private:
    void Take(const NotifyIconData& data);
    void Remove();
    // Into the tray or the stand-in, whichever the desktop needs now.
    void Place();
    void Dress();
    void TellWhatWaits();
    void Activated(QSystemTrayIcon::ActivationReason reason);
    void Clicked(StandInIcon::Mouse mouse);
    void Send(NotifyIconMouse message);

    const WindowTable& table;
    const IconSource iconOf;
    QObject context;
    bool isAdded = false;
    NotifyIconData held;
    QStringList untold;
    std::unique_ptr<TrayHost> host;
    std::unique_ptr<QSystemTrayIcon> trayIcon;
    std::unique_ptr<StandInIcon> standIn;
};

}  // namespace orvelle::qt
