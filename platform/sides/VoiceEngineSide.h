// The far side of a voice engine that is played: everything that can happen in it. A call with another room or output
// than there is does nothing. Acted on by whoever plays or tests the engine.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "platform/Squelch.h"
#include "platform/sides/VoiceEngineView.h"

namespace orvelle {

enum class StartOutcome { Starts, Refused, Dies };  // Dies: accepted, then VVL_Stopped in place of VVL_Started

class VoiceEngineSide : public VoiceEngineView {
public:
    // The calibration dialogue with the two devices by number, -1 the default one; none is a cancel.
    using CalibrationDialogue = std::function<std::optional<Squelch>(Long inputDevice, Long outputDevice)>;

    // False while a real engine serves in its place: what is done here then goes nowhere.
    virtual bool IsServing() const = 0;

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

    // Answers the panel's calibrations for as long as the ticket is kept; without an answerer each one is a cancel.
    [[nodiscard]] virtual Ticket AnswerCalibration(CalibrationDialogue dialogue) = 0;
};

}  // namespace orvelle
