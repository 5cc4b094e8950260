#include "adapters/speech/VoiceDecoder.h"

#include <opus.h>

#include <algorithm>
#include <cmath>
#include <new>

namespace orvelle::speech {

namespace {

// Hostile data can decode to anything, and one sample that is no number would silence a filter for ever.
float Sound(float sample) { return std::isnan(sample) ? 0.0F : std::clamp(sample, -2.0F, 2.0F); }

}  // namespace

VoiceDecoder::VoiceDecoder() {
    int error = OPUS_OK;
    decoder.reset(opus_decoder_create(SampleRate, 1, &error));
    if (!decoder) throw std::bad_alloc();
}

std::span<const float> VoiceDecoder::Decode(std::span<const std::uint8_t> opus) {
    return Run(opus, MostBlocksOfPacket, Part::Itself);
}

std::span<const float> VoiceDecoder::Restore(std::span<const std::uint8_t> opus, Long blocks) {
    return Run(opus, blocks, Part::RepeatedInIt);
}

std::span<const float> VoiceDecoder::Conceal() {
    const std::span<const float> madeUp = Run({}, 1, Part::Itself);
    if (!madeUp.empty()) return madeUp;
    std::fill_n(sound.begin(), BlockSamples, 0.0F);
    return {sound.data(), BlockSamples};
}

void VoiceDecoder::Restart() { opus_decoder_ctl(decoder.get(), OPUS_RESET_STATE); }

std::span<const float> VoiceDecoder::Run(std::span<const std::uint8_t> opus, Long mostBlocks, Part part) {
    const int most = mostBlocks * static_cast<int>(BlockSamples);
    const int samples =
        opus_decode_float(decoder.get(), opus.empty() ? nullptr : opus.data(), static_cast<opus_int32>(opus.size()),
                          sound.data(), most, part == Part::RepeatedInIt ? 1 : 0);
    if (samples <= 0 || samples % static_cast<int>(BlockSamples) != 0) return {};
    std::transform(sound.begin(), sound.begin() + samples, sound.begin(), Sound);
    return {sound.data(), static_cast<std::size_t>(samples)};
}

void VoiceDecoder::Destroy::operator()(OpusDecoder* gone) const { opus_decoder_destroy(gone); }

}  // namespace orvelle::speech
