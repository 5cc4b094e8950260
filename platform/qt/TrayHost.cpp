#include "platform/qt/TrayHost.h"

#include <xcb/xfixes.h>

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusServiceWatcher>
#include <QGuiApplication>
#include <utility>

#include "platform/qt/XServer.h"

namespace orvelle {

namespace {

const QString StatusNotifierWatcher = QStringLiteral("org.kde.StatusNotifierWatcher");

}  // namespace

TrayHost::TrayHost(std::function<void()> whenChanged) : changed(std::move(whenChanged)) {
    if (!WatchStatusItems()) WatchSelection();
}

TrayHost::~TrayHost() {
    if (listener == XCB_NONE) return;
    qApp->removeNativeEventFilter(this);
    xcb_destroy_window(connection, listener);
}

bool TrayHost::IsThere() const {
    if (statusItems != nullptr)
        return QDBusConnection::sessionBus().interface()->isServiceRegistered(StatusNotifierWatcher);
    if (listener == XCB_NONE) return false;
    const XReply<xcb_get_selection_owner_reply_t> owner(
        xcb_get_selection_owner_reply(connection, xcb_get_selection_owner(connection, selection), nullptr));
    return owner != nullptr && owner->owner != XCB_NONE;
}

bool TrayHost::WatchStatusItems() {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected() || !bus.interface()->isServiceRegistered(StatusNotifierWatcher)) return false;
    statusItems = std::make_unique<QDBusServiceWatcher>(StatusNotifierWatcher, bus);
    QObject::connect(statusItems.get(), &QDBusServiceWatcher::serviceOwnerChanged, &context, [this] { changed(); });
    return true;
}

void TrayHost::WatchSelection() {
    connection = XConnection();
    if (connection == nullptr) return;
    const xcb_query_extension_reply_t* fixes = xcb_get_extension_data(connection, &xcb_xfixes_id);
    if (fixes == nullptr || !fixes->present) return;
    xcb_discard_reply(connection, xcb_xfixes_query_version(connection, 1, 0).sequence);
    selectionEvent = fixes->first_event + XCB_XFIXES_SELECTION_NOTIFY;
    selection = XAtom(connection, "_NET_SYSTEM_TRAY_S" + std::to_string(XScreenNumber()));
    listener = XHiddenWindow(connection);
    xcb_xfixes_select_selection_input(connection, listener, selection,
                                      XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
    xcb_flush(connection);
    qApp->installNativeEventFilter(this);
}

bool TrayHost::nativeEventFilter(const QByteArray&, void* message, qintptr*) {
    const auto* event = static_cast<const xcb_generic_event_t*>(message);
    if ((event->response_type & ~0x80) != selectionEvent) return false;
    if (static_cast<const xcb_xfixes_selection_notify_event_t*>(message)->selection != selection) return false;
    // From the loop, where Qt has served what else the server tells of the change.
    QMetaObject::invokeMethod(&context, changed, Qt::QueuedConnection);
    return false;
}

}  // namespace orvelle
