// orvelle-bare-relay from|to DISPLAY PORT IDENTITY KEY: the least that can bring keys from one display to another over
// a set-up's broker, as the floor beside which the programs are measured: raw key events are published as two bytes
// there, and struck here. No names, no rows, nothing that lets go of a key. Says READY on a line; runs until it is
// killed. bench/key-times runs it.
#include <mosquitto.h>
#include <mqtt_protocol.h>
#include <poll.h>
#include <xcb/xinput.h>

#include <functional>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "adapters/x11/XReply.h"
#include "adapters/x11/XTestConnection.h"

namespace orvelle {

namespace {

constexpr const char* Topic = "orvelle/1/c01/relay";  // of the identity that sends
constexpr int KeepAliveSeconds = 30;
constexpr int WaitMilliseconds = 1000;

void Check(int result) {
    if (result != MOSQ_ERR_SUCCESS) throw std::runtime_error(mosquitto_strerror(result));
}

// Over a library that has been begun.
class Client {
public:
    Client(int port, const std::string& identity, const std::string& key)
        : client(mosquitto_new(nullptr, true, this), mosquitto_destroy) {
        mosquitto_int_option(client.get(), MOSQ_OPT_PROTOCOL_VERSION, MQTT_PROTOCOL_V5);
        mosquitto_int_option(client.get(), MOSQ_OPT_TCP_NODELAY, 1);
        Check(mosquitto_tls_psk_set(client.get(), key.c_str(), identity.c_str(), nullptr));
        mosquitto_connect_callback_set(client.get(), [](mosquitto*, void* object, int reason) {
            static_cast<Client*>(object)->isUp = reason == 0;
        });
        mosquitto_message_callback_set(client.get(), [](mosquitto*, void* object, const mosquitto_message* message) {
            const auto* const bytes = static_cast<const char*>(message->payload);
            static_cast<Client*>(object)->Heard({bytes, static_cast<std::size_t>(message->payloadlen)});
        });
        Check(mosquitto_connect(client.get(), "127.0.0.1", port, KeepAliveSeconds));
        while (!isUp) Serve(WaitMilliseconds);
    }

    void Serve(int patience) { Check(mosquitto_loop(client.get(), patience, 1)); }
    void Subscribe() { Check(mosquitto_subscribe(client.get(), nullptr, Topic, 0)); }
    void Publish(const std::string& bytes) {
        Check(mosquitto_publish(client.get(), nullptr, Topic, static_cast<int>(bytes.size()), bytes.data(), 0, false));
    }
    int Descriptor() const { return mosquitto_socket(client.get()); }
    bool WantsToWrite() const { return mosquitto_want_write(client.get()); }

    std::function<void(const std::string&)> Heard = [](const std::string&) {};

private:
    std::unique_ptr<mosquitto, void (*)(mosquitto*)> client;
    bool isUp = false;
};

void TakeFromDisplay(const std::string& display, Client& client) {
    const std::unique_ptr<xcb_connection_t, void (*)(xcb_connection_t*)> owned(xcb_connect(display.c_str(), nullptr),
                                                                               xcb_disconnect);
    xcb_connection_t* const server = owned.get();
    const auto* const input = xcb_get_extension_data(server, &xcb_input_id);
    if (input == nullptr) throw std::runtime_error("no keys are told on " + display);
    OwnReply(xcb_input_xi_query_version_reply(server, xcb_input_xi_query_version(server, 2, 2), nullptr));
    const struct {
        xcb_input_event_mask_t Head;
        std::uint32_t Events;
    } mask{{XCB_INPUT_DEVICE_ALL_MASTER, 1},
           XCB_INPUT_XI_EVENT_MASK_RAW_KEY_PRESS | XCB_INPUT_XI_EVENT_MASK_RAW_KEY_RELEASE};
    xcb_input_xi_select_events(server, xcb_setup_roots_iterator(xcb_get_setup(server)).data->root, 1, &mask.Head);
    OwnReply(xcb_get_input_focus_reply(server, xcb_get_input_focus(server), nullptr));
    std::cout << "READY" << std::endl;
    while (xcb_connection_has_error(server) == 0) {
        while (const auto event = OwnReply(xcb_poll_for_event(server))) {
            const auto& key = reinterpret_cast<const xcb_input_raw_key_press_event_t&>(*event);
            if ((event->response_type & 0x7F) != XCB_GE_GENERIC || key.extension != input->major_opcode) continue;
            const bool isPress = key.event_type == XCB_INPUT_RAW_KEY_PRESS;
            client.Publish({isPress ? 'P' : 'R', static_cast<char>(key.detail)});
        }
        pollfd ready[] = {{xcb_get_file_descriptor(server), POLLIN, 0}, {client.Descriptor(), POLLIN, 0}};
        if (client.WantsToWrite()) ready[1].events |= POLLOUT;
        poll(ready, 2, WaitMilliseconds);
        // Also what keeps the connection alive.
        if (ready[1].revents != 0 || ready[0].revents == 0) client.Serve(0);
    }
}

void StrikeOnDisplay(const std::string& display, Client& client) {
    XTestConnection server(display);
    client.Heard = [&](const std::string& bytes) {
        if (bytes.size() != 2) return;
        server.Send(static_cast<unsigned char>(bytes[1]), bytes[0] == 'P' ? KeyStroke::Down : KeyStroke::Up);
    };
    client.Subscribe();
    client.Serve(WaitMilliseconds);
    std::cout << "READY" << std::endl;
    while (server.Problem().empty()) client.Serve(WaitMilliseconds);
}

void Relay(const std::vector<std::string>& arguments) {
    if (arguments.size() != 5) throw std::runtime_error("usage: orvelle-bare-relay from|to DISPLAY PORT IDENTITY KEY");
    mosquitto_lib_init();
    Client client(std::stoi(arguments[2]), arguments[3], arguments[4]);
    if (arguments[0] == "from")
        TakeFromDisplay(arguments[1], client);
    else
        StrikeOnDisplay(arguments[1], client);
}

}  // namespace

}  // namespace orvelle

int main(int argc, char** argv) {
    try {
        orvelle::Relay({argv + 1, argv + argc});
    } catch (const std::exception& error) {
        std::cerr << "orvelle-bare-relay: " << error.what() << "\n";
        return 1;
    }
}
