#include "bench/PressListener.h"

#include <thread>
#include <utility>

#include "apps/Waiting.h"
#include "tests/heard/Bursts.h"

namespace orvelle {

namespace {

using heard::MillisecondsBetween;
using std::chrono::microseconds;
using std::chrono::milliseconds;

constexpr Long SilenceMilliseconds = 200;
constexpr milliseconds LoopStep{3};  // no less than what WaitUntil looks at

}  // namespace

PressListener::PressListener(pulse::SoundProbe& soundProbe, std::string source)
    : probe(soundProbe), ear(std::move(source)) {
    probe.Record(ear);
}

bool PressListener::Hear(PressWay& way) {
    Pause(milliseconds(300), milliseconds(700));
    probe.Take(ear);
    const pulse::Moment pressed = way.Press();
    const bool isHeard = WaitUntil([this] { return HasSound(); });
    Pause(milliseconds(200), milliseconds(300));
    const pulse::Moment released = way.Release();
    const bool isSilent = WaitUntil([this] { return !HasSound(); });
    const auto sounds = probe.Take(ear).Sounds();
    if (!isHeard || !isSilent) {
        ++way.Lost;
        return false;
    }
    way.ToSound.push_back(MillisecondsBetween(pressed, sounds.front().first));
    const double toSilence = MillisecondsBetween(released, sounds.back().second);
    if (sounds.size() > 1 || toSilence < 0) ++way.Broken;
    if (toSilence >= 0) way.ToSilence.push_back(toSilence);
    return true;
}

// The loop is served in steps, the end of the pause is not one of them.
void PressListener::Pause(microseconds least, microseconds most) {
    std::uniform_int_distribution<microseconds::rep> lengths(least.count(), most.count());
    const pulse::Moment end = std::chrono::steady_clock::now() + microseconds(lengths(numbers));
    WaitUntil([end] { return std::chrono::steady_clock::now() > end - LoopStep; });
    std::this_thread::sleep_until(end);
}

bool PressListener::HasSound() { return !probe.Last(ear, SilenceMilliseconds).Sounds().empty(); }

}  // namespace orvelle
