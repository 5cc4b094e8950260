#include "adapters/mumble/VoiceRooms.h"

#include <algorithm>
#include <set>
#include <utility>

#include "adapters/mumble/RoomConnection.h"

namespace orvelle::mumble {

struct VoiceRooms::Kept {
    explicit Kept(const std::filesystem::path& folder)
        : Known(folder / "known-servers"), Passwords(folder / "server-passwords") {}

    KnownServers Known;
    ServerPasswords Passwords;
    std::set<std::string> Asked;  // servers whose password the user is asked for
};

VoiceRooms::VoiceRooms(EventLoop& loop, const std::filesystem::path& folder, VoiceRoad road)
    : kept(std::make_unique<Kept>(folder)) {
    for (Long number = 0; number < Rooms; ++number) {
        const std::string certificate = "room-" + std::to_string(number + 1) + ".pem";
        rooms.at(static_cast<std::size_t>(number)) =
            std::make_unique<RoomConnection>(loop, folder / certificate, kept->Known, kept->Passwords, road);
        Wire(number);
    }
}

VoiceRooms::~VoiceRooms() = default;

void VoiceRooms::Wire(Long number) {
    RoomConnection& room = *At(number);
    room.Joined = [this, number] { Joined(number); };
    room.Failed = [this, number] { Failed(number); };
    room.Kicked = [this, number] { Kicked(number); };
    room.Left = [this, number] { Left(number); };
    room.StatusChanged = [this, number](const std::string& text) { StatusChanged(number, text); };
    room.SpeakerGone = [this, number](std::uint32_t speaker) { SpeakerGone(number, speaker); };
    room.Heard = [this, number, &room](const speech::HeardVoice& voice) {
        if (room.IsEcho() || !IsOurs(room, voice.Speaker)) Heard(number, voice);
    };
    room.PasswordWanted = [this, &room](PasswordQuestion question) {
        const std::string server = room.AskedServer();
        if (kept->Asked.insert(server).second) PasswordWanted(server, question);
    };
}

void VoiceRooms::Join(Long room, const std::string& clientName, const RoomAddress& address) {
    if (RoomConnection* const place = At(room)) place->Join(address, UserName(clientName, room));
}

void VoiceRooms::Leave(Long room) {
    if (RoomConnection* const place = At(room)) place->Leave();
}

void VoiceRooms::Mute(Long room, bool mute) {
    if (RoomConnection* const place = At(room)) place->Mute(mute);
}

bool VoiceRooms::IsSpeechWanted() const {
    return std::ranges::any_of(rooms, [](const Room& room) { return room->IsSpeechWanted(); });
}

void VoiceRooms::Send(std::span<const std::uint8_t> opus, Squelched squelched) {
    for (const Room& room : rooms) room->Send(opus, squelched);
}

void VoiceRooms::GivePassword(const std::string& server, const std::optional<std::string>& password) {
    using Answer = RoomConnection::PasswordAnswer;
    kept->Asked.erase(server);
    if (password) kept->Passwords.Try(server, *password);
    for (const Room& room : rooms)
        if (room->AskedServer() == server) room->TakeAnswer(password ? Answer::Given : Answer::None);
}

RoomConnection* VoiceRooms::At(Long room) const {
    return room >= 0 && room < Rooms ? rooms.at(static_cast<std::size_t>(room)).get() : nullptr;
}

bool VoiceRooms::IsOurs(const RoomConnection& heardIn, std::uint32_t speaker) const {
    return std::ranges::any_of(rooms,
                               [who = heardIn.OfSpeaker(speaker)](const Room& room) { return room->Own() == who; });
}

}  // namespace orvelle::mumble
