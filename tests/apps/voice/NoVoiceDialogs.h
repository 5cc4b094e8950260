// Where nobody is there to be asked by the voice engine: each question is given up.
#pragma once

#include "platform/VoiceDialogs.h"

namespace orvelle {

class NoVoiceDialogs : public VoiceDialogs {
public:
    std::optional<Squelch> Calibrate(VoiceTrial&, const Squelch&) override { return std::nullopt; }
    Ticket AskPassword(const std::string&, PasswordQuestion,
                       std::function<void(const std::optional<std::string>&)>) override {
        return {};
    }
};

}  // namespace orvelle
