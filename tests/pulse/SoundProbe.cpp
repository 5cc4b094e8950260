#include "tests/pulse/SoundProbe.h"

#include <cmath>
#include <numbers>
#include <stdexcept>
#include <utility>

#include "adapters/speech/Block.h"

namespace orvelle::pulse {

namespace {

constexpr pa_sample_spec Form{PA_SAMPLE_FLOAT32NE, speech::SampleRate, 1};
constexpr auto ServersChoice = static_cast<std::uint32_t>(-1);
constexpr pa_usec_t PieceMicroseconds = 5000;
constexpr pa_usec_t AheadMicroseconds = 20000;

std::size_t SamplesIn(Long milliseconds) {
    return static_cast<std::size_t>(milliseconds) * static_cast<std::size_t>(speech::SampleRate) / 1000;
}

class Locked {
public:
    explicit Locked(pa_threaded_mainloop* mainLoop) : loop(mainLoop) { pa_threaded_mainloop_lock(loop); }
    Locked(const Locked&) = delete;
    Locked& operator=(const Locked&) = delete;
    ~Locked() { pa_threaded_mainloop_unlock(loop); }

private:
    pa_threaded_mainloop* loop;
};

void WakeUp(void* loop) { pa_threaded_mainloop_signal(static_cast<pa_threaded_mainloop*>(loop), 0); }

bool IsThere(pa_stream* stream) { return PA_STREAM_IS_GOOD(pa_stream_get_state(stream)); }

void End(pa_stream* stream) {
    pa_stream_set_state_callback(stream, nullptr, nullptr);
    pa_stream_set_write_callback(stream, nullptr, nullptr);
    pa_stream_set_read_callback(stream, nullptr, nullptr);
    pa_stream_disconnect(stream);
    pa_stream_unref(stream);
}

}  // namespace

std::vector<float> Tone(double hertz, Long milliseconds, double level) {
    std::vector<float> samples(SamplesIn(milliseconds));
    for (std::size_t index = 0; index < samples.size(); ++index)
        samples[index] = static_cast<float>(
            level * std::sin(2 * std::numbers::pi * hertz * static_cast<double>(index) / speech::SampleRate));
    return samples;
}

std::vector<float> Burst(double hertz, Long milliseconds, Long period, double level) {
    std::vector<float> samples = Tone(hertz, milliseconds, level);
    samples.resize(SamplesIn(period));
    return samples;
}

struct SoundProbe::Mouth {
    explicit Mouth(pa_stream* playback) : Stream(playback) {}
    Mouth(const Mouth&) = delete;
    Mouth& operator=(const Mouth&) = delete;
    ~Mouth() { End(Stream); }

    float Next() {
        if (Place == Samples.size()) {
            if (Kind == Playing::Once) Samples.clear();
            Place = 0;
        }
        return Samples.empty() ? 0 : Samples[Place++];
    }
    void Write(std::size_t room) {
        std::vector<float> piece(room / sizeof(float));
        for (float& sample : piece) sample = Next();
        pa_stream_write(Stream, piece.data(), piece.size() * sizeof(float), nullptr, 0, PA_SEEK_RELATIVE);
    }

    pa_stream* const Stream;
    std::vector<float> Samples;
    std::size_t Place = 0;
    Playing Kind = Playing::Once;
};

struct SoundProbe::Ear {
    Ear(pa_threaded_mainloop* mainLoop, pa_stream* recording) : Loop(mainLoop), Stream(recording) {}
    Ear(const Ear&) = delete;
    Ear& operator=(const Ear&) = delete;
    ~Ear() { End(Stream); }

    void Read() {
        const Moment came = std::chrono::steady_clock::now();
        const void* data = nullptr;
        std::size_t size = 0;
        while (pa_stream_peek(Stream, &data, &size) == 0 && size > 0) {
            const std::vector<float> hole(data ? 0 : size / sizeof(float));
            Heard.Add(came, data ? std::span(static_cast<const float*>(data), size / sizeof(float)) : std::span(hole));
            pa_stream_drop(Stream);
        }
        WakeUp(Loop);
    }

    pa_threaded_mainloop* const Loop;
    pa_stream* const Stream;
    SoundRecording Heard;
};

SoundProbe::SoundProbe(const std::string& server) : loop(pa_threaded_mainloop_new()) {
    pa_threaded_mainloop_start(loop);
    {
        const Locked locked(loop);
        context = pa_context_new(pa_threaded_mainloop_get_api(loop), "sound probe");
        pa_context_set_state_callback(
            context, [](pa_context*, void* user) { WakeUp(user); }, loop);
        pa_context_connect(context, server.empty() ? nullptr : server.c_str(), PA_CONTEXT_NOAUTOSPAWN, nullptr);
        while (PA_CONTEXT_IS_GOOD(pa_context_get_state(context)) && pa_context_get_state(context) != PA_CONTEXT_READY)
            pa_threaded_mainloop_wait(loop);
        if (pa_context_get_state(context) == PA_CONTEXT_READY) return;
        pa_context_unref(context);
    }
    pa_threaded_mainloop_stop(loop);
    pa_threaded_mainloop_free(loop);
    throw std::runtime_error("no sound server");
}

SoundProbe::~SoundProbe() {
    {
        const Locked locked(loop);
        mouths.clear();
        ears.clear();
        pa_context_set_state_callback(context, nullptr, nullptr);
        pa_context_disconnect(context);
        pa_context_unref(context);
    }
    pa_threaded_mainloop_stop(loop);
    pa_threaded_mainloop_free(loop);
}

pa_stream* SoundProbe::NewStream() {
    pa_stream* const stream = pa_stream_new(context, "sound probe", &Form, nullptr);
    if (!stream) throw std::runtime_error("the sound server is gone");
    pa_stream_set_state_callback(
        stream, [](pa_stream*, void* user) { WakeUp(user); }, loop);
    return stream;
}

bool SoundProbe::AwaitReady(pa_stream* stream) {
    while (pa_stream_get_state(stream) == PA_STREAM_CREATING) pa_threaded_mainloop_wait(loop);
    return pa_stream_get_state(stream) == PA_STREAM_READY;
}

void SoundProbe::Play(const std::string& sink, std::vector<float> samples, Playing playing) {
    const Locked locked(loop);
    if (const auto gone = mouths.find(sink); gone != mouths.end() && !IsThere(gone->second->Stream)) mouths.erase(gone);
    std::unique_ptr<Mouth>& mouth = mouths[sink];
    if (!mouth) {
        mouth = std::make_unique<Mouth>(NewStream());
        pa_stream_set_write_callback(
            mouth->Stream, [](pa_stream*, std::size_t room, void* user) { static_cast<Mouth*>(user)->Write(room); },
            mouth.get());
        pa_buffer_attr buffer{};
        buffer.maxlength = buffer.prebuf = buffer.minreq = buffer.fragsize = ServersChoice;
        buffer.tlength = static_cast<std::uint32_t>(pa_usec_to_bytes(AheadMicroseconds, &Form));
        constexpr auto Flags = static_cast<pa_stream_flags_t>(PA_STREAM_ADJUST_LATENCY | PA_STREAM_DONT_MOVE);
        pa_stream_connect_playback(mouth->Stream, sink.c_str(), &buffer, Flags, nullptr, nullptr);
        if (!AwaitReady(mouth->Stream)) {
            mouths.erase(sink);
            throw std::runtime_error("no sink " + sink);
        }
    }
    mouth->Samples = std::move(samples);
    mouth->Place = 0;
    mouth->Kind = playing;
}

void SoundProbe::Stop(const std::string& sink) {
    const Locked locked(loop);
    mouths.erase(sink);
}

void SoundProbe::Record(const std::string& source) {
    const Locked locked(loop);
    std::unique_ptr<Ear>& ear = ears[source];
    ear = std::make_unique<Ear>(loop, NewStream());
    pa_stream_set_read_callback(
        ear->Stream, [](pa_stream*, std::size_t, void* user) { static_cast<Ear*>(user)->Read(); }, ear.get());
    pa_buffer_attr buffer{};
    buffer.maxlength = buffer.prebuf = buffer.minreq = buffer.tlength = ServersChoice;
    buffer.fragsize = static_cast<std::uint32_t>(pa_usec_to_bytes(PieceMicroseconds, &Form));
    constexpr auto Flags = static_cast<pa_stream_flags_t>(PA_STREAM_ADJUST_LATENCY | PA_STREAM_DONT_MOVE);
    pa_stream_connect_record(ear->Stream, source.c_str(), &buffer, Flags);
    if (AwaitReady(ear->Stream)) {
        while (IsThere(ear->Stream) && ear->Heard.Samples().empty()) pa_threaded_mainloop_wait(loop);
        return;
    }
    ears.erase(source);
    throw std::runtime_error("no source " + source);
}

SoundRecording SoundProbe::Take(const std::string& source) {
    const Locked locked(loop);
    return std::exchange(ears.at(source)->Heard, {});
}

SoundRecording SoundProbe::Recorded(const std::string& source) {
    const Locked locked(loop);
    return ears.at(source)->Heard;
}

SoundRecording SoundProbe::Last(const std::string& source, Long milliseconds) {
    const Locked locked(loop);
    return ears.at(source)->Heard.Last(SamplesIn(milliseconds));
}

}  // namespace orvelle::pulse
