// The voice engine's work, on the voice thread: the rooms at their servers, the streams at the sound server, and what
// is spoken between the two. The devices are open while a room is joined, and for a moment longer. Everything is set by
// the panel's side, in the panel's own numbers, all of which are there; what comes of it is told by the events, on this
// thread.
#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <string>

#include "adapters/mumble/VoiceRooms.h"
#include "adapters/pulse/VoiceStreams.h"
#include "apps/voice/IncomingVoice.h"
#include "apps/voice/OutgoingVoice.h"
#include "apps/voice/RoomNews.h"

namespace orvelle {

struct DeviceNews {
    bool InputFailed = false;  // it is wanted and does not work
    std::array<bool, 2> OutputFailed{};

    bool operator==(const DeviceNews&) const = default;
};

class VoiceWork {
public:
    VoiceWork(EventLoop& eventLoop, const std::filesystem::path& folder);
    VoiceWork(const VoiceWork&) = delete;
    VoiceWork& operator=(const VoiceWork&) = delete;

    pulse::VoiceStreams& Streams() { return streams; }
    IncomingVoice& Incoming() { return incoming; }
    OutgoingVoice& Outgoing() { return outgoing; }

    // What is told of the room from now on bears this number.
    void Join(Long room, unsigned long attempt, const std::string& clientName, const mumble::RoomAddress& address);
    void Leave(Long room) { rooms.Leave(room); }
    void Mute(Long room, bool mute) { rooms.Mute(room, mute); }
    void GivePassword(const std::string& server, const std::optional<std::string>& password) {
        rooms.GivePassword(server, password);
    }

    Event<const RoomNews&> RoomChanged;
    Event<const DeviceNews&> DevicesChanged;
    Event<const std::string&, PasswordQuestion> PasswordWanted;

private:
    struct Place {
        unsigned long Attempt = 0;
        mumble::RoomAddress Address;
        bool IsIn = false;
    };

    Place& At(Long room) { return places.at(static_cast<std::size_t>(room)); }
    void Tell(Long room, RoomHappening what, const std::string& status = "");
    void TakeIn(Long room);
    void TakeOut(Long room, RoomHappening why);
    void FollowRooms();
    void OpenDevices();
    void CloseDevices();
    void FollowDevices();

    EventLoop& loop;
    mumble::VoiceRooms rooms;
    pulse::VoiceStreams streams;
    IncomingVoice incoming;
    OutgoingVoice outgoing{rooms};
    std::array<Place, Rooms> places;
    bool areDevicesOpen = false;
    bool areDevicesAwaited = false;  // just opened, so that what does not work yet is not told
    DeviceNews told;
    Ticket opening, closing;
};

}  // namespace orvelle
