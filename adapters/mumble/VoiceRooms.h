// The three voice rooms at their servers, a connection each: joined, left, kept, and joined again when the server comes
// back. Lives on the voice thread; everything it does waits in its loop. What a room's user should know is its status,
// a sentence. Every attempt has one outcome, Joined or Failed, unless the room is left before.
//
// A room that is lost says "Reconnecting" and has Left after two seconds; when it is there again it has Joined, without
// being asked; one that is back sooner has neither. A kick, a refusal and a denial are final. A change of channel on
// the same server keeps the connection.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <string>

#include "adapters/mumble/RoomAddress.h"
#include "adapters/speech/HeardVoice.h"
#include "platform/Event.h"
#include "platform/EventLoop.h"
#include "platform/PasswordQuestion.h"
#include "platform/VoiceEngine.h"

namespace orvelle::mumble {

enum class VoiceRoad { Best, TunnelOnly };  // Best: encrypted UDP, the TLS tunnel where that does not pass

class RoomConnection;

class VoiceRooms {
public:
    // `folder` keeps, mode 0600, this user's certificates, the servers' at first sight and their passwords.
    VoiceRooms(EventLoop& loop, const std::filesystem::path& folder, VoiceRoad road = VoiceRoad::Best);
    VoiceRooms(const VoiceRooms&) = delete;
    VoiceRooms& operator=(const VoiceRooms&) = delete;
    ~VoiceRooms();

    // Leaves first where it was in another room. `clientName` is the panel's.
    void Join(Long room, const std::string& clientName, const RoomAddress& address);
    // Left follows if the room was joined; a join under way is given up without an event.
    void Leave(Long room);
    // As first: muted.
    void Mute(Long room, bool mute);

    // Whether a block of the microphone is needed: a room that is joined is open, or its talk has not been ended yet.
    bool IsSpeechWanted() const;
    // The microphone's next block, encoded. It goes to each room that is joined and open; a room that is open no more
    // gets it as its talk's last one, and so does every talk where it does not pass the squelch.
    enum class Squelched { No, Yes };
    void Send(std::span<const std::uint8_t> opus, Squelched squelched);

    // The answer to PasswordWanted; none gives up.
    void GivePassword(const std::string& server, const std::optional<std::string>& password);

    Event<Long> Joined;
    Event<Long> Failed;
    Event<Long> Kicked;
    Event<Long> Left;
    Event<Long, const std::string&> StatusChanged;
    // Of others; of this user's own connections in the echo alone.
    Event<Long, const speech::HeardVoice&> Heard;
    Event<Long, std::uint32_t> SpeakerGone;
    // The server asks for a password that it did not have from us; asked by one room for all at that server, and again
    // where the answer is wrong, until it is none.
    Event<const std::string&, PasswordQuestion> PasswordWanted;

private:
    struct Kept;
    using Room = std::unique_ptr<RoomConnection>;

    void Wire(Long number);
    RoomConnection* At(Long room) const;
    bool IsOurs(const RoomConnection& heardIn, std::uint32_t speaker) const;

    std::unique_ptr<Kept> kept;
    std::array<Room, Rooms> rooms;
};

}  // namespace orvelle::mumble
