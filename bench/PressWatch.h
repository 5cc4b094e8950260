// When a display's keys go down and up, whoever strikes them, from a thread of its own: the moment is taken as soon as
// the X server's word is there. A window of its own has the keys meanwhile, in place of the program that they are meant
// for, so that no window of the measured programs has work by them. Throws std::runtime_error where there is no such
// display.
#pragma once

#include <xcb/xcb.h>

#include <chrono>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace orvelle {

class PressWatch {
public:
    using Moments = std::vector<std::chrono::steady_clock::time_point>;

    explicit PressWatch(const std::string& display);

    Moments Presses() const;
    Moments Releases() const;
    // From now on; what came before is forgotten.
    void Begin();
    // That the server holds down now.
    int KeysDown();

private:
    struct Disconnect {
        void operator()(xcb_connection_t* server) const { xcb_disconnect(server); }
    };

    void TakeKeys();
    void Watch(const std::stop_token& end);
    void Take(const xcb_generic_event_t& event);

    std::unique_ptr<xcb_connection_t, Disconnect> connection;
    std::uint8_t inputExtension = 0;
    mutable std::mutex taking;
    Moments presses;
    Moments releases;
    std::jthread watching;  // goes before all that it uses
};

}  // namespace orvelle
