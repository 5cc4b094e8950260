#include "adapters/speech/VoiceEncoder.h"

#include <opus.h>

#include <algorithm>
#include <cmath>
#include <new>

namespace orvelle::speech {

namespace {

// The least at which the library keeps a voice's band of 8 kHz while it also repeats the block before. The servers
// allow a user 72 kbit/s with all that goes around a packet, which at 100 packets a second is half of it.
constexpr int BitsPerSecond = 28000;
constexpr int ExpectedLoss = 10;  // percent: what makes the library repeat the block before in each packet
constexpr int Complexity = 5;

// A sound server hands over what a device gives, and the library's filters would keep for ever what is no number.
float WithinFullScale(float sample) { return std::isnan(sample) ? 0.0F : std::clamp(sample, -1.0F, 1.0F); }

}  // namespace

VoiceEncoder::VoiceEncoder() {
    int error = OPUS_OK;
    encoder.reset(opus_encoder_create(SampleRate, 1, OPUS_APPLICATION_VOIP, &error));
    if (!encoder) throw std::bad_alloc();
    Restart();
}

std::span<const std::uint8_t> VoiceEncoder::Encode(const Block& block) {
    Block sound;
    std::transform(block.begin(), block.end(), sound.begin(), WithinFullScale);
    const int size = opus_encode_float(encoder.get(), sound.data(), BlockSamples, packet.data(), packet.size());
    return {packet.data(), static_cast<std::size_t>(std::max(size, 0))};
}

// All anew: what the library itself calls a reset keeps some of its choices.
void VoiceEncoder::Restart() {
    opus_encoder_init(encoder.get(), SampleRate, 1, OPUS_APPLICATION_VOIP);
    opus_encoder_ctl(encoder.get(), OPUS_SET_BITRATE(BitsPerSecond));
    // Packets of one size would be filled up with zeros, which the servers' encryption takes for an attack.
    opus_encoder_ctl(encoder.get(), OPUS_SET_VBR(1));
    opus_encoder_ctl(encoder.get(), OPUS_SET_INBAND_FEC(1));
    opus_encoder_ctl(encoder.get(), OPUS_SET_PACKET_LOSS_PERC(ExpectedLoss));
    opus_encoder_ctl(encoder.get(), OPUS_SET_COMPLEXITY(Complexity));
}

void VoiceEncoder::Destroy::operator()(OpusEncoder* gone) const { opus_encoder_destroy(gone); }

}  // namespace orvelle::speech
