#include "bench/WindowWatch.h"

#include <poll.h>

#include <cstdlib>
#include <memory>
#include <stdexcept>

namespace orvelle {

namespace {

constexpr int LeastWindowSize = 40;  // pixels; what is smaller is a tray icon

template <typename T>
using Reply = std::unique_ptr<T, decltype(&std::free)>;

template <typename T>
Reply<T> Own(T* reply) {
    return {reply, &std::free};
}

}  // namespace

WindowWatch::WindowWatch() : connection(xcb_connect(nullptr, nullptr)) {
    if (xcb_connection_has_error(connection)) throw std::runtime_error("there is no display");
    root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    Select(root, XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY);
    const auto request = xcb_intern_atom(connection, 0, 11, "_NET_WM_PID");
    processIdAtom = Own(xcb_intern_atom_reply(connection, request, nullptr))->atom;
}

WindowWatch::~WindowWatch() { xcb_disconnect(connection); }

bool WindowWatch::MappedOne(pid_t process) {
    bool found = false;
    while (const auto event = Own(xcb_poll_for_event(connection))) {
        switch (event->response_type & 0x7f) {
            case XCB_CREATE_NOTIFY: {
                // A window manager takes the window away from the root, so each is watched by itself.
                const auto window = reinterpret_cast<const xcb_create_notify_event_t&>(*event).window;
                Select(window, XCB_EVENT_MASK_STRUCTURE_NOTIFY);
                found = found || (IsMapped(window) && Belongs(window, process));
                break;
            }
            case XCB_MAP_NOTIFY:
                found = found || Belongs(reinterpret_cast<const xcb_map_notify_event_t&>(*event).window, process);
                break;
            default:
                break;
        }
    }
    return found;
}

void WindowWatch::Wait() const {
    pollfd ready{xcb_get_file_descriptor(connection), POLLIN, 0};
    poll(&ready, 1, 50);
}

void WindowWatch::Select(xcb_window_t window, std::uint32_t events) {
    xcb_change_window_attributes(connection, window, XCB_CW_EVENT_MASK, &events);
    xcb_flush(connection);
}

bool WindowWatch::IsMapped(xcb_window_t window) {
    const auto request = xcb_get_window_attributes(connection, window);
    const auto attributes = Own(xcb_get_window_attributes_reply(connection, request, nullptr));
    return attributes && attributes->map_state != XCB_MAP_STATE_UNMAPPED;
}

bool WindowWatch::Belongs(xcb_window_t window, pid_t process) {
    const auto geometry = Own(xcb_get_geometry_reply(connection, xcb_get_geometry(connection, window), nullptr));
    if (!geometry || geometry->width < LeastWindowSize || geometry->height < LeastWindowSize) return false;
    const auto request = xcb_get_property(connection, 0, window, processIdAtom, XCB_ATOM_CARDINAL, 0, 1);
    const auto owner = Own(xcb_get_property_reply(connection, request, nullptr));
    return owner && xcb_get_property_value_length(owner.get()) == sizeof(std::uint32_t) &&
           *static_cast<const std::uint32_t*>(xcb_get_property_value(owner.get())) ==
               static_cast<std::uint32_t>(process);
}

}  // namespace orvelle
