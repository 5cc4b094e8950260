// What is heard of the rooms: from their packets to the blocks of the two outputs, and which rooms carry audio. A room
// that is in the same channel as a joined one before it is played by that one, at all outputs of both, as everything
// would be heard twice else. Held by the voice thread's work.
#pragma once

#include <array>
#include <memory>
#include <optional>

#include "adapters/mumble/RoomAddress.h"
#include "adapters/speech/OutputMix.h"
#include "adapters/speech/RoomActivity.h"
#include "platform/Event.h"
#include "platform/EventLoop.h"
#include "platform/VoiceEngine.h"

namespace orvelle {

class IncomingVoice {
public:
    static constexpr Long Outputs = 2;

    explicit IncomingVoice(EventLoop& loop);

    // For its volumes and the like, the routes are set here.
    speech::OutputMix& Mix(Long output) { return mixes.at(static_cast<std::size_t>(output)); }
    void Route(Long room, Long output, bool on);

    void Join(Long room, const mumble::RoomAddress& address);
    void Leave(Long room);
    // Of a room that is joined; else nothing is heard.
    void Hear(Long room, const speech::HeardVoice& packet);
    void Forget(Long room, std::uint32_t speaker);
    // The output's next ten milliseconds.
    void Take(Long output, speech::Block& block) { Mix(output).Take(block); }

    // Also of a room that another one plays, or that is routed nowhere.
    Event<Long> AudioStarted;
    Event<Long> AudioStopped;

private:
    struct Place {
        explicit Place(EventLoop& loop) : Activity(loop) {}

        std::optional<mumble::RoomAddress> Joined;
        std::array<bool, Outputs> Routes{};  // as the panel set them
        speech::RoomActivity Activity;
    };

    Place& Of(Long room) { return *places.at(static_cast<std::size_t>(room)); }
    const Place& Of(Long room) const { return *places.at(static_cast<std::size_t>(room)); }
    Long PlayedBy(Long room) const;
    void FollowRoutes();

    std::array<speech::OutputMix, Outputs> mixes;
    std::array<std::unique_ptr<Place>, Rooms> places;
};

}  // namespace orvelle
