#include "adapters/pulse/OutputStream.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace orvelle::pulse {

namespace {

constexpr std::uint32_t BlockBytes = speech::BlockSamples * sizeof(float);
constexpr auto ServersChoice = static_cast<std::uint32_t>(-1);

// Longer than whoever mixes keeps a speaker that is silent.
constexpr Long BlocksUntilRest = 1500 / speech::BlockMilliseconds;
// What a resting output plays at each look, to see that its device still does.
constexpr std::size_t SamplesOfLife = speech::BlockSamples / 2;

bool IsSilent(const speech::Block& block) {
    constexpr float Unheard = 1e-7F;  // a filter that rings out never ends
    return std::ranges::all_of(block, [](float sample) { return std::abs(sample) < Unheard; });
}

}  // namespace

OutputStream::OutputStream(std::string name, std::function<void()> changed, std::function<void(speech::Block&)> wanted)
    : VoiceStream(std::move(name), std::move(changed)), wanted(std::move(wanted)) {}

int OutputStream::Connect(pa_stream* opened, const char* deviceOrDefault, pa_stream_flags_t flags) {
    pa_buffer_attr buffer{};
    buffer.maxlength = buffer.fragsize = ServersChoice;
    buffer.tlength = 2 * BlockBytes;
    buffer.minreq = BlockBytes / 2;  // whole blocks at a time are heard ten milliseconds later
    buffer.prebuf = sizeof(float);   // it plays whatever is there, and wants nothing while nothing comes
    return pa_stream_connect_playback(opened, deviceOrDefault, &buffer, flags, nullptr, nullptr);
}

// Whoever writes a block may close the stream, or have it opened on another device. What is over counts as asked for
// until something is written; to leave it out by a seek is something that one of the servers keeps no account of.
void OutputStream::Carry(std::size_t bytes) {
    if (isResting) return;
    const std::size_t room = bytes / sizeof(float);
    const std::size_t fresh = pace.Allow(room, std::chrono::steady_clock::now());
    if (fresh == 0) return;
    const pa_stream* const carried = stream;
    next.assign(room - fresh, 0);
    while (next.size() < room) {
        if (used == block.size()) {
            Ask();
            if (stream != carried) return;
        }
        const std::size_t count = std::min(room - next.size(), block.size() - used);
        next.insert(next.end(), &block[used], &block[used] + count);
        used += count;
    }
    pa_stream_write(stream, next.data(), next.size() * sizeof(float), nullptr, 0, PA_SEEK_RELATIVE);
}

void OutputStream::Ask() {
    block = speech::Silence;
    used = 0;
    wanted(block);
    blocksSilent = IsSilent(block) ? blocksSilent + 1 : 0;
    isResting = blocksSilent >= BlocksUntilRest;
}

// It goes on as if it had written silence all the time.
void OutputStream::Rouse() {
    blocksSilent = 0;
    if (!std::exchange(isResting, false) || !stream) return;
    used = block.size();
    WriteSilence(std::numeric_limits<std::size_t>::max());
}

void OutputStream::Forget() {
    used = block.size();
    blocksSilent = 0;
    isResting = false;
}

void OutputStream::ShowLife() {
    if (isResting) WriteSilence(SamplesOfLife);
}

void OutputStream::WriteSilence(std::size_t mostSamples) {
    const std::size_t room = pa_stream_writable_size(stream);
    if (room == static_cast<std::size_t>(-1)) return;
    next.assign(std::min(room / sizeof(float), mostSamples), 0);
    if (!next.empty()) pa_stream_write(stream, next.data(), next.size() * sizeof(float), nullptr, 0, PA_SEEK_RELATIVE);
}

}  // namespace orvelle::pulse
