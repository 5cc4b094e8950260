#include "tests/mumble/PlayedPilot.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

#include "tests/linux/ServeUntil.h"

namespace orvelle::mumble {

PlayedPilot::PlayedPilot(linux::PollEventLoop& usedLoop, std::string name, VoiceRoad usedRoad)
    : loop(usedLoop), callsign(std::move(name)), road(usedRoad) {
    Make();
}

void PlayedPilot::Make() {
    Rooms = std::make_unique<VoiceRooms>(loop, Folder.Path, road);
    const auto tell = [this](const char* what) {
        return [this, what](Long room) { Told.push_back(what + std::string(" ") + std::to_string(room)); };
    };
    Rooms->Joined = tell("joined");
    Rooms->Failed = tell("failed");
    Rooms->Kicked = tell("kicked");
    Rooms->Left = tell("left");
    Rooms->StatusChanged = [this](Long room, const std::string& text) {
        Statuses.push_back(std::to_string(room) + " " + text);
    };
    Rooms->Heard = [this](Long room, const speech::HeardVoice& voice) {
        Heard.push_back(std::to_string(room) + " " + std::string(voice.Opus.begin(), voice.Opus.end()) +
                        (voice.IsLast ? "." : ""));
    };
    Rooms->SpeakerGone = [this](Long room, std::uint32_t) { Heard.push_back(std::to_string(room) + " gone"); };
    Rooms->PasswordWanted = [this](const std::string& server, PasswordQuestion question) {
        Told.push_back((question == PasswordQuestion::First ? "password " : "another password ") + server);
        if (!Password) return;
        const auto answer = question == PasswordQuestion::First ? Password : std::exchange(NextPassword, std::nullopt);
        loop.Post([this, server, answer] { Rooms->GivePassword(server, answer); });
    };
}

void PlayedPilot::Restart() {
    Rooms.reset();
    Make();
}

void PlayedPilot::Join(Long room, const std::string& address) {
    std::string why;
    const std::optional<RoomAddress> place = ReadRoomAddress(address, why);
    ASSERT_TRUE(place) << why;
    Rooms->Join(room, callsign, *place);
}

std::string PlayedPilot::JoinAndWait(Long room, const std::string& address) {
    const std::size_t before = Told.size();
    const std::string number = " " + std::to_string(room);
    std::string outcome;
    Join(room, address);
    Until([&] {
        for (std::size_t at = before; at < Told.size(); ++at)
            if (Told[at] == "joined" + number || Told[at] == "failed" + number)
                outcome = Told[at].substr(0, Told[at].find(' '));
        return !outcome.empty();
    });
    return outcome;
}

void PlayedPilot::Say(const std::string& text, VoiceRooms::Squelched squelched) {
    const std::vector<std::uint8_t> opus(text.begin(), text.end());
    Rooms->Send(opus, squelched);
}

bool PlayedPilot::Until(const std::function<bool()>& isSo) const { return linux::ServeUntil(loop, isSo); }

bool PlayedPilot::HasTold(const std::string& what, int times) const { return std::ranges::count(Told, what) >= times; }

bool PlayedPilot::WaitFor(const std::string& what, int times) const {
    return Until([&] { return HasTold(what, times); });
}

bool PlayedPilot::HasHeard(const std::string& what) const { return std::ranges::find(Heard, what) != Heard.end(); }

bool PlayedPilot::WaitToHear(const std::string& what) {
    return Until([&] { return HasHeard(what); });
}

std::string PlayedPilot::Status(Long room) const {
    const std::string beginning = std::to_string(room) + " ";
    for (auto status = Statuses.rbegin(); status != Statuses.rend(); ++status)
        if (status->starts_with(beginning)) return status->substr(beginning.size());
    return "";
}

}  // namespace orvelle::mumble
