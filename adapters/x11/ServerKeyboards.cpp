#include "adapters/x11/ServerKeyboards.h"

#include <xcb/xinput.h>

#include <string_view>

#include "adapters/x11/XReply.h"

namespace orvelle {

namespace {

// What the server marks the devices of its test extension with; their names may be anything.
constexpr std::string_view TestDeviceProperty = "XTEST Device";

}  // namespace

ServerKeyboards::ServerKeyboards(xcb_connection_t* connection) : connection(connection) {
    const auto question = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(TestDeviceProperty.size()),
                                          TestDeviceProperty.data());
    if (const auto reply = OwnReply(xcb_intern_atom_reply(connection, question, nullptr))) testDevice = reply->atom;
    Read();
}

void ServerKeyboards::Read() {
    maker.clear();
    const auto question = xcb_input_xi_query_device(connection, XCB_INPUT_DEVICE_ALL);
    const auto reply = OwnReply(xcb_input_xi_query_device_reply(connection, question, nullptr));
    if (!reply) return;
    for (auto device = xcb_input_xi_query_device_infos_iterator(reply.get()); device.rem > 0;
         xcb_input_xi_device_info_next(&device))
        if (device.data->type == XCB_INPUT_DEVICE_TYPE_SLAVE_KEYBOARD)
            maker[device.data->deviceid] = MakerOf(device.data->deviceid);
}

ServerKeyboards::Maker ServerKeyboards::MakerOf(int device) const {
    const auto id = static_cast<xcb_input_device_id_t>(device);
    const auto question = xcb_input_xi_get_property(connection, id, 0, testDevice, XCB_GET_PROPERTY_TYPE_ANY, 0, 1);
    const auto reply = OwnReply(xcb_input_xi_get_property_reply(connection, question, nullptr));
    if (!reply || reply->format != 8 || reply->num_items != 1) return Maker::User;
    const auto* const value = static_cast<const std::uint8_t*>(xcb_input_xi_get_property_items(reply.get()));
    return *value != 0 ? Maker::TestExtension : Maker::User;
}

std::vector<int> ServerKeyboards::All() const {
    std::vector<int> devices;
    for (const auto& [device, made] : maker)
        if (made == Maker::User) devices.push_back(device);
    return devices;
}

std::vector<int> ServerKeyboards::KeysDown(int device) const {
    const auto question = xcb_input_query_device_state(connection, static_cast<std::uint8_t>(device));
    const auto reply = OwnReply(xcb_input_query_device_state_reply(connection, question, nullptr));
    std::vector<int> keys;
    if (!reply) return keys;
    for (auto input = xcb_input_query_device_state_classes_iterator(reply.get()); input.rem > 0;
         xcb_input_input_state_next(&input)) {
        if (input.data->class_id != XCB_INPUT_INPUT_CLASS_KEY) continue;
        const auto& state = *reinterpret_cast<const xcb_input_key_state_t*>(input.data);
        for (int keyCode = 0; keyCode < 8 * static_cast<int>(sizeof state.keys); ++keyCode)
            if (state.keys[keyCode / 8] & (1 << (keyCode % 8))) keys.push_back(keyCode);
    }
    return keys;
}

}  // namespace orvelle
