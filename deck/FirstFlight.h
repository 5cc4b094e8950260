// A set-up as the first-time user meets it: both links up, a session open and connected under a callsign, COM1 and COM2
// tuned and COM1 selected, no voice software yet. The program calls it once, before the deck opens, if it wants that.
#pragma once

namespace orvelle {

struct FarSides;

// The sides that are there.
void PrepareFirstFlight(const FarSides& sides);

}  // namespace orvelle
