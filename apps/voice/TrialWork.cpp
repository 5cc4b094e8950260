#include "apps/voice/TrialWork.h"

#include <utility>

#include "adapters/speech/Squelch.h"

namespace orvelle {

namespace {

constexpr Long TrialRoom = 0;
constexpr std::uint32_t Myself = 1;

}  // namespace

TrialWork::TrialWork(EventLoop& loop, std::shared_ptr<TrialReadings> trialReadings, const std::string& source,
                     const std::string& sink)
    : readings(std::move(trialReadings)), streams(loop) {
    mix.Route(TrialRoom, true);
    streams.Recorded = [this](const speech::Block& block) { Record(block); };
    streams.Wanted = [this](Long output, speech::Block& block) { Play(output, block); };
    streams.Changed = [this] { FollowDevices(); };
    streams.SetMicrophone(source);
    for (const Long output : {Headset, Speakers}) streams.SetOutput(output, sink);
    streams.OpenMicrophone();
    streams.OpenOutputs();
}

void TrialWork::HearMyself(bool on) {
    if (std::exchange(isHeard, on) == on) return;
    on ? encoder.Restart() : mix.Forget(TrialRoom);
}

void TrialWork::Record(const speech::Block& block) {
    readings->Input.Add(speech::LevelOf(block));
    if (!isHeard) return;
    if (const auto packet = encoder.Encode(block); !packet.empty())
        mix.Put(TrialRoom, {.Speaker = Myself, .Sequence = sequence++, .Opus = packet});
    streams.RouseOutputs();
}

// The speakers, on the same device, stay silent.
void TrialWork::Play(Long output, speech::Block& block) {
    if (output != Headset) return;
    mix.Take(block);
    readings->Output.Add(speech::HeardLevelOf(block));
}

void TrialWork::FollowDevices() {
    readings->MicrophoneWorks = streams.MicrophoneWorks();
    readings->HeadsetWorks = streams.OutputWorks(Headset);
}

}  // namespace orvelle
