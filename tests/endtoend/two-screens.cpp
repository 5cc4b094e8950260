// Divides the display's screen into two beside each other, the left one primary, and becomes the given command:
// two-screens COMMAND [ARGUMENT...]
#include <unistd.h>
#include <xcb/randr.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

enum class Primary : bool { No, Yes };

bool AddMonitor(xcb_connection_t* connection, const xcb_screen_t& screen, const char* name, int left, Primary primary) {
    const auto reply = xcb_intern_atom_reply(
        connection, xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(std::strlen(name)), name), nullptr);
    const auto half = static_cast<std::uint16_t>(screen.width_in_pixels / 2);
    xcb_randr_monitor_info_t monitor{};
    monitor.name = reply->atom;
    std::free(reply);
    monitor.primary = primary == Primary::Yes;
    monitor.x = static_cast<std::int16_t>(left);
    monitor.width = half;
    monitor.height = screen.height_in_pixels;
    monitor.width_in_millimeters = static_cast<std::uint32_t>(screen.width_in_millimeters) / 2;
    monitor.height_in_millimeters = screen.height_in_millimeters;
    const auto cookie = xcb_randr_set_monitor_checked(connection, screen.root, &monitor);
    xcb_generic_error_t* const error = xcb_request_check(connection, cookie);
    std::free(error);
    return error == nullptr;
}

}  // namespace

int main(int count, char** words) {
    xcb_connection_t* const connection = xcb_connect(nullptr, nullptr);
    if (count < 2 || xcb_connection_has_error(connection)) return EXIT_FAILURE;
    const xcb_screen_t& screen = *xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    const bool isDone = AddMonitor(connection, screen, "LEFT", 0, Primary::Yes) &&
                        AddMonitor(connection, screen, "RIGHT", screen.width_in_pixels / 2, Primary::No);
    xcb_disconnect(connection);
    if (!isDone) {
        std::fputs("two-screens: the X server takes no monitors\n", stderr);
        return EXIT_FAILURE;
    }
    execv(words[1], words + 1);
    return EXIT_FAILURE;
}
