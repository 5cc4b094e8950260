// Whether somebody is talking in a room, by fact: from a speaker's first packet to the last one of the talk, or until
// none came for 120 ms. Also for a room that is routed nowhere. Held by the voice thread for each room.
#pragma once

#include <cstdint>
#include <map>

#include "adapters/speech/HeardVoice.h"
#include "platform/Event.h"
#include "platform/EventLoop.h"

namespace orvelle::speech {

constexpr Long SilenceEndsTalk = 120;  // milliseconds

class RoomActivity {
public:
    explicit RoomActivity(EventLoop& loop);

    void Hear(const HeardVoice& packet);
    void Forget(std::uint32_t speaker);
    // Nobody is in the room any more; raises Stopped inside the call where somebody talked.
    void Forget();
    bool IsActive() const { return !talking.empty(); }

    Event<> Started;
    Event<> Stopped;

private:
    EventLoop& loop;
    std::map<std::uint32_t, Ticket> talking;  // by speaker, each with the end of patience
};

}  // namespace orvelle::speech
