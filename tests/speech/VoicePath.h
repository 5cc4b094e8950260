// A sound on its way from a microphone to an ear in virtual time: encoded, sent, delayed or lost as the test says, put
// in order and taken by a listener with a clock of his own. Times are milliseconds, of true time.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <vector>

#include "adapters/speech/SpeakerVoice.h"

namespace orvelle::speech {

using Sound = std::vector<float>;

struct SentPacket {
    std::uint64_t Sequence = 0;
    std::vector<std::uint8_t> Opus;
    bool IsLast = false;
    double SentAt = 0;  // a packet of some blocks is sent with the last of them
};

// A clock's time from one block to the next.
constexpr double EvenClock = BlockMilliseconds;
constexpr double ClockFasterBy(double parts) { return EvenClock / (1 + parts); }

Sound Tone(double frequency, double amplitude, Long milliseconds);
// Something like vowels: harmonics of a voice, louder and quieter four times a second.
Sound Vowels(Long milliseconds);
// Bursts of 60 ms of 1 kHz, four a second, the first after 100 ms.
Sound Bursts(Long milliseconds);
constexpr double BurstPeriod = 250;
constexpr double FirstBurst = 100;

// By the encoder of the rooms.
std::vector<SentPacket> Encode(const Sound& sound, double clock = EvenClock);
// Packets of so many blocks each, as other clients make them.
std::vector<SentPacket> EncodeLong(const Sound& sound, Long blocksOfPacket);

// How long a packet is on its way; none where it is lost.
using Road = std::function<std::optional<double>(std::size_t packet)>;
Road AtOnce();

class Listener {
public:
    explicit Listener(double clock = EvenClock, double firstTake = 10.5) : clock(clock), now(firstTake) {}

    // Everything that arrives until a second after the last packet was sent.
    void Hear(const std::vector<SentPacket>& packets, const Road& road);
    // When the bursts are heard, each after its beginning in the sender's sound; less than 0 where one is not.
    std::vector<double> BurstDelays(std::size_t bursts, double senderClock = EvenClock) const;

    SpeakerVoice Voice;
    Sound Heard;               // silence where the speaker is silent
    std::vector<bool> Talked;  // by block

private:
    double TimeOf(std::size_t sample) const { return start + clock * sample / BlockSamples; }

    double clock;
    double now;
    double start = now;
};

HeardVoice AsHeard(const SentPacket& packet, std::uint32_t speaker = 1);
double Median(std::vector<double> values);

// 10 ms of it, from block `first` on.
std::span<const float> Blocks(const Sound& sound, std::size_t first, std::size_t count = 1);

}  // namespace orvelle::speech
