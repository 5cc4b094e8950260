// Frequencies of the airband as the two radios take and show them: 118.000 to 136.990 MHz, the names of all channels in
// steps of 25 or 8.33 kHz.
#pragma once

#include <optional>
#include <string>

namespace orvelle::deck {

// The text by which a radio shows what the user typed: "122.8" and "122,8" are 122.800, and the third digit may be left
// out of the 25 kHz channels, so that "118.02" is 118.025. "" stays what it is, a radio that is tuned to nothing;
// nothing for what is no frequency.
std::optional<std::string> TunedFrequency(const std::string& typed);

}  // namespace orvelle::deck
