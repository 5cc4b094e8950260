// The level of one device, in percent of its full volume, between the user's hand and the sound server. Held by the
// device; told what the server says. The rule that keeps a slider with the hand: what the panel sets counts at once,
// one message is under way at a time and the newest level follows it; until half a second after the server has taken
// it, levels that others set wait. Then the server's own level counts.
#pragma once

#include <pulse/volume.h>

#include <functional>

#include "platform/EventLoop.h"

namespace orvelle::pulse {

constexpr Long FullLevel = 100;  // more than that, by another program, counts as full

class PulseLevel {
public:
    // `sendVolume` begins a message, whose answer is to be told to Receive; `whenChanged` is called inside the call
    // that changes the level.
    PulseLevel(EventLoop& loop, std::function<void(const pa_cvolume&)> sendVolume, std::function<void()> whenChanged);
    PulseLevel(const PulseLevel&) = delete;
    PulseLevel& operator=(const PulseLevel&) = delete;

    Long Percent() const { return percent; }
    // The panel's: 0 to 100. The channels keep their balance.
    void Set(Long newPercent);

    // The server's: its volume as it is now, and that it has taken what was sent, or refused it.
    void Hear(const pa_cvolume& volume);
    void Receive();

private:
    void SendWanted();
    void Follow();

    EventLoop& loop;
    const std::function<void(const pa_cvolume&)> send;
    const std::function<void()> changed;
    Long percent = 0;
    pa_cvolume heard{};
    pa_cvolume sent{};
    pa_cvolume balance{};  // the channels to one another; what is silent or was rounded has lost it
    bool isWanted = false;
    bool isUnderWay = false;
    bool isFresh = false;
    Ticket settling;
};

}  // namespace orvelle::pulse
