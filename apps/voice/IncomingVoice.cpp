#include "apps/voice/IncomingVoice.h"

namespace orvelle {

IncomingVoice::IncomingVoice(EventLoop& loop) {
    for (Long room = 0; room < Rooms; ++room) {
        auto& place = places.at(static_cast<std::size_t>(room));
        place = std::make_unique<Place>(loop);
        place->Activity.Started = [this, room] { AudioStarted(room); };
        place->Activity.Stopped = [this, room] { AudioStopped(room); };
    }
}

void IncomingVoice::Route(Long room, Long output, bool on) {
    Of(room).Routes.at(static_cast<std::size_t>(output)) = on;
    FollowRoutes();
}

void IncomingVoice::Join(Long room, const mumble::RoomAddress& address) {
    Of(room).Joined = address;
    // What was played of another channel before, or is played by this room from now on.
    for (Long each = 0; each < Rooms; ++each)
        if (each == room || PlayedBy(each) != each)
            for (speech::OutputMix& mix : mixes) mix.Forget(each);
    FollowRoutes();
}

void IncomingVoice::Leave(Long room) {
    Of(room).Joined.reset();
    Of(room).Activity.Forget();
    for (speech::OutputMix& mix : mixes) mix.Forget(room);
    FollowRoutes();
}

void IncomingVoice::Hear(Long room, const speech::HeardVoice& packet) {
    if (!Of(room).Joined) return;
    if (PlayedBy(room) == room)
        for (speech::OutputMix& mix : mixes) mix.Put(room, packet);
    Of(room).Activity.Hear(packet);
}

void IncomingVoice::Forget(Long room, std::uint32_t speaker) {
    for (speech::OutputMix& mix : mixes) mix.Forget(room, speaker);
    Of(room).Activity.Forget(speaker);
}

Long IncomingVoice::PlayedBy(Long room) const {
    if (!Of(room).Joined) return room;
    Long first = 0;
    while (first < room && Of(first).Joined != Of(room).Joined) ++first;
    return first;
}

void IncomingVoice::FollowRoutes() {
    for (Long output = 0; output < Outputs; ++output) {
        std::array<bool, Rooms> isHeard{};
        for (Long room = 0; room < Rooms; ++room)
            isHeard.at(static_cast<std::size_t>(PlayedBy(room))) |=
                Of(room).Routes.at(static_cast<std::size_t>(output));
        for (Long room = 0; room < Rooms; ++room) Mix(output).Route(room, isHeard.at(static_cast<std::size_t>(room)));
    }
}

}  // namespace orvelle
