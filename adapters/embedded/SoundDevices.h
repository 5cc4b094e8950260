// The audio devices of a computer without a sound card, one list for the voice engine and the mixers.
#pragma once

#include <utility>

#include "platform/AudioDevices.h"

namespace orvelle::embedded {

class SoundDevices : public AudioDevices {
public:
    std::vector<std::string> InputNames() const override { return inputs; }
    std::vector<std::string> OutputNames() const override { return outputs; }

    void SetInputs(std::vector<std::string> names) { inputs = std::move(names); }
    void SetOutputs(std::vector<std::string> names) { outputs = std::move(names); }

private:
    std::vector<std::string> inputs{"DirectSound - Microphone", "Wave - Headset Microphone"};
    std::vector<std::string> outputs{"DirectSound - Loudspeakers", "DirectSound - Headset", "Wave - Line Out"};
};

}  // namespace orvelle::embedded
