// Whether the desktop has a notification area now, and when that changes: a tray window, which owns a selection of the
// X server, or a host of status items on the session bus. Qt's tray icon is bound to the kind that is there when the
// program's first one is made, so this is asked before, and then keeps to that kind too. It listens to the desktop's
// own signals and never polls.
#pragma once

#include <xcb/xcb.h>

#include <QAbstractNativeEventFilter>
#include <QObject>
#include <functional>

namespace orvelle {

class TrayHost : public QObject, private QAbstractNativeEventFilter {
    Q_OBJECT

public:
    // `whenChanged` is called from the loop.
    explicit TrayHost(std::function<void()> whenChanged);
    ~TrayHost() override;

    bool IsThere();

private slots:
    void StatusItemsChanged();

private:
    enum class Kind { Unknown, StatusItems, Selection };

    void WatchStatusItems();
    void WatchSelection();
    bool HasStatusItemHost() const;
    bool HasSelectionOwner() const;
    void Changed(Kind changedKind);
    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

    const std::function<void()> tell;
    Kind kind = Kind::Unknown;
    xcb_connection_t* connection = nullptr;
    xcb_window_t listener = XCB_NONE;
    xcb_atom_t selection = XCB_NONE;
    int selectionEvent = 0;
};

}  // namespace orvelle
