// The far side of the voice engine: what the panel set on it, and everything that can happen in it. Rooms are 0 COM1,
// 1 COM2, 2 private; outputs 0 headset, 1 speakers; a call with another number does nothing. Acted on by whoever plays
// or tests the engine.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>

#include "platform/Ticket.h"
#include "platform/Types.h"

namespace orvelle {

enum class RoomPresence { Out, Joining, In };
enum class StartOutcome { Starts, Refused, Dies };    // Dies: accepted, then VVL_Stopped in place of VVL_Started
enum class JoinOutcome { Succeeds, Refused, Fails };  // Fails: accepted, then VVL_RoomJoinFailed

struct VoiceRoom {
    RoomPresence Presence = RoomPresence::Out;
    std::string ClientName;
    std::string Address;
    std::string Status;
    bool Audio = false;  // the room carries audio now
    bool Muted = true;   // the microphone to the room
    std::array<bool, 2> Output{};
    JoinOutcome Joins = JoinOutcome::Succeeds;
};

struct VoiceOutput {
    Long Device = -1;
    Long Volume = 100;
    Long SignalVolume = 100;
    bool Filter = false;
    bool Failed = false;  // the device does not work
};

struct Squelch {
    float Input = 0;  // 0 to 100 both
    float Output = 0;
};

class VoiceEngineSide {
public:
    // The calibration dialogue with the two devices by number, -1 the default one; none is a cancel.
    using CalibrationDialogue = std::function<std::optional<Squelch>(Long inputDevice, Long outputDevice)>;

    virtual ~VoiceEngineSide() = default;

    // What the panel set, and what came of it.
    virtual bool IsRunning() const = 0;
    virtual bool IsStarting() const = 0;
    virtual bool AudioRuns() const = 0;  // from the first room joined to the last one left
    virtual const VoiceRoom& Room(Long room) const = 0;
    virtual const VoiceOutput& Output(Long output) const = 0;
    virtual Long Microphone() const = 0;
    virtual double InputSquelchValue() const = 0;
    virtual double OutputSquelchValue() const = 0;

    // How starts and joins go, and how long they take in milliseconds.
    virtual void SetStartOutcome(StartOutcome outcome) = 0;
    virtual StartOutcome Starts() const = 0;
    virtual void SetStartDelay(Long milliseconds) = 0;
    virtual Long StartDelay() const = 0;
    virtual void SetJoinOutcome(Long room, JoinOutcome outcome) = 0;
    virtual void SetJoinDelay(Long milliseconds) = 0;
    virtual Long JoinDelay() const = 0;

    virtual void Kick(Long room) = 0;                        // only if it is in the room
    virtual void SetRoomAudio(Long room, bool carries) = 0;  // likewise
    virtual void SetRoomStatus(Long room, const std::string& status) = 0;
    virtual void Fail() = 0;  // the running engine stops by itself
    virtual void FailInput(bool failed) = 0;
    virtual void FailOutput(Long output, bool failed) = 0;
    virtual bool InputFailed() const = 0;

    // Answers the panel's calibrations for as long as the ticket is kept; without an answerer each one is a cancel.
    [[nodiscard]] virtual Ticket AnswerCalibration(CalibrationDialogue dialogue) = 0;
    // Called from the loop after changes.
    [[nodiscard]] virtual Ticket Observe(std::function<void()> observer) = 0;
};

}  // namespace orvelle
