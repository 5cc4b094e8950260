#include "tests/heard/EngineRig.h"

#include <chrono>
#include <vector>

namespace orvelle::heard {

namespace {

constexpr int MostRounds = 40;  // of three seconds

}  // namespace

HeardBursts EngineRig::Hear(int speaker, int listener, int count) {
    Reference reference(sounds, Microphone(speaker));
    const std::string mouth = Microphone(speaker);
    const std::string ear = Ear(listener);
    const std::vector<std::string> sources{mouth, ear, Reference::Ear};
    for (const std::string& source : sources) probe.Record(source);
    probe.Play(Mouth(speaker), pulse::Burst(BurstHertz, BurstMilliseconds, BurstPeriod), pulse::Playing::AgainAndAgain);
    EXPECT_TRUE(linux::WaitUntil([&] { return probe.Last(ear, 4 * BurstPeriod).Sounds().size() >= 3; }));
    Pass(ear, 4 * BurstPeriod);
    HeardBursts heard;
    int excused = 0;
    for (int round = 0; round < MostRounds && heard.Spoken < count; ++round) {
        for (const std::string& source : sources) probe.Take(source);
        Pass(ear, 6 * BurstPeriod);
        heard.Add(Compare(probe.Take(mouth), probe.Take(ear), probe.Take(Reference::Ear)));
        if (std::exchange(excused, heard.Excused) == heard.Excused) continue;
        reference.Renew();
        Pass(ear, 2 * BurstPeriod);
    }
    EXPECT_GE(heard.Spoken, count) << "the machine had no time for more";
    probe.Stop(Mouth(speaker));
    return heard;
}

bool EngineRig::MachineWasInTime() {
    const pulse::SoundRecording recorded = probe.Take(Reference::Ear);
    const auto pieces = recorded.Sounds(pulse::LeastSound, Hole);
    return pieces.size() == 1 && pieces.front().first <= recorded.At(Hole * 48);
}

void EngineRig::Pass(const std::string& source, Long milliseconds) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds);
    EXPECT_TRUE(linux::WaitUntil([&] {
        const pulse::SoundRecording last = probe.Last(source, 1);
        return !last.Samples().empty() && last.At(last.Samples().size() - 1) > end;
    }));
}

bool EngineRig::IsHeardNow(const std::string& ear, double hertz) {
    const pulse::SoundRecording recorded = probe.Recorded(ear);
    if (recorded.Samples().size() < 4800) return false;
    const pulse::Moment end = recorded.At(recorded.Samples().size() - 1);
    const pulse::Moment begin = end - std::chrono::milliseconds(100);
    const double level = recorded.ToneLevel(hertz, begin, end);
    return level > -60 && level > recorded.ToneLevel(5000, begin, end) + 20;
}

}  // namespace orvelle::heard
