// What a voice engine that is heard has its user asked: implemented by the shell, called on the panel's thread by the
// engine.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "platform/PasswordQuestion.h"
#include "platform/Squelch.h"
#include "platform/Ticket.h"

namespace orvelle {

// The devices at work while the user tries them. What it tells changes by itself, ten times a second and more often.
class VoiceTrial {
public:
    virtual ~VoiceTrial() = default;

    virtual bool MicrophoneWorks() const = 0;
    virtual bool HeadsetWorks() const = 0;
    // The loudest ten milliseconds since the last call, 0 to 100, each in the unit of its squelch.
    virtual double TakeInputLevel() = 0;
    virtual double TakeOutputLevel() = 0;
    // Whether the user hears the microphone in the headset, as others would hear it.
    virtual void HearMyself(bool on) = 0;
};

class VoiceDialogs {
public:
    virtual ~VoiceDialogs() = default;

    // Runs the dialogue and returns when it is closed; the loop is served meanwhile. None: cancelled. `input` is the
    // squelch as it is now.
    virtual std::optional<Squelch> Calibrate(VoiceTrial& trial, const Squelch& now) = 0;

    // Asks for a server's password, without waiting: the answer is told from the loop, none where the user gives up.
    // The end of the ticket takes the question back.
    [[nodiscard]] virtual Ticket AskPassword(const std::string& server, PasswordQuestion question,
                                             std::function<void(const std::optional<std::string>&)> answer) = 0;
};

}  // namespace orvelle
