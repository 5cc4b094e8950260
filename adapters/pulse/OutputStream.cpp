#include "adapters/pulse/OutputStream.h"

#include <algorithm>
#include <utility>

namespace orvelle::pulse {

namespace {

constexpr std::uint32_t BlockBytes = speech::BlockSamples * sizeof(float);
constexpr auto ServersChoice = static_cast<std::uint32_t>(-1);

}  // namespace

OutputStream::OutputStream(std::string name, std::function<void()> changed, std::function<void(speech::Block&)> wanted)
    : VoiceStream(std::move(name), std::move(changed)), wanted(std::move(wanted)) {}

int OutputStream::Connect(pa_stream* opened, const char* deviceOrDefault, pa_stream_flags_t flags) {
    pa_buffer_attr buffer{};
    buffer.maxlength = buffer.fragsize = ServersChoice;
    buffer.tlength = 2 * BlockBytes;
    buffer.minreq = BlockBytes / 2;  // whole blocks at a time are heard ten milliseconds later
    buffer.prebuf = 0;  // it plays from the beginning, and goes on where nothing was there in time
    return pa_stream_connect_playback(opened, deviceOrDefault, &buffer, flags, nullptr, nullptr);
}

// Whoever writes a block may close the stream, or have it opened on another device. What is over counts as asked for
// until something is written; to leave it out by a seek is something that one of the servers keeps no account of.
void OutputStream::Carry(std::size_t bytes) {
    const std::size_t room = bytes / sizeof(float);
    const std::size_t fresh = pace.Allow(room, std::chrono::steady_clock::now());
    if (fresh == 0) return;
    const pa_stream* const carried = stream;
    next.assign(room - fresh, 0);
    while (next.size() < room) {
        if (used == block.size()) {
            block = speech::Silence;
            used = 0;
            wanted(block);
            if (stream != carried) return;
        }
        const std::size_t count = std::min(room - next.size(), block.size() - used);
        next.insert(next.end(), &block[used], &block[used] + count);
        used += count;
    }
    pa_stream_write(stream, next.data(), next.size() * sizeof(float), nullptr, 0, PA_SEEK_RELATIVE);
}

}  // namespace orvelle::pulse
