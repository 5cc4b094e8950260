#include "adapters/x11/WindowOwner.h"

#include <xcb/res.h>

#include <sstream>
#include <string_view>

#include "adapters/x11/XReply.h"

namespace orvelle {

namespace {

constexpr std::string_view ProcessProperty = "_NET_WM_PID";
constexpr std::uint32_t LongestText = 256;  // in units of four bytes
// The version of the resource extension that tells processes.
constexpr std::uint8_t Major = 1;
constexpr std::uint8_t Minor = 2;

}  // namespace

WindowOwner::WindowOwner(xcb_connection_t* connection) : connection(connection) {
    const auto question =
        xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(ProcessProperty.size()), ProcessProperty.data());
    if (const auto reply = OwnReply(xcb_intern_atom_reply(connection, question, nullptr))) processId = reply->atom;
    const xcb_query_extension_reply_t* const resources = xcb_get_extension_data(connection, &xcb_res_id);
    if (!resources || !resources->present) return;
    const auto version =
        OwnReply(xcb_res_query_version_reply(connection, xcb_res_query_version(connection, Major, Minor), nullptr));
    knowsClients = version && (version->server_major > Major || version->server_minor >= Minor);
}

std::vector<pid_t> WindowOwner::ProcessesOf(xcb_window_t window) const {
    std::vector<pid_t> processes;
    const pid_t known = KnownToServer(window);
    const pid_t named = NamedByWindow(window);
    if (known > 0) processes.push_back(known);
    if (named > 0 && named != known) processes.push_back(named);
    return processes;
}

std::vector<std::string> WindowOwner::NamesOf(xcb_window_t window) const {
    std::vector<std::string> names;
    std::istringstream classes(Text(window, XCB_ATOM_WM_CLASS));
    for (std::string name; std::getline(classes, name, '\0');) names.push_back(name);
    names.push_back(Text(window, XCB_ATOM_WM_NAME));
    std::erase(names, "");
    return names;
}

pid_t WindowOwner::KnownToServer(xcb_window_t window) const {
    if (!knowsClients) return 0;
    const xcb_res_client_id_spec_t wanted{window, XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID};
    const auto question = xcb_res_query_client_ids(connection, 1, &wanted);
    const auto reply = OwnReply(xcb_res_query_client_ids_reply(connection, question, nullptr));
    if (!reply) return 0;
    for (auto id = xcb_res_query_client_ids_ids_iterator(reply.get()); id.rem > 0; xcb_res_client_id_value_next(&id))
        if (id.data->spec.mask == XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID &&
            xcb_res_client_id_value_value_length(id.data) == 1)
            return static_cast<pid_t>(*xcb_res_client_id_value_value(id.data));
    return 0;
}

pid_t WindowOwner::NamedByWindow(xcb_window_t window) const {
    const auto question = xcb_get_property(connection, 0, window, processId, XCB_ATOM_CARDINAL, 0, 1);
    const auto reply = OwnReply(xcb_get_property_reply(connection, question, nullptr));
    if (!reply || reply->format != 32 || reply->value_len != 1) return 0;
    return static_cast<pid_t>(*static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get())));
}

std::string WindowOwner::Text(xcb_window_t window, xcb_atom_t property) const {
    const auto question = xcb_get_property(connection, 0, window, property, XCB_GET_PROPERTY_TYPE_ANY, 0, LongestText);
    const auto reply = OwnReply(xcb_get_property_reply(connection, question, nullptr));
    if (!reply || reply->format != 8) return "";
    return {static_cast<const char*>(xcb_get_property_value(reply.get())), reply->value_len};
}

}  // namespace orvelle
