// Devices as a test has them, for the voice test's dialogue.
#pragma once

#include <QDialog>
#include <QTimer>
#include <functional>
#include <vector>

#include "platform/VoiceDialogs.h"

namespace orvelle::qt {

class ScriptedTrial : public VoiceTrial {
public:
    bool MicrophoneWorks() const override { return Microphone; }
    bool HeadsetWorks() const override { return Headset; }
    double TakeInputLevel() override { return Input(); }
    double TakeOutputLevel() override { return Output; }
    void HearMyself(bool on) override { Heard.push_back(on); }

    bool Microphone = true;
    bool Headset = true;
    std::function<double()> Input = [] { return 0; };
    double Output = 0;
    std::vector<bool> Heard;  // what was asked for
};

// The dialogue's seconds go by as fast as its levels can be taken.
inline void MakeQuick(const QDialog& dialog) { dialog.findChild<QTimer*>()->setInterval(0); }

}  // namespace orvelle::qt
