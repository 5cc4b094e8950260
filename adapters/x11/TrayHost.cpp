#include "adapters/x11/TrayHost.h"

#include <xcb/xfixes.h>

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QGuiApplication>
#include <string>
#include <utility>

#include "adapters/x11/XServer.h"

namespace orvelle {

namespace {

// The service, and the interface of its object.
constexpr const char* Watcher = "org.kde.StatusNotifierWatcher";
constexpr const char* WatcherPath = "/StatusNotifierWatcher";
// A desktop that hangs must not take the panel with it.
constexpr int AnswerMilliseconds = 1000;

}  // namespace

TrayHost::TrayHost(std::function<void()> whenChanged) : tell(std::move(whenChanged)) {
    WatchStatusItems();
    WatchSelection();
}

TrayHost::~TrayHost() {
    if (listener == XCB_NONE) return;
    qApp->removeNativeEventFilter(this);
    xcb_destroy_window(connection, listener);
}

bool TrayHost::IsThere() {
    if (kind != Kind::Selection && HasStatusItemHost()) {
        kind = Kind::StatusItems;
        return true;
    }
    if (kind != Kind::StatusItems && HasSelectionOwner()) {
        kind = Kind::Selection;
        return true;
    }
    return false;
}

void TrayHost::WatchStatusItems() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) return;
    auto* service = new QDBusServiceWatcher(Watcher, bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(service, &QDBusServiceWatcher::serviceOwnerChanged, this, &TrayHost::StatusItemsChanged);
    for (const char* signal : {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"})
        bus.connect(Watcher, WatcherPath, Watcher, signal, this, SLOT(StatusItemsChanged()));
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

bool TrayHost::HasStatusItemHost() const {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected() || !bus.interface()->isServiceRegistered(Watcher)) return false;
    QDBusMessage question =
        QDBusMessage::createMethodCall(Watcher, WatcherPath, "org.freedesktop.DBus.Properties", "Get");
    question << Watcher << "IsStatusNotifierHostRegistered";
    const QDBusMessage answer = bus.call(question, QDBus::Block, AnswerMilliseconds);
    if (answer.type() != QDBusMessage::ReplyMessage || answer.arguments().isEmpty()) return false;
    return answer.arguments().constFirst().value<QDBusVariant>().variant().toBool();
}

bool TrayHost::HasSelectionOwner() const {
    if (listener == XCB_NONE) return false;
    const XReply<xcb_get_selection_owner_reply_t> owner(
        xcb_get_selection_owner_reply(connection, xcb_get_selection_owner(connection, selection), nullptr));
    return owner != nullptr && owner->owner != XCB_NONE;
}

void TrayHost::StatusItemsChanged() { Changed(Kind::StatusItems); }

void TrayHost::Changed(Kind changedKind) {
    if (kind == Kind::Unknown || kind == changedKind) tell();
}

bool TrayHost::nativeEventFilter(const QByteArray&, void* message, qintptr*) {
    const auto* event = static_cast<const xcb_generic_event_t*>(message);
    if ((event->response_type & ~0x80) != selectionEvent) return false;
    if (static_cast<const xcb_xfixes_selection_notify_event_t*>(message)->selection != selection) return false;
    // From the loop, where Qt has served what else the server tells of the change.
    QMetaObject::invokeMethod(
        this, [this] { Changed(Kind::Selection); }, Qt::QueuedConnection);
    return false;
}

}  // namespace orvelle
