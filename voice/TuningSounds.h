// The sounds that tell the user of a change of channel, by their files on the simulator's computer.
#pragma once

namespace orvelle {

constexpr const char* OnChannelSound = "Tessaly\\RADIO_ONCHANNEL.wav";
constexpr const char* NoChannelSound = "Tessaly\\RADIO_NOCHANNEL.wav";

}  // namespace orvelle
