#include "tests/speech/VoicePath.h"

#include <opus.h>

#include <cmath>
#include <memory>
#include <numbers>

#include "adapters/speech/VoiceEncoder.h"

namespace orvelle::speech {

namespace {

constexpr Long SamplesOfMillisecond = SampleRate / 1000;

double Sine(double frequency, std::size_t sample) {
    return std::sin(2 * std::numbers::pi * frequency * sample / SampleRate);
}

}  // namespace

Sound Tone(double frequency, double amplitude, Long milliseconds) {
    Sound sound(milliseconds * SamplesOfMillisecond);
    for (std::size_t index = 0; index < sound.size(); ++index) sound[index] = amplitude * Sine(frequency, index);
    return sound;
}

Sound Vowels(Long milliseconds) {
    Sound second(SampleRate);
    for (int harmonic = 1; harmonic <= 20; ++harmonic) {
        const double formant = std::exp(-std::pow((harmonic * 130.0 - 700) / 500, 2)) + 0.05;
        for (std::size_t index = 0; index < second.size(); ++index) {
            second[index] += 0.12 * formant * Sine(130.0 * harmonic, index) * (0.6 + 0.4 * Sine(4, index));
        }
    }
    Sound sound(milliseconds * SamplesOfMillisecond);
    for (std::size_t index = 0; index < sound.size(); ++index) sound[index] = second[index % second.size()];
    return sound;
}

Sound Bursts(Long milliseconds) {
    Sound sound(milliseconds * SamplesOfMillisecond);
    for (std::size_t index = 0; index < sound.size(); ++index) {
        const double place = static_cast<double>(index) / SamplesOfMillisecond - FirstBurst;
        if (place >= 0 && std::fmod(place, BurstPeriod) < 60) sound[index] = 0.4 * Sine(1000, index);
    }
    return sound;
}

std::vector<SentPacket> Encode(const Sound& sound, double clock) {
    VoiceEncoder encoder;
    std::vector<SentPacket> packets;
    for (std::size_t block = 0; (block + 1) * BlockSamples <= sound.size(); ++block) {
        Block samples;
        std::copy_n(sound.begin() + block * BlockSamples, BlockSamples, samples.begin());
        const std::span<const std::uint8_t> opus = encoder.Encode(samples);
        packets.push_back({block, {opus.begin(), opus.end()}, false, clock * (block + 1)});
    }
    if (!packets.empty()) packets.back().IsLast = true;
    return packets;
}

std::vector<SentPacket> EncodeLong(const Sound& sound, Long blocksOfPacket) {
    const std::unique_ptr<OpusEncoder, void (*)(OpusEncoder*)> encoder(
        opus_encoder_create(SampleRate, 1, OPUS_APPLICATION_VOIP, nullptr), opus_encoder_destroy);
    opus_encoder_ctl(encoder.get(), OPUS_SET_BITRATE(24000));
    opus_encoder_ctl(encoder.get(), OPUS_SET_INBAND_FEC(1));
    opus_encoder_ctl(encoder.get(), OPUS_SET_PACKET_LOSS_PERC(10));

    const std::size_t samples = blocksOfPacket * BlockSamples;
    std::vector<SentPacket> packets;
    for (std::size_t first = 0; first + samples <= sound.size(); first += samples) {
        std::vector<std::uint8_t> opus(1000);
        opus.resize(opus_encode_float(encoder.get(), &sound[first], samples, opus.data(), opus.size()));
        const std::uint64_t block = first / BlockSamples;
        packets.push_back({block, std::move(opus), false, EvenClock * (block + blocksOfPacket)});
    }
    if (!packets.empty()) packets.back().IsLast = true;
    return packets;
}

Road AtOnce() {
    return [](std::size_t) { return 0.0; };
}

void Listener::Hear(const std::vector<SentPacket>& packets, const Road& road) {
    struct Arrival {
        double At;
        std::size_t Packet;
    };
    std::vector<Arrival> arrivals;
    double end = 0;
    for (std::size_t index = 0; index < packets.size(); ++index) {
        end = packets[index].SentAt + 1000;
        if (const std::optional<double> delay = road(index))
            arrivals.push_back({packets[index].SentAt + *delay, index});
    }
    std::stable_sort(arrivals.begin(), arrivals.end(),
                     [](const auto& one, const auto& other) { return one.At < other.At; });

    auto next = arrivals.begin();
    for (; now < end; now += clock) {
        for (; next != arrivals.end() && next->At <= now; ++next) Voice.Put(AsHeard(packets[next->Packet]));
        Block block = Silence;
        Talked.push_back(Voice.Take(block));
        Heard.insert(Heard.end(), block.begin(), block.end());
    }
}

std::vector<double> Listener::BurstDelays(std::size_t bursts, double senderClock) const {
    std::vector<double> delays;
    for (std::size_t burst = 0; burst < bursts; ++burst) {
        const double begun = (FirstBurst + BurstPeriod * burst) * senderClock / EvenClock;
        // From a little before it on, as an encoder's filters spread it.
        const double after = std::max(0.0, (begun - start) / clock * BlockSamples);
        const auto first = static_cast<std::size_t>(after);
        const std::size_t last = std::min<std::size_t>(Heard.size(), first + SamplesOfMillisecond * 240);
        const auto loud = std::find_if(Heard.begin() + std::min(first, last), Heard.begin() + last,
                                       [](float sample) { return std::abs(sample) > 0.15; });
        const auto onset = static_cast<std::size_t>(loud - Heard.begin());
        delays.push_back(onset < last ? TimeOf(onset) - begun : -1);
    }
    return delays;
}

HeardVoice AsHeard(const SentPacket& packet, std::uint32_t speaker) {
    return {speaker, packet.Sequence, packet.Opus, packet.IsLast};
}

double Median(std::vector<double> values) {
    std::nth_element(values.begin(), values.begin() + values.size() / 2, values.end());
    return values.at(values.size() / 2);
}

std::span<const float> Blocks(const Sound& sound, std::size_t first, std::size_t count) {
    return std::span(sound).subspan(first * BlockSamples, count * BlockSamples);
}

}  // namespace orvelle::speech
