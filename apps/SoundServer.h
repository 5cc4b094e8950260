// The user's sound server to the panel: its devices and the two mixers over it. It is sought at the start, and again
// whenever its socket appears. Held by the outside, which chooses who serves.
#pragma once

#include <functional>
#include <optional>

#include "adapters/linux/FileWatch.h"
#include "adapters/pulse/PulseConnection.h"
#include "adapters/pulse/PulseDevices.h"
#include "adapters/pulse/PulseMixer.h"

namespace orvelle {

class SoundServer {
    pulse::PulseConnection connection;

public:
    explicit SoundServer(EventLoop& eventLoop);

    // Acts once it is known whether there is a server, with all its devices; at once where that is so. A server that is
    // slow to answer is awaited for a second.
    void WhenKnown(std::function<void()> act);
    // The server is there for the first time, with all its devices.
    Event<> Came;

    pulse::PulseDevices Devices;
    pulse::PulseMixer Headset;  // with the microphone
    pulse::PulseMixer Speakers;

private:
    void Look();
    void Act();

    EventLoop& loop;
    std::optional<linux::FileWatch> socket;  // not where the server is on another computer
    std::function<void()> awaiting;
    bool hasCome = false;
    Ticket watch, patience;
};

}  // namespace orvelle
