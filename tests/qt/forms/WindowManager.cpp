#include "tests/qt/forms/WindowManager.h"

#include <xcb/xcb.h>

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <cstdlib>
#include <memory>

namespace orvelle::qt {

namespace {

struct Freed {
    void operator()(void* reply) const { std::free(reply); }
};
template <typename Reply>
using Owned = std::unique_ptr<Reply, Freed>;

xcb_connection_t* Connection() { return qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection(); }

xcb_window_t Root() { return xcb_setup_roots_iterator(xcb_get_setup(Connection())).data->root; }

xcb_atom_t Atom(const std::string& name) {
    const auto cookie = xcb_intern_atom(Connection(), 0, static_cast<std::uint16_t>(name.size()), name.c_str());
    return Owned<xcb_intern_atom_reply_t>(xcb_intern_atom_reply(Connection(), cookie, nullptr))->atom;
}

xcb_window_t Id(const QWidget& window) { return static_cast<xcb_window_t>(window.winId()); }

// The requests are those of a pager, which acts for the user.
constexpr std::uint32_t FromPager = 2;

}  // namespace

void WindowManager::Ask(const QWidget& window, const std::string& message, std::initializer_list<std::uint32_t> data) {
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = Id(window);
    event.type = Atom(message);
    std::copy(data.begin(), data.end(), event.data.data32);
    xcb_send_event(Connection(), 0, Root(), XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char*>(&event));
    xcb_flush(Connection());
}

void WindowManager::Move(const QWidget& window, QPoint place) {
    constexpr std::uint32_t NorthWestFromPagerXy = 1 | FromPager << 12 | 1 << 8 | 1 << 9;
    const qreal scale = window.devicePixelRatioF();
    Ask(window, "_NET_MOVERESIZE_WINDOW",
        {NorthWestFromPagerXy, static_cast<std::uint32_t>(place.x() * scale),
         static_cast<std::uint32_t>(place.y() * scale), 0, 0});
}

void WindowManager::Resize(const QWidget& window, QSize size) {
    constexpr std::uint32_t NorthWestFromPagerSize = 1 | FromPager << 12 | 1 << 10 | 1 << 11;
    const qreal scale = window.devicePixelRatioF();
    Ask(window, "_NET_MOVERESIZE_WINDOW",
        {NorthWestFromPagerSize, 0, 0, static_cast<std::uint32_t>(size.width() * scale),
         static_cast<std::uint32_t>(size.height() * scale)});
}

void WindowManager::Minimise(const QWidget& window) {
    constexpr std::uint32_t IconicState = 3;
    Ask(window, "WM_CHANGE_STATE", {IconicState});
}

void WindowManager::Activate(const QWidget& window) { Ask(window, "_NET_ACTIVE_WINDOW", {FromPager, 0, 0}); }

void WindowManager::Maximise(const QWidget& window, Maximised maximised) {
    Ask(window, "_NET_WM_STATE",
        {maximised == Maximised::Yes ? 1u : 0u, Atom("_NET_WM_STATE_MAXIMIZED_VERT"),
         Atom("_NET_WM_STATE_MAXIMIZED_HORZ"), FromPager});
}

void WindowManager::Close(const QWidget& window) { Ask(window, "_NET_CLOSE_WINDOW", {0, FromPager}); }

bool WindowManager::IsOnScreen(const QWidget& window) {
    const auto cookie = xcb_get_window_attributes(Connection(), Id(window));
    const Owned<xcb_get_window_attributes_reply_t> found(
        xcb_get_window_attributes_reply(Connection(), cookie, nullptr));
    return found != nullptr && found->map_state == XCB_MAP_STATE_VIEWABLE;
}

QRect WindowManager::Frame(const QWidget& window) {
    xcb_window_t outer = Id(window);
    for (;;) {
        const auto cookie = xcb_query_tree(Connection(), outer);
        const Owned<xcb_query_tree_reply_t> tree(xcb_query_tree_reply(Connection(), cookie, nullptr));
        if (tree == nullptr || tree->parent == tree->root) break;
        outer = tree->parent;
    }
    const auto cookie = xcb_get_geometry(Connection(), outer);
    const Owned<xcb_get_geometry_reply_t> found(xcb_get_geometry_reply(Connection(), cookie, nullptr));
    const qreal scale = window.devicePixelRatioF();
    return {qRound(found->x / scale), qRound(found->y / scale), qRound(found->width / scale),
            qRound(found->height / scale)};
}

}  // namespace orvelle::qt
