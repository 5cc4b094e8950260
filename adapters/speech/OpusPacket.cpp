#include "adapters/speech/OpusPacket.h"

#include <opus.h>

#include <algorithm>
#include <array>

#include "adapters/speech/Block.h"

namespace orvelle::speech {

namespace {

constexpr Long MostFrames = 48;
constexpr int VoiceFrameSamples = SampleRate / 50;  // what the voice coder's flags count in: 20 ms, or less

// Whether the first frame repeats what was before it: the flag that follows one flag for each part of the frame.
bool RepeatsBefore(const unsigned char* frame, opus_int16 size, int samplesOfFrame) {
    const int parts = std::max(1, samplesOfFrame / VoiceFrameSamples);
    return size > 1 && (frame[0] >> (7 - parts) & 1) != 0;
}

}  // namespace

std::optional<OpusPacket> ReadOpusPacket(std::span<const std::uint8_t> data) {
    const auto size = static_cast<opus_int32>(data.size());
    std::array<const unsigned char*, MostFrames> frames{};
    std::array<opus_int16, MostFrames> sizes{};
    unsigned char kind = 0;
    int offset = 0;
    if (data.empty()) return {};
    const int count = opus_packet_parse(data.data(), size, &kind, frames.data(), sizes.data(), &offset);
    if (count <= 0) return {};

    const int samplesOfFrame = opus_packet_get_samples_per_frame(data.data(), SampleRate);
    const auto samples = static_cast<std::size_t>(count) * samplesOfFrame;
    OpusPacket packet{static_cast<Long>(samples / BlockSamples), 0};
    if (samples % BlockSamples != 0 || packet.Blocks > MostBlocksOfPacket) return {};

    const bool musicOnly = (kind & 0x80) != 0;  // repeats nothing
    if (!musicOnly && RepeatsBefore(frames[0], sizes[0], samplesOfFrame)) {
        packet.RepairBlocks = static_cast<Long>(samplesOfFrame / BlockSamples);
    }
    return packet;
}

}  // namespace orvelle::speech
