// Frequencies as channels are named: in kHz, 8.33-kHz channels by their names (118.305), and the last digit that old
// radios and lists leave out (118.02 for 118.025, 118.07 for 118.075) put back. One rule for radios and directories.
#pragma once

#include <optional>
#include <string>

namespace orvelle::directory {

constexpr int FirstChannel = 118000;  // kHz
constexpr int LastChannel = 136995;

// The name of the channel that a frequency in Hz or a radio's kHz means; nothing outside the band of aircraft's radios.
std::optional<int> ChannelOfKilohertz(int kilohertz);
std::optional<int> ChannelOfHertz(long long hertz);

std::string Megahertz(int kilohertz);  // "118.300", ready to show

}  // namespace orvelle::directory
