#include "adapters/speech/VoiceEncoder.h"

#include <opus.h>

#include <algorithm>
#include <cmath>
#include <new>

namespace orvelle::speech {

namespace {

// The servers allow a user 72 kbit/s with all that goes around a packet, which at 100 packets a second is half of it.
constexpr int BitsPerSecond = 24000;
constexpr int ExpectedLoss = 10;  // percent: what makes the library repeat the block before in each packet
constexpr int Complexity = 5;

// A sound server hands over what a device gives, and the library's filters would keep for ever what is no number.
float WithinFullScale(float sample) { return std::isnan(sample) ? 0.0F : std::clamp(sample, -1.0F, 1.0F); }

}  // namespace

VoiceEncoder::VoiceEncoder() {
    int error = OPUS_OK;
    encoder.reset(opus_encoder_create(SampleRate, 1, OPUS_APPLICATION_VOIP, &error));
    if (!encoder) throw std::bad_alloc();
    opus_encoder_ctl(encoder.get(), OPUS_SET_BITRATE(BitsPerSecond));
    // Packets of one size would be filled up with zeros, which the servers' encryption takes for an attack.
    opus_encoder_ctl(encoder.get(), OPUS_SET_VBR(1));
    opus_encoder_ctl(encoder.get(), OPUS_SET_INBAND_FEC(1));
    opus_encoder_ctl(encoder.get(), OPUS_SET_PACKET_LOSS_PERC(ExpectedLoss));
    opus_encoder_ctl(encoder.get(), OPUS_SET_COMPLEXITY(Complexity));
}

std::span<const std::uint8_t> VoiceEncoder::Encode(const Block& block) {
    Block sound;
    std::transform(block.begin(), block.end(), sound.begin(), WithinFullScale);
    const int size = opus_encode_float(encoder.get(), sound.data(), BlockSamples, packet.data(), packet.size());
    return {packet.data(), static_cast<std::size_t>(std::max(size, 0))};
}

void VoiceEncoder::Restart() { opus_encoder_ctl(encoder.get(), OPUS_RESET_STATE); }

void VoiceEncoder::Destroy::operator()(OpusEncoder* gone) const { opus_encoder_destroy(gone); }

}  // namespace orvelle::speech
