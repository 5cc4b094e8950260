// What the directories name for a frequency that is typed by hand on the simulator's computer, where no place is known:
// the only station of its channel, a channel that is valid everywhere, or what counts otherwise.
#pragma once

#include <string>

#include "deck/pages/ChannelLookUp.h"
#include "simulators/directory/OwnLogins.h"
#include "simulators/directory/StationIndex.h"

namespace orvelle {

// `frequency` as "118.305"; `callsign` the user's.
deck::FoundChannel LookUpByHand(const directory::StationIndex& index, const directory::OwnLogins& logins,
                                const std::string& frequency, const std::string& callsign);

}  // namespace orvelle
