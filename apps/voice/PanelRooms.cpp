#include "apps/voice/PanelRooms.h"

#include <algorithm>
#include <utility>

namespace orvelle {

namespace {

constexpr std::array<const char*, Rooms> RoomNames{"COM1", "COM2", "The private room"};

}  // namespace

PanelRooms::PanelRooms(const VoiceEngineControl& eventsOf, Raise raiseEvent)
    : engine(eventsOf), raise(std::move(raiseEvent)) {}

VoiceRoom* PanelRooms::Find(Long room) { return room >= 0 && room < Rooms ? &Of(room) : nullptr; }

unsigned long PanelRooms::Join(Long room, const std::string& clientName, const std::string& address) {
    VoiceRoom& place = Of(room);
    place.ClientName = clientName;
    place.Address = address;
    place.Presence = RoomPresence::Joining;
    return ++AttemptOf(room);
}

void PanelRooms::Refuse(Long room, const std::string& clientName, const std::string& address,
                        const std::string& sentence) {
    Of(room).ClientName = clientName;
    Of(room).Address = address;
    SetStatus(room, sentence);
    TellWhy(room);
}

// Who is on the way back in when the event comes has not left: told late, it would pass for the end of the new join.
void PanelRooms::Leave(Long room) {
    ++AttemptOf(room);
    const bool wasIn = Of(room).Presence == RoomPresence::In;
    GoOut(room);
    SetStatus(room, "");
    if (wasIn) RaiseUnlessGivenUp(engine.VVL_RoomLeft, room);
}

// A room that is lost is left, and may be joined again without being asked.
void PanelRooms::Take(const RoomNews& news) {
    if (!Find(news.Room) || news.Attempt != AttemptOf(news.Room)) return;
    VoiceRoom& place = Of(news.Room);
    switch (news.What) {
        case RoomHappening::Joined:
            if (std::exchange(place.Presence, RoomPresence::In) == RoomPresence::In) return;
            told.at(static_cast<std::size_t>(news.Room)).clear();
            FollowAudio();
            return RaiseUnlessGivenUp(engine.VVL_RoomJoinSucceed, news.Room);
        case RoomHappening::Failed:
            GoOut(news.Room);
            TellWhy(news.Room);
            return RaiseUnlessGivenUp(engine.VVL_RoomJoinFailed, news.Room);
        case RoomHappening::Kicked:
            GoOut(news.Room);
            TellWhy(news.Room);
            return RaiseUnlessGivenUp(engine.VVL_RoomKicked, news.Room);
        case RoomHappening::Left:
            // Else it is of the room before this one, which the panel left itself.
            if (place.Presence != RoomPresence::In) return;
            GoOut(news.Room);
            return RaiseUnlessGivenUp(engine.VVL_RoomLeft, news.Room);
        case RoomHappening::AudioStarted:
            return SetAudio(news.Room, place.Presence == RoomPresence::In);
        case RoomHappening::AudioStopped:
            return SetAudio(news.Room, false);
        case RoomHappening::StatusChanged:
            return SetStatus(news.Room, news.Status);
    }
}

void PanelRooms::Clear() {
    for (VoiceRoom& room : rooms) {
        room.Presence = RoomPresence::Out;
        room.Audio = false;
        room.Status = "";
    }
    for (unsigned long& attempt : attempts) ++attempt;
    audioRuns = false;
}

void PanelRooms::GoOut(Long room) {
    SetAudio(room, false);
    Of(room).Presence = RoomPresence::Out;
    FollowAudio();
}

void PanelRooms::SetAudio(Long room, bool on) {
    if (std::exchange(Of(room).Audio, on) == on) return;
    RaiseFor(on ? engine.VVL_RoomAudioStarted : engine.VVL_RoomAudioStopped, room);
}

void PanelRooms::SetStatus(Long room, const std::string& status) {
    if (std::exchange(Of(room).Status, status) != status) RaiseFor(engine.VVL_RoomStatusChanged, room);
}

// A room that can't be had is tried again and again by the panel.
void PanelRooms::TellWhy(Long room) {
    const std::string& why = Of(room).Status;
    if (std::exchange(told.at(static_cast<std::size_t>(room)), why) == why || why.empty()) return;
    raise([this, sentence = RoomNames.at(static_cast<std::size_t>(room)) + (": " + why)] { Told(sentence); });
}

// The engine's audio runs from the first room joined to the last one left.
void PanelRooms::FollowAudio() {
    const bool wanted =
        std::ranges::any_of(rooms, [](const VoiceRoom& room) { return room.Presence == RoomPresence::In; });
    if (std::exchange(audioRuns, wanted) == wanted) return;
    raise([&event = wanted ? engine.VVL_AudioStarted : engine.VVL_AudioStopped] { event(); });
}

void PanelRooms::RaiseFor(const Event<Long>& event, Long room) {
    raise([&event, room] { event(room); });
}

void PanelRooms::RaiseUnlessGivenUp(const Event<Long>& event, Long room) {
    raise([this, &event, room, attempt = AttemptOf(room)] {
        if (attempt == AttemptOf(room)) event(room);
    });
}

}  // namespace orvelle
