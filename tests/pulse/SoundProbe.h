// A mouth and an ear at a sound server, for tests and trials that measure what is heard where and when: plays samples
// into sinks and records sources, a sink's monitor among them, in pieces of five milliseconds with the moments at which
// they came. Works on a thread of its own, so that the test's thread may wait or serve a loop; every call can be made
// at any time. All sound is mono at 48 kHz. A device or server that goes ends what was played and recorded there.
#pragma once

#include <pulse/context.h>
#include <pulse/stream.h>
#include <pulse/thread-mainloop.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "tests/pulse/SoundRecording.h"

namespace orvelle::pulse {

enum class Playing { Once, AgainAndAgain };

// A sine; `level` is its amplitude, 0 to 1. Whole periods of whole hertz in a second go on without a click.
std::vector<float> Tone(double hertz, Long milliseconds, double level = 0.25);
// A tone and then silence, for AgainAndAgain.
std::vector<float> Burst(double hertz, Long milliseconds, Long period, double level = 0.25);

class SoundProbe {
public:
    // Is connected when it is made; std::runtime_error where that fails. `server` "" is the user's own.
    explicit SoundProbe(const std::string& server = "");
    SoundProbe(const SoundProbe&) = delete;
    SoundProbe& operator=(const SoundProbe&) = delete;
    ~SoundProbe();

    // From now on, in place of what is played there; an empty one is silence. Returns when the sink takes sound; the
    // stream stays open until Stop, so that what follows begins at once. std::runtime_error where there is no such
    // sink.
    void Play(const std::string& sink, std::vector<float> samples, Playing playing);
    void Stop(const std::string& sink);

    // Returns with the first piece; std::runtime_error where there is no such source.
    void Record(const std::string& source);
    // What was recorded since Record or the last Take.
    SoundRecording Take(const std::string& source);
    // The same, which stays; and the end of it, for whoever looks again and again.
    SoundRecording Recorded(const std::string& source);
    SoundRecording Last(const std::string& source, Long milliseconds);

private:
    struct Mouth;
    struct Ear;

    pa_stream* NewStream();
    bool AwaitReady(pa_stream* stream);

    pa_threaded_mainloop* loop;
    pa_context* context = nullptr;
    std::map<std::string, std::unique_ptr<Mouth>> mouths;  // by sink
    std::map<std::string, std::unique_ptr<Ear>> ears;      // by source
};

}  // namespace orvelle::pulse
