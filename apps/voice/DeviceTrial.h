// Microphone and headset at work without any room, for as long as the user tries them: their levels, and one's own
// voice in the headset as others would hear it, through the codec and the mixing, but by no server. Made by the engine
// while its dialogue is open; the devices are open on a thread of their own.
#pragma once

#include <atomic>
#include <memory>
#include <string>

#include "apps/voice/PeakLevel.h"
#include "apps/voice/TrialWork.h"
#include "apps/voice/WorkThread.h"
#include "platform/VoiceDialogs.h"

namespace orvelle {

class DeviceTrial : public VoiceTrial {
public:
    // By the sound server's own names, "" its default device. std::system_error where no thread can be had.
    DeviceTrial(const std::string& source, const std::string& sink);

    bool MicrophoneWorks() const override { return readings->MicrophoneWorks; }
    bool HeadsetWorks() const override { return readings->HeadsetWorks; }
    double TakeInputLevel() override { return readings->Input.Take(); }
    double TakeOutputLevel() override { return readings->Output.Take(); }
    void HearMyself(bool on) override;

private:
    const std::shared_ptr<TrialReadings> readings = std::make_shared<TrialReadings>();
    WorkThread<TrialWork> work;
};

}  // namespace orvelle
