#include "simulators/directory/Channels.h"

#include <cstdio>

namespace orvelle::directory {

namespace {

constexpr long long HertzInKilohertz = 1000;
constexpr int CutPeriod = 50;  // kHz; within each the channel x25 (x75) is called x20 (x70) when it is cut
constexpr int CutName = 20;
constexpr int LeftOut = 5;

}  // namespace

// 118.02 and 118.07 are channels of 25 kHz whose last digit was left out; no channel of either width has such a name.
std::optional<int> ChannelOfKilohertz(int kilohertz) {
    if (kilohertz % CutPeriod == CutName) kilohertz += LeftOut;
    if (kilohertz < FirstChannel || kilohertz > LastChannel) return std::nullopt;
    return kilohertz;
}

std::optional<int> ChannelOfHertz(long long hertz) {
    if (hertz < FirstChannel * HertzInKilohertz || hertz > (LastChannel + 1) * HertzInKilohertz) return std::nullopt;
    return ChannelOfKilohertz(static_cast<int>((hertz + HertzInKilohertz / 2) / HertzInKilohertz));
}

std::string Megahertz(int kilohertz) {
    char text[24];
    std::snprintf(text, sizeof text, "%d.%03d", kilohertz / 1000, kilohertz % 1000);
    return text;
}

}  // namespace orvelle::directory
