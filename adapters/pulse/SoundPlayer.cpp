#include "adapters/pulse/SoundPlayer.h"

#include <pulse/error.h>

#include <algorithm>
#include <utility>

namespace orvelle::pulse {

namespace {

// What a sound may take beyond its length before the server counts as hanging.
constexpr Long PatienceMilliseconds = 3000;
// What the server holds of a sound; by itself it holds two seconds, and may begin as much later.
constexpr pa_usec_t BufferedMicroseconds = 100000;
constexpr auto ServersChoice = static_cast<std::uint32_t>(-1);
// Sounds at one time; the panel asks for two.
constexpr std::size_t MostSounds = 8;

Long LengthOf(const WaveFile& wave) {
    const std::size_t frames = wave.Samples.size() / (2 * wave.Channels);
    return static_cast<Long>(frames * 1000 / wave.Rate);
}

}  // namespace

SoundPlayer::SoundPlayer(EventLoop& loop, std::filesystem::path folder, std::string server)
    : loop(loop), folder(std::move(folder)), server(std::move(server)) {}

void SoundPlayer::Play(const std::string& name) {
    const auto file = FileInFolder(folder, name);
    if (!file || sounds.contains(*file) || sounds.size() >= MostSounds) return;
    auto wave = ReadWaveFile(*file);
    if (!wave) return;
    auto sound = std::make_unique<Sound>(Sound{*this, *file, std::move(*wave)});
    sound->Bound = loop.Loop().After(LengthOf(sound->Wave) + PatienceMilliseconds, [this] { Leave(); });
    Sound& begun = *sounds.emplace(*file, std::move(sound)).first->second;
    if (!context) return Connect();
    if (pa_context_get_state(context) == PA_CONTEXT_READY) Begin(begun);
}

void SoundPlayer::Connect() {
    context = pa_context_new(loop.Api(), "Orvelle Control Panel");
    if (!context) return Leave();
    pa_context_set_state_callback(
        context, [](pa_context*, void* player) { static_cast<SoundPlayer*>(player)->TakeState(); }, this);
    if (pa_context_connect(context, server.empty() ? nullptr : server.c_str(), PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0)
        Leave();
}

void SoundPlayer::TakeState() {
    const pa_context_state_t state = pa_context_get_state(context);
    if (state == PA_CONTEXT_READY)
        for (const auto& [file, sound] : sounds) Begin(*sound);
    else if (!PA_CONTEXT_IS_GOOD(state))
        ending = loop.Loop().After(0, [this] { Leave(); });  // not inside the call of what ends
}

// Sounds that have not ended are of no use later.
void SoundPlayer::Leave() {
    ending.End();
    while (!sounds.empty()) End(sounds.begin()->first);
    if (!context) return;
    pa_context* const left = std::exchange(context, nullptr);
    pa_context_set_state_callback(left, nullptr, nullptr);
    pa_context_disconnect(left);
    pa_context_unref(left);
}

void SoundPlayer::Begin(Sound& sound) {
    const pa_sample_spec form{PA_SAMPLE_S16LE, sound.Wave.Rate, sound.Wave.Channels};
    sound.Stream = pa_stream_new(context, sound.File.filename().c_str(), &form, nullptr);
    if (!sound.Stream) return;
    pa_stream_set_write_callback(
        sound.Stream,
        [](pa_stream*, std::size_t room, void* user) {
            auto& asked = *static_cast<Sound*>(user);
            asked.Player.Write(asked, room);
        },
        &sound);
    pa_buffer_attr buffer{};
    buffer.maxlength = buffer.prebuf = buffer.minreq = buffer.fragsize = ServersChoice;
    buffer.tlength = static_cast<std::uint32_t>(pa_usec_to_bytes(BufferedMicroseconds, &form));
    pa_stream_connect_playback(sound.Stream, nullptr, &buffer, PA_STREAM_ADJUST_LATENCY, nullptr, nullptr);
}

void SoundPlayer::Write(Sound& sound, std::size_t room) {
    const std::size_t left = sound.Wave.Samples.size() - sound.Written;
    const std::size_t frame = std::size_t{2} * sound.Wave.Channels;
    const std::size_t size = std::min(room / frame * frame, left);
    if (size == 0) return;
    pa_stream_write(sound.Stream, sound.Wave.Samples.data() + sound.Written, size, nullptr, 0, PA_SEEK_RELATIVE);
    sound.Written += size;
    if (size < left) return;
    pa_operation* const drained = pa_stream_drain(
        sound.Stream,
        [](pa_stream*, int, void* user) {
            auto& played = *static_cast<Sound*>(user);
            played.Bound = played.Player.loop.Loop().After(0, [&played] { played.Player.End(played.File); });
        },
        &sound);
    if (drained) pa_operation_unref(drained);
}

void SoundPlayer::End(const std::filesystem::path& file) {
    const auto found = sounds.find(file);
    const std::unique_ptr<Sound> sound = std::move(found->second);
    sounds.erase(found);
    if (!sound->Stream) return;
    pa_stream_set_write_callback(sound->Stream, nullptr, nullptr);
    pa_stream_disconnect(sound->Stream);
    pa_stream_unref(sound->Stream);
}

}  // namespace orvelle::pulse
