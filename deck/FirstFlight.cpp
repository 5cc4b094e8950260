#include "deck/FirstFlight.h"

#include "platform/embedded/SetUp.h"

namespace orvelle {

void PrepareFirstFlight(EmbeddedSetUp& setUp) {
    auto& tessaly = setUp.Tessaly;
    tessaly.SetCallsign("ORV123");
    tessaly.SetFrequency(0, "122.800");
    tessaly.SetFrequency(1, "121.500");
    tessaly.SetReceive(SelectsCom1);
    tessaly.SetTransmit(SelectsCom1);
    tessaly.SetStatus(ConnectedToMultiplayer);
    tessaly.StartSession();
    tessaly.SetLink(LinkState::Up);
    setUp.Velmarc.SetLink(LinkState::Up);
}

}  // namespace orvelle
