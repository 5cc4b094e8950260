#include "deck/FirstFlight.h"

#include "platform/sides/FarSides.h"
#include "platform/sides/LinkSide.h"
#include "platform/sides/NetworkSide.h"

namespace orvelle {

void PrepareFirstFlight(const FarSides& sides) {
    if (NetworkSide* network = sides.Network) {
        network->SetCallsign("ORV123");
        network->SetFrequency(0, "122.800");
        network->SetFrequency(1, "121.500");
        network->SetReceive("1");
        network->SetTransmit("1");
        network->SetStatus(1);
        network->StartSession();
    }
    for (LinkSide* link : {sides.NetworkLink, sides.SimulatorLink})
        if (link) link->SetLink(LinkState::Up);
}

}  // namespace orvelle
