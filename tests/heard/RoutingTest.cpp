// Who is heard where: three rooms, each with a speaker of another tone, at a listener with two outputs.
#include <array>
#include <iostream>

#include "tests/heard/EngineRig.h"

namespace orvelle::heard {

using linux::WaitUntil;

namespace {

constexpr std::array<double, 3> RoomHertz{600, 1100, 1700};
constexpr int Listener = 3;
constexpr int Settings = 64;  // three rooms at two outputs

class RoutingTest : public EngineRig {
protected:
    RoutingTest() : EngineRig(4) {}

    static bool IsRouted(int setting, int room, int output) { return ((setting >> (room * 2 + output)) & 1) != 0; }

    // Which of the tones are heard at an output now; a bit for each room.
    int HeardAt(int output) {
        int rooms = 0;
        for (int room = 0; room < 3; ++room)
            if (IsHeardNow(Ear(Listener, output), RoomHertz[static_cast<std::size_t>(room)])) rooms |= 1 << room;
        return rooms;
    }
};

}  // namespace

TEST_F(RoutingTest, EachRoomIsHeardWhereItIsRoutedAndNowhereElse) {
    Trial listener(Listener);
    std::array<std::unique_ptr<Trial>, 3> speakers;
    for (int room = 0; room < 3; ++room) {
        const std::string address = server.Room("room" + std::to_string(room));
        auto& speaker = speakers[static_cast<std::size_t>(room)];
        speaker = std::make_unique<Trial>(room);
        ASSERT_TRUE(speaker->Join(0, address)) << speaker->Told();
        listener.Say("join " + std::to_string(room) + " LISTENER " + address);
        ASSERT_TRUE(listener.Await("joined " + std::to_string(room))) << listener.Told();
        probe.Play(Mouth(room), pulse::Tone(RoomHertz[static_cast<std::size_t>(room)], 1000, 0.1),
                   pulse::Playing::AgainAndAgain);
        speaker->Say("mute 0 0");
    }
    for (const int output : {0, 1}) probe.Record(Ear(Listener, output));
    for (int setting = 0; setting < Settings; ++setting) {
        for (int room = 0; room < 3; ++room)
            for (const int output : {0, 1})
                listener.Say("route " + std::to_string(room) + " " + std::to_string(output) + " " +
                             std::to_string(IsRouted(setting, room, output)));
        std::array<int, 2> wished{};
        for (int room = 0; room < 3; ++room)
            for (const int output : {0, 1})
                if (IsRouted(setting, room, output)) wished[static_cast<std::size_t>(output)] |= 1 << room;
        const bool isSo = WaitUntil([&] { return HeardAt(0) == wished[0] && HeardAt(1) == wished[1]; });
        EXPECT_TRUE(isSo) << "setting " << setting << ": headset " << HeardAt(0) << " of " << wished[0] << ", speakers "
                          << HeardAt(1) << " of " << wished[1];
        if (!isSo) break;
        for (const int output : {0, 1}) probe.Take(Ear(Listener, output));
    }
}

}  // namespace orvelle::heard
