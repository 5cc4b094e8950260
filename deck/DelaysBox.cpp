#include "deck/DelaysBox.h"

#include <QSpinBox>

#include "deck/Fields.h"
#include "platform/embedded/SetUp.h"

namespace orvelle::deck {

namespace {

constexpr int LongestDelay = 60'000;
constexpr int DelayStep = 100;

QSpinBox* NewDelay(const QString& name, const QString& toolTip, Long value, std::function<void(int)> apply) {
    auto* box = NewNumber(name, toolTip, 0, LongestDelay, std::move(apply));
    box->setSuffix(" ms");
    box->setSingleStep(DelayStep);
    ShowNumber(*box, value);
    return box;
}

template <typename Peer>
QSpinBox* NewPeerDelay(const QString& name, const QString& toolTip, Peer& peer) {
    return NewDelay(name, toolTip, peer.Delay(), [&peer](int milliseconds) { peer.SetDelay(milliseconds); });
}

}  // namespace

DelaysBox::DelaysBox(EmbeddedSetUp& setUp) : Section("Delays", "Delays", 2) {
    auto& engine = setUp.VVL;
    const auto addRow = [this](const QString& label, QSpinBox* box) { AddRow(label, {box, new QWidget}); };
    addRow("Simulator", NewPeerDelay("SimulatorDelay", "From the simulator's computer to the panel", setUp.Velmarc));
    addRow("Network", NewPeerDelay("NetworkDelay", "From the network to the panel", setUp.Tessaly));
    addRow("Engine start", NewDelay("StartDelay", "From the voice engine's start to its event", engine.StartDelay(),
                                    [&engine](int milliseconds) { engine.SetStartDelay(milliseconds); }));
    addRow("Room join", NewDelay("JoinDelay", "From a room's join to its outcome", engine.JoinDelay(),
                                 [&engine](int milliseconds) { engine.SetJoinDelay(milliseconds); }));
    addRow("Headset mixer", NewPeerDelay("HeadsetMixerDelay", "From the mixer of microphone and headset to the panel",
                                         setUp.VolumeControl));
    addRow("Speakers mixer",
           NewPeerDelay("SpeakersMixerDelay", "From the mixer of the speakers to the panel", setUp.VolumeControlHP));
}

}  // namespace orvelle::deck
