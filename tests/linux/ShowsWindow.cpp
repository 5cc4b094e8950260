// Shows a window as a toolkit would and keeps it until the X server is gone or the process is killed.
//
//   shows-window [--by-child]    the second form shows it from a process of its own
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace {

xcb_atom_t Atom(xcb_connection_t* server, std::string_view name) {
    const auto question = xcb_intern_atom(server, 0, static_cast<std::uint16_t>(name.size()), name.data());
    xcb_intern_atom_reply_t* const reply = xcb_intern_atom_reply(server, question, nullptr);
    const xcb_atom_t atom = reply ? reply->atom : XCB_NONE;
    std::free(reply);
    return atom;
}

}  // namespace

int main(int count, char** arguments) {
    if (count > 1 && std::string_view(arguments[1]) == "--by-child" && fork() != 0) {
        wait(nullptr);
        return 0;
    }
    xcb_connection_t* const server = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(server)) return 1;
    const xcb_atom_t processId = Atom(server, "_NET_WM_PID");
    const xcb_screen_t& screen = *xcb_setup_roots_iterator(xcb_get_setup(server)).data;
    const xcb_window_t window = xcb_generate_id(server);
    xcb_create_window(server, XCB_COPY_FROM_PARENT, window, screen.root, 0, 0, 200, 100, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, screen.root_visual, 0, nullptr);
    const auto process = static_cast<std::uint32_t>(getpid());
    xcb_change_property(server, XCB_PROP_MODE_REPLACE, window, processId, XCB_ATOM_CARDINAL, 32, 1, &process);
    xcb_map_window(server, window);
    xcb_flush(server);
    while (xcb_generic_event_t* const event = xcb_wait_for_event(server)) std::free(event);
    return 0;
}
