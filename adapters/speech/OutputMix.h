// What is heard at one output: the voices of the rooms that are routed there, by radio where that is wished, with its
// volume, and the short tones at a talk's beginning and end. The output asks for each block by its own clock. Held by
// the voice thread, one for each output.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <memory>

#include "adapters/speech/Block.h"
#include "adapters/speech/HeardVoice.h"
#include "adapters/speech/SpeakerVoice.h"
#include "platform/VoiceEngine.h"

namespace orvelle::speech {

class OutputMix {
public:
    // What the panel sets; numbers outside their ranges count as the nearer end. A change of routing or volume takes
    // five milliseconds, so that nothing clicks.
    void Route(Long room, bool on);
    void SetVolume(Long percent);        // of the voices, 0 to 400
    void SetSignalVolume(Long percent);  // of the tones, 0 to 100
    void SetFilter(bool on);             // as by radio
    void SetSquelch(double value);       // 0 (every voice) to 100: quieter ones are not heard

    // What is heard in a room, routed here or not.
    void Put(Long room, const HeardVoice& packet);
    // Nothing more comes of this speaker, or of anybody in the room.
    void Forget(Long room, std::uint32_t speaker);
    void Forget(Long room);

    // The next ten milliseconds.
    void Take(Block& block);

private:
    using Voices = std::map<std::uint32_t, std::unique_ptr<SpeakerVoice>>;

    std::array<Voices, Rooms> voices;
};

}  // namespace orvelle::speech
