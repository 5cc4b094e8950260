// The three rooms as the panel knows them, on its thread: what it set, what came of it, and the events of that. Each
// join has a number, so that what is told of one that was given up is dropped. Every event is raised later, in order,
// by what the owner hands over. Held by the voice engine.
#pragma once

#include <array>
#include <functional>
#include <string>

#include "apps/voice/RoomNews.h"
#include "platform/Event.h"
#include "platform/VoiceEngine.h"
#include "platform/sides/VoiceEngineView.h"

namespace orvelle {

class PanelRooms {
public:
    using Raise = std::function<void(std::function<void()> event)>;

    // The events are the engine's; `raise` runs each from the panel's loop, none after the engine's stop.
    PanelRooms(const VoiceEngineControl& eventsOf, Raise raise);

    // Null for a room that is none.
    VoiceRoom* Find(Long room);
    const VoiceRoom& At(Long room) const { return rooms.at(static_cast<std::size_t>(room)); }
    bool AudioRuns() const { return audioRuns; }

    // Of a room that was left before. The number of this join.
    unsigned long Join(Long room, const std::string& clientName, const std::string& address);
    // The room was left before, and can't be joined, for the reason that its status then says.
    void Refuse(Long room, const std::string& clientName, const std::string& address, const std::string& sentence);
    // Whatever was under way is given up.
    void Leave(Long room);
    void Take(const RoomNews& news);
    // The engine has stopped: nobody is anywhere, and nothing is raised.
    void Clear();

    // Why a room can't be had, a sentence for the user: once, until that room is joined or has another reason.
    Event<const std::string&> Told;

private:
    VoiceRoom& Of(Long room) { return rooms.at(static_cast<std::size_t>(room)); }
    unsigned long& AttemptOf(Long room) { return attempts.at(static_cast<std::size_t>(room)); }
    void GoOut(Long room);
    void SetAudio(Long room, bool on);
    void SetStatus(Long room, const std::string& status);
    void TellWhy(Long room);
    void FollowAudio();
    void RaiseFor(const Event<Long>& event, Long room);
    void RaiseUnlessGivenUp(const Event<Long>& event, Long room);

    const VoiceEngineControl& engine;
    const Raise raise;
    std::array<VoiceRoom, Rooms> rooms;
    std::array<unsigned long, Rooms> attempts{};  // counts joins and ways out
    std::array<std::string, Rooms> told;          // why each can't be had
    bool audioRuns = false;
};

}  // namespace orvelle
