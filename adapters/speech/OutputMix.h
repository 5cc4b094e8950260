// What is heard at one output: the voices of the rooms that are routed there, by radio where that is wished, with its
// volume, and the short tones at a talk's beginning and end. The output asks for each block by its own clock. Held by
// the voice thread, one for each output.
#pragma once

#include <array>
#include <cstdint>

#include "adapters/speech/Block.h"
#include "adapters/speech/BlockCounts.h"
#include "adapters/speech/HeardVoice.h"
#include "adapters/speech/RadioEffect.h"
#include "adapters/speech/Ramp.h"
#include "adapters/speech/RoomMix.h"
#include "platform/VoiceEngine.h"

namespace orvelle::speech {

class OutputMix {
public:
    // What the panel sets; numbers outside their ranges count as the nearer end. A change of routing or volume takes
    // five milliseconds, so that nothing clicks. At first no room is routed, both volumes are 100, the rest is off.
    void Route(Long room, bool on);
    void SetVolume(Long percent);        // of the voices, 0 to 400
    void SetSignalVolume(Long percent);  // of the tones, 0 to 100
    void SetFilter(bool on);             // as by radio
    // 0 (every voice) to 100: a voice quieter than -90 to -30 dB of full scale is not heard. 50, -60 dB, takes away
    // hiss and never a person. What is no number counts as 0.
    void SetSquelch(double value);

    // What is heard in a room, routed here or not. Another room is nowhere.
    void Put(Long room, const HeardVoice& packet);
    // Nothing more comes of this speaker, or of anybody in the room.
    void Forget(Long room, std::uint32_t speaker);
    void Forget(Long room);

    // The next ten milliseconds, never above full scale.
    void Take(Block& block);
    // Of all voices of all rooms, routed here or not.
    BlockCounts Counted() const;

private:
    static constexpr double EveryVoice = -1000;  // decibels

    static bool IsRoom(Long room) { return room >= 0 && room < Rooms; }

    std::array<RoomMix, Rooms> rooms;
    RadioEffect radio;
    Ramp volume{1};
    Ramp signalVolume{1};
    double quietest = EveryVoice;
};

}  // namespace orvelle::speech
