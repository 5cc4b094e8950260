// What is heard of one room at one output: its speakers added, each without what is too quiet, and the tones at a
// talk's beginning and end. Held by the output's mix.
#pragma once

#include <cstdint>
#include <map>

#include "adapters/speech/Block.h"
#include "adapters/speech/BlockCounts.h"
#include "adapters/speech/HeardVoice.h"
#include "adapters/speech/Ramp.h"
#include "adapters/speech/SignalTone.h"
#include "adapters/speech/SpeakerVoice.h"
#include "adapters/speech/Squelch.h"

namespace orvelle::speech {

// Nobody follows more voices at once, and a server can name any number of speakers. One more takes the place of who has
// been silent longest; where all are talking he is not heard.
constexpr std::size_t MostSpeakers = 16;

class RoomMix {
public:
    // Whether it is heard there.
    void Route(bool on) { share.To(on ? 1.0F : 0.0F); }

    void Put(const HeardVoice& packet);
    void Forget(std::uint32_t speaker);
    void Forget();

    // Adds the next ten milliseconds. A voice below `quietest` decibels fades out, and whoever is silent for a second
    // is put away.
    void AddTo(Block& voices, Block& tones, double quietest);
    // Somebody is talking, and it is heard there.
    bool IsHeard() const { return isTalking && share.End() > 0; }
    std::size_t Speakers() const { return speakers.size(); }
    // Also of those who are not there any more.
    BlockCounts Counted() const;

private:
    struct Speaker {
        SpeakerVoice Voice;
        SquelchHolding Squelch;
        Ramp Share{0};  // 0 where the voice is too quiet
        Long BlocksSilent = 1;
    };

    void PutAway(std::map<std::uint32_t, Speaker>::iterator speaker);
    bool MakePlace();
    bool Mix(Block& room, double quietest);

    std::map<std::uint32_t, Speaker> speakers;
    BlockCounts countedOfGone;
    Ramp share{0};
    SignalTone signal;
    bool isTalking = false;
};

}  // namespace orvelle::speech
