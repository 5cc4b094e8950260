#include "deck/FirstFlight.h"

#include "platform/RadioSelection.h"
#include "platform/Tessaly.h"
#include "platform/sides/FarSides.h"
#include "platform/sides/LinkSide.h"
#include "platform/sides/NetworkSide.h"

namespace orvelle {

void PrepareFirstFlight(const FarSides& sides) {
    if (NetworkSide* network = sides.Network) {
        network->SetCallsign("ORV123");
        network->SetFrequency(0, "122.800");
        network->SetFrequency(1, "121.500");
        network->SetReceive(SelectsCom1);
        network->SetTransmit(SelectsCom1);
        network->SetStatus(ConnectedToMultiplayer);
        network->StartSession();
    }
    for (LinkSide* link : {sides.NetworkLink, sides.SimulatorLink})
        if (link) link->SetLink(LinkState::Up);
}

}  // namespace orvelle
