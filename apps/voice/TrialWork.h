// The voice thread's half of a trial of the devices: see DeviceTrial.h, which holds it.
#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <string>

#include "adapters/pulse/VoiceStreams.h"
#include "adapters/speech/OutputMix.h"
#include "adapters/speech/VoiceEncoder.h"
#include "apps/voice/PeakLevel.h"

namespace orvelle {

// Written here, read by the other thread.
struct TrialReadings {
    std::atomic<bool> MicrophoneWorks = false;
    std::atomic<bool> HeadsetWorks = false;
    PeakLevel Input, Output;
};

class TrialWork {
public:
    TrialWork(EventLoop& loop, std::shared_ptr<TrialReadings> trialReadings, const std::string& source,
              const std::string& sink);

    void HearMyself(bool on);

private:
    void Record(const speech::Block& block);
    void Play(Long output, speech::Block& block);
    void FollowDevices();

    const std::shared_ptr<TrialReadings> readings;
    pulse::VoiceStreams streams;
    speech::VoiceEncoder encoder;
    speech::OutputMix mix;
    bool isHeard = false;
    std::uint64_t sequence = 0;
};

}  // namespace orvelle
