#include "adapters/x11/Xwayland.h"

#include <xcb/randr.h>
#include <xcb/xinput.h>

#include <algorithm>
#include <span>
#include <string_view>

#include "adapters/x11/XReply.h"

namespace orvelle {

namespace {

// Only since its version of 2023 does the server say what it is.
bool HasItsExtension(xcb_connection_t* connection) {
    constexpr std::string_view Name = "XWAYLAND";
    const auto question = xcb_query_extension(connection, static_cast<std::uint16_t>(Name.size()), Name.data());
    const auto reply = OwnReply(xcb_query_extension_reply(connection, question, nullptr));
    return reply && reply->present;
}

// Before, it is known by what it calls its screens and devices.
bool NamesAnOutput(xcb_connection_t* connection) {
    const auto* const extension = xcb_get_extension_data(connection, &xcb_randr_id);
    if (extension == nullptr || !extension->present) return false;
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    const auto question = xcb_randr_get_screen_resources_current(connection, root);
    const auto reply = OwnReply(xcb_randr_get_screen_resources_current_reply(connection, question, nullptr));
    if (!reply) return false;
    const std::span outputs(xcb_randr_get_screen_resources_current_outputs(reply.get()), reply->num_outputs);
    return std::ranges::any_of(outputs, [connection](xcb_randr_output_t output) {
        const auto asked = xcb_randr_get_output_info(connection, output, XCB_CURRENT_TIME);
        const auto info = OwnReply(xcb_randr_get_output_info_reply(connection, asked, nullptr));
        if (!info) return false;
        const auto* const name = reinterpret_cast<const char*>(xcb_randr_get_output_info_name(info.get()));
        return std::string_view(name, info->name_len).starts_with("XWAYLAND");
    });
}

bool NamesADevice(xcb_connection_t* connection) {
    const auto* const extension = xcb_get_extension_data(connection, &xcb_input_id);
    if (extension == nullptr || !extension->present) return false;
    const auto version = xcb_input_xi_query_version(connection, 2, 0);
    if (!OwnReply(xcb_input_xi_query_version_reply(connection, version, nullptr))) return false;
    const auto question = xcb_input_xi_query_device(connection, XCB_INPUT_DEVICE_ALL);
    const auto reply = OwnReply(xcb_input_xi_query_device_reply(connection, question, nullptr));
    if (!reply) return false;
    for (auto device = xcb_input_xi_query_device_infos_iterator(reply.get()); device.rem > 0;
         xcb_input_xi_device_info_next(&device)) {
        const std::string_view name(xcb_input_xi_device_info_name(device.data), device.data->name_len);
        if (name.starts_with("xwayland-")) return true;
    }
    return false;
}

}  // namespace

bool IsXwayland(xcb_connection_t* connection) {
    if (xcb_connection_has_error(connection)) return false;
    return HasItsExtension(connection) || NamesAnOutput(connection) || NamesADevice(connection);
}

}  // namespace orvelle
