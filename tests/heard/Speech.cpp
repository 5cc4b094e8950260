#include "tests/heard/Speech.h"

#include <cstring>
#include <limits>
#include <optional>

#include "adapters/pulse/WaveFile.h"
#include "adapters/speech/Block.h"
#include "tests/linux/ChildProcess.h"
#include "tests/shared/OwnFolder.h"

namespace orvelle::heard {

namespace {

constexpr const char* Sentence =
    "Hamburg Tower, Delta Lima Hotel four one two, holding short of runway two three, ready for departure. "
    "Cleared for take off, wind two four zero degrees at eight knots, report passing three thousand feet.";

}  // namespace

std::vector<float> Speech() {
    const OwnFolder folder;
    const std::string file = folder.Path / "sentence.wav";
    linux::ChildProcess({"espeak-ng", "-s", "150", "-w", file, Sentence}).Wait();
    const std::optional<pulse::WaveFile> spoken = pulse::ReadWaveFile(file);
    if (!spoken || spoken->Channels != 1) return {};
    std::vector<short> samples(spoken->Samples.size() / sizeof(short));
    std::memcpy(samples.data(), spoken->Samples.data(), samples.size() * sizeof(short));

    // Between two of its samples a line is near enough.
    const double step = spoken->Rate / double{speech::SampleRate};
    std::vector<float> speech;
    for (double at = 0; at + 1 < static_cast<double>(samples.size()); at = static_cast<double>(speech.size()) * step) {
        const auto before = static_cast<std::size_t>(at);
        const double share = at - static_cast<double>(before);
        const double sample = samples[before] * (1 - share) + samples[before + 1] * share;
        speech.push_back(static_cast<float>(sample / std::numeric_limits<short>::max()));
    }
    return speech;
}

}  // namespace orvelle::heard
