// What the panel set on the voice engine, and what came of it, for whoever shows it: of the engine that is heard and of
// the one that is played alike. Rooms are 0 COM1, 1 COM2, 2 private; outputs 0 headset, 1 speakers.
#pragma once

#include <array>
#include <functional>
#include <string>

#include "platform/Ticket.h"
#include "platform/Types.h"

namespace orvelle {

enum class RoomPresence { Out, Joining, In };
enum class JoinOutcome { Succeeds, Refused, Fails };  // Fails: accepted, then VVL_RoomJoinFailed

struct VoiceRoom {
    RoomPresence Presence = RoomPresence::Out;
    std::string ClientName;
    std::string Address;
    std::string Status;
    bool Audio = false;  // the room carries audio now
    bool Muted = true;   // the microphone to the room
    std::array<bool, 2> Output{};
    JoinOutcome Joins = JoinOutcome::Succeeds;  // where it is played
};

struct VoiceOutput {
    Long Device = -1;
    Long Volume = 100;
    Long SignalVolume = 100;
    bool Filter = false;
    bool Failed = false;  // the device does not work
};

class VoiceEngineView {
public:
    virtual ~VoiceEngineView() = default;

    virtual bool IsRunning() const = 0;
    virtual bool IsStarting() const = 0;
    virtual bool AudioRuns() const = 0;  // from the first room joined to the last one left
    virtual const VoiceRoom& Room(Long room) const = 0;
    virtual const VoiceOutput& Output(Long output) const = 0;
    virtual Long Microphone() const = 0;
    virtual bool InputFailed() const = 0;
    virtual double InputSquelchValue() const = 0;
    virtual double OutputSquelchValue() const = 0;

    // Called from the loop after changes.
    [[nodiscard]] virtual Ticket Observe(std::function<void()> observer) = 0;
};

}  // namespace orvelle
