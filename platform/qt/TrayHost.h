// Whether the desktop has a notification area now, and when that changes. It listens to the desktop's own signals: the
// owner of the tray selection on X11, or the watcher of status items on D-Bus where one was there at the start, which
// is what Qt's tray icon uses then. Never polls.
#pragma once

#include <xcb/xcb.h>

#include <QAbstractNativeEventFilter>
#include <QObject>
#include <functional>
#include <memory>

class QDBusServiceWatcher;

namespace orvelle {

class TrayHost : private QAbstractNativeEventFilter {
public:
    // `whenChanged` is called from the loop.
    explicit TrayHost(std::function<void()> whenChanged);
    ~TrayHost() override;

    bool IsThere() const;

private:
    bool WatchStatusItems();
    void WatchSelection();
    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

    const std::function<void()> changed;
    QObject context;
    std::unique_ptr<QDBusServiceWatcher> statusItems;
    xcb_connection_t* connection = nullptr;
    xcb_window_t listener = XCB_NONE;
    xcb_atom_t selection = XCB_NONE;
    int selectionEvent = 0;
};

}  // namespace orvelle
