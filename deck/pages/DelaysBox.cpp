#include "deck/pages/DelaysBox.h"

#include <QSpinBox>

#include "adapters/embedded/SetUp.h"
#include "deck/fields/Fields.h"

namespace orvelle::deck {

namespace {

template <typename Peer>
QSpinBox* NewPeerDelay(const QString& name, const QString& toolTip, Peer& peer) {
    return NewDelay(name, toolTip, peer.Delay(), [&peer](int milliseconds) { peer.SetDelay(milliseconds); });
}

}  // namespace

DelaysBox::DelaysBox(EmbeddedSetUp& setUp) : Section("Delays", "Delays", 2) {
    const auto addRow = [this](const QString& label, QSpinBox* box) { AddRow(label, {box, new QWidget}); };
    addRow("Simulator", NewPeerDelay("SimulatorDelay", "From the simulator's computer to the panel", setUp.Velmarc));
    addRow("Network", NewPeerDelay("NetworkDelay", "From the network to the panel", setUp.Tessaly));
    addRow("Headset mixer", NewPeerDelay("HeadsetMixerDelay", "From the mixer of microphone and headset to the panel",
                                         setUp.VolumeControl));
    addRow("Speakers mixer",
           NewPeerDelay("SpeakersMixerDelay", "From the mixer of the speakers to the panel", setUp.VolumeControlHP));
}

}  // namespace orvelle::deck
