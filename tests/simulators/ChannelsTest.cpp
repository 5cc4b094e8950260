#include "simulators/directory/Channels.h"

#include <gtest/gtest.h>

#include <climits>

namespace orvelle::directory {
namespace {

TEST(Channels, TheDigitThatOldRadiosLeaveOutIsPutBack) {
    EXPECT_EQ(ChannelOfKilohertz(118020), 118025);
    EXPECT_EQ(ChannelOfKilohertz(118070), 118075);
    EXPECT_EQ(ChannelOfHertz(121'720'000), 121725);
    for (const int channel : {118000, 118005, 118010, 118015, 118025, 118030, 118050, 118065, 118075, 118090, 136990})
        EXPECT_EQ(ChannelOfKilohertz(channel), channel);
}

TEST(Channels, NothingOutsideTheBandIsAChannel) {
    for (const int kilohertz : {0, -1, 117999, 117995, 136996, 137000, INT_MAX, INT_MIN})
        EXPECT_FALSE(ChannelOfKilohertz(kilohertz)) << kilohertz;
    for (const long long hertz : {0LL, -118'300'000LL, 117'999'999LL, 136'995'500LL, 118'300LL, LLONG_MAX, LLONG_MIN})
        EXPECT_FALSE(ChannelOfHertz(hertz)) << hertz;
    EXPECT_EQ(ChannelOfHertz(118'000'000), FirstChannel);
    EXPECT_EQ(ChannelOfHertz(136'995'000), LastChannel);
}

TEST(Channels, AreShownInMegahertz) {
    EXPECT_EQ(Megahertz(118300), "118.300");
    EXPECT_EQ(Megahertz(118005), "118.005");
}

}  // namespace
}  // namespace orvelle::directory
