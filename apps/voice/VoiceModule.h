// The voice engine that is heard, in a module of its own: it brings the voice servers' encryption and codec, which a
// computer that runs no voice engine, or has no sound server, does not load. The panel loads the module when it starts
// the engine there for the first time, and deletes what the function gives.
#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "adapters/speech/BlockCounts.h"
#include "platform/EventLoop.h"
#include "platform/VoiceDialogs.h"
#include "platform/VoiceEngine.h"
#include "platform/sides/VoiceEngineView.h"

namespace orvelle {

constexpr const char* VoiceModuleName = "orvelle-voice.so";

// The panel's devices by the names that the sound server itself has for them. Asked on the panel's thread.
class VoiceDevices {
public:
    virtual ~VoiceDevices() = default;

    virtual std::string InputNames() const = 0;  // as the engine lists them: each ended by a line feed
    virtual std::string OutputNames() const = 0;
    // By number; "" for -1 and for a number that is none: the default device.
    virtual std::string Microphone(Long device) const = 0;
    virtual std::string Output(Long device) const = 0;
};

class HeardVoiceEngine : public VoiceEngineControl, public VoiceEngineView {
public:
    // What became of the voices at an output since the start, in answer from the loop; none while it is off.
    virtual void Count(Long output, std::function<void(const speech::BlockCounts&)> answer) = 0;

    // A sentence for the user that needs no answer.
    Event<const std::string&> Told;
};

}  // namespace orvelle

extern "C" {
// All that it is handed outlives it. `folder` is for its certificates and passwords.
using NewOrvelleVoiceEngineFunction = orvelle::HeardVoiceEngine*(orvelle::EventLoop& loop,
                                                                 orvelle::VoiceDevices& devices,
                                                                 orvelle::VoiceDialogs& dialogs,
                                                                 const std::filesystem::path& folder);
__attribute__((visibility("default"))) NewOrvelleVoiceEngineFunction NewOrvelleVoiceEngine;
}
