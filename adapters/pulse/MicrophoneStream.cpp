#include "adapters/pulse/MicrophoneStream.h"

#include <algorithm>
#include <utility>

namespace orvelle::pulse {

namespace {

constexpr std::uint32_t BlockBytes = speech::BlockSamples * sizeof(float);
// What the server keeps for us while we stand still.
constexpr std::uint32_t BlocksKept = 6;
constexpr auto ServersChoice = static_cast<std::uint32_t>(-1);

}  // namespace

MicrophoneStream::MicrophoneStream(std::function<void()> changed, std::function<void(const speech::Block&)> recorded)
    : VoiceStream("Microphone", std::move(changed)), recorded(std::move(recorded)) {}

int MicrophoneStream::Connect(pa_stream* opened, const char* deviceOrDefault, pa_stream_flags_t flags) {
    pa_buffer_attr buffer{};
    buffer.maxlength = BlocksKept * BlockBytes;
    buffer.tlength = buffer.prebuf = buffer.minreq = ServersChoice;
    buffer.fragsize = BlockBytes;
    return pa_stream_connect_record(opened, deviceOrDefault, &buffer, flags);
}

void MicrophoneStream::Read() {
    came.clear();
    const void* data = nullptr;
    std::size_t size = 0;
    while (pa_stream_peek(stream, &data, &size) == 0 && size > 0) {
        const std::size_t count = size / sizeof(float);
        if (const auto* const samples = static_cast<const float*>(data))
            came.insert(came.end(), samples, samples + count);
        else
            came.resize(came.size() + count);  // the server missed it
        pa_stream_drop(stream);
    }
}

// Whoever takes a block may close the stream, or have it opened on another device.
void MicrophoneStream::Carry(std::size_t) {
    Read();
    const std::size_t fresh = pace.Allow(came.size(), std::chrono::steady_clock::now());
    const pa_stream* const carried = stream;
    for (std::size_t next = came.size() - fresh; next < came.size() && stream == carried;) {
        const std::size_t count = std::min(came.size() - next, block.size() - filled);
        std::copy_n(&came[next], count, &block[filled]);
        next += count;
        filled = (filled + count) % block.size();
        if (filled == 0) recorded(block);
    }
}

}  // namespace orvelle::pulse
