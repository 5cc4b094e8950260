// Whether somebody is talking in a room, by fact: from a speaker's first packet to the last one of the talk, or until
// none came for 120 ms. Also for a room that is routed nowhere. Held by the voice thread for each room.
#pragma once

#include <cstdint>
#include <map>

#include "adapters/speech/HeardVoice.h"
#include "platform/Event.h"
#include "platform/EventLoop.h"
#include "platform/Ticket.h"
#include "platform/Types.h"

namespace orvelle::speech {

constexpr Long SilenceEndsTalk = 120;  // milliseconds

class RoomActivity {
public:
    explicit RoomActivity(EventLoop& loop);

    void Hear(const HeardVoice& packet);
    // Both raise Stopped inside the call where only those who are forgotten talked.
    void Forget(std::uint32_t speaker);
    void Forget();  // nobody is in the room any more
    bool IsActive() const { return talking > 0; }

    Event<> Started;
    Event<> Stopped;

private:
    struct Talk {
        bool HasEnded = false;   // kept for a while, as packets that came out of order begin no new talk
        std::uint64_t Last = 0;  // the number that ended it
        Ticket Patience;
    };

    void End(Talk& talk);
    void TellOfChange();

    EventLoop& loop;
    std::map<std::uint32_t, Talk> talks;  // by speaker
    std::size_t talking = 0;
    bool told = false;
};

}  // namespace orvelle::speech
