// Divides the display's screen into two beside each other, the left one primary, and becomes the given command:
// two-screens COMMAND [ARGUMENT...]
#include <unistd.h>
#include <xcb/randr.h>
#include <xcb/xcbext.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

enum class Primary : bool { No, Yes };

// The library's own function leaves a length of the request undefined.
xcb_void_cookie_t SetMonitor(xcb_connection_t* connection, xcb_window_t root, xcb_randr_monitor_info_t& monitor,
                             xcb_randr_output_t& output) {
    xcb_protocol_request_t request{3, &xcb_randr_id, XCB_RANDR_SET_MONITOR, 1};
    xcb_randr_set_monitor_request_t head{};
    head.window = root;
    iovec parts[5]{
        {}, {}, {&head, sizeof head}, {&monitor, sizeof monitor}, {&output, monitor.nOutput * sizeof output}};
    return {xcb_send_request(connection, XCB_REQUEST_CHECKED, parts + 2, &request)};
}

xcb_randr_output_t OutputOf(xcb_connection_t* connection, xcb_window_t root) {
    auto* const resources =
        xcb_randr_get_screen_resources_reply(connection, xcb_randr_get_screen_resources(connection, root), nullptr);
    const xcb_randr_output_t output = *xcb_randr_get_screen_resources_outputs(resources);
    std::free(resources);
    return output;
}

bool AddMonitor(xcb_connection_t* connection, const xcb_screen_t& screen, const char* name, int left, Primary primary) {
    const auto reply = xcb_intern_atom_reply(
        connection, xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(std::strlen(name)), name), nullptr);
    const auto half = static_cast<std::uint16_t>(screen.width_in_pixels / 2);
    xcb_randr_monitor_info_t monitor{};
    monitor.name = reply->atom;
    std::free(reply);
    // Without it the screen as a whole would stay a third one.
    xcb_randr_output_t output = OutputOf(connection, screen.root);
    monitor.nOutput = primary == Primary::Yes ? 1 : 0;
    monitor.primary = primary == Primary::Yes;
    monitor.x = static_cast<std::int16_t>(left);
    monitor.width = half;
    monitor.height = screen.height_in_pixels;
    monitor.width_in_millimeters = static_cast<std::uint32_t>(screen.width_in_millimeters) / 2;
    monitor.height_in_millimeters = screen.height_in_millimeters;
    xcb_generic_error_t* const error =
        xcb_request_check(connection, SetMonitor(connection, screen.root, monitor, output));
    std::free(error);
    return error == nullptr;
}

}  // namespace

int main(int count, char** words) {
    xcb_connection_t* const connection = xcb_connect(nullptr, nullptr);
    if (count < 2 || xcb_connection_has_error(connection)) return EXIT_FAILURE;
    // Monitors are of that version; a server that was not asked takes none.
    std::free(xcb_randr_query_version_reply(connection, xcb_randr_query_version(connection, 1, 5), nullptr));
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
