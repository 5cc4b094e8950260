#include "deck/pages/DelaysBox.h"

#include <QSpinBox>

#include "deck/fields/Fields.h"
#include "platform/sides/FarSides.h"
#include "platform/sides/LinkSide.h"
#include "platform/sides/MixerSide.h"
#include "platform/sides/PlayedLinkSide.h"

namespace orvelle::deck {

namespace {

template <typename Peer>
QSpinBox* NewPeerDelay(const QString& name, const QString& toolTip, Peer& peer) {
    return NewDelay(name, toolTip, peer.Delay(), [&peer](int milliseconds) { peer.SetDelay(milliseconds); });
}

// Null where the link is real or not here.
PlayedLinkSide* PlayedOf(LinkSide* link) { return link ? link->Played() : nullptr; }

}  // namespace

DelaysBox::DelaysBox(const FarSides& sides) : Section("Delays", "How long events take to the panel", 2) {
    const auto addRow = [this](const QString& label, const QString& name, const QString& toolTip, auto* peer) {
        if (peer) AddRow(label, {NewPeerDelay(name, toolTip, *peer), new QWidget});
    };
    addRow("Simulator", "SimulatorDelay", "From the simulator's computer to the panel", PlayedOf(sides.SimulatorLink));
    addRow("Network", "NetworkDelay", "From the network to the panel", PlayedOf(sides.NetworkLink));
    const auto served = [](MixerSide* mixer) { return mixer && mixer->IsServing() ? mixer : nullptr; };
    addRow("Headset mixer", "HeadsetMixerDelay", "From the mixer of microphone and headset to the panel",
           served(sides.HeadsetMixer));
    addRow("Speakers mixer", "SpeakersMixerDelay", "From the mixer of the speakers to the panel",
           served(sides.SpeakersMixer));
}

}  // namespace orvelle::deck
