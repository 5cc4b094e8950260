#include "simulators/xplane/XPlanePackets.h"

#include <gtest/gtest.h>

namespace orvelle::simulators {
namespace {

// One of 12.1.4 at port 49000 of the computer "cockpit", byte by byte.
const std::string Good(
    "BECN\0"
    "\x01\x02"
    "\x01\0\0\0"
    "\x38\xDA\x01\0"
    "\x01\0\0\0"
    "\x68\xBF"
    "cockpit\0"
    "\x72\xBF",
    31);

std::string With(std::size_t place, char byte) {
    std::string packet = Good;
    packet[place] = byte;
    return packet;
}

std::string Pair(std::string_view number, std::string_view value) { return std::string(number) + std::string(value); }

TEST(XPlanePacketsTest, ABeaconIsRead) {
    const std::optional<Beacon> beacon = ReadBeacon(Good);
    ASSERT_TRUE(beacon);
    EXPECT_EQ(beacon->Version, 121400);
    EXPECT_EQ(beacon->Port, 49000);
    EXPECT_EQ(beacon->Name, "cockpit");
}

TEST(XPlanePacketsTest, OtherHostsRolesAndMajorVersionsAreNone) {
    EXPECT_FALSE(ReadBeacon(With(5, 2))) << "major version 2";
    EXPECT_FALSE(ReadBeacon(With(5, 0))) << "major version 0";
    EXPECT_FALSE(ReadBeacon(With(7, 2))) << "PlaneMaker";
    EXPECT_FALSE(ReadBeacon(With(8, 1))) << "host 257";
    EXPECT_FALSE(ReadBeacon(With(15, 2))) << "another role";
    EXPECT_FALSE(ReadBeacon(With(18, '\x80'))) << "a role beyond all";
    EXPECT_FALSE(ReadBeacon(With(0, 'b'))) << "another packet";
    EXPECT_FALSE(ReadBeacon(With(4, ','))) << "another packet";
    std::string portless = With(19, 0);
    portless[20] = 0;
    EXPECT_FALSE(ReadBeacon(portless)) << "no port";
    EXPECT_TRUE(ReadBeacon(With(6, 1))) << "minor version 1";
    EXPECT_TRUE(ReadBeacon(With(6, 99))) << "a minor version to come";
}

TEST(XPlanePacketsTest, ABeaconThatIsCutIsNone) {
    for (std::size_t length = 0; length < 21; ++length) EXPECT_FALSE(ReadBeacon(Good.substr(0, length))) << length;
    EXPECT_EQ(ReadBeacon(Good.substr(0, 21))->Name, "");
    EXPECT_EQ(ReadBeacon(Good.substr(0, 25))->Name, "cock") << "a name without its zero";
}

TEST(XPlanePacketsTest, ANameIsNoLongerThanDocumentedAndText) {
    EXPECT_EQ(ReadBeacon(Good.substr(0, 21) + std::string(1000, 'x'))->Name, std::string(500, 'x'));
    EXPECT_EQ(ReadBeacon(With(22, '\xFF'))->Name, "");
}

TEST(XPlanePacketsTest, ASubscriptionIsWritten) {
    const std::string packet = WriteSubscription(20, 258, "sim/time/paused");
    ASSERT_EQ(packet.size(), 413U);
    EXPECT_EQ(packet.substr(0, 13), std::string("RREF\0\x14\0\0\0\x02\x01\0\0", 13));
    EXPECT_EQ(packet.substr(13), "sim/time/paused" + std::string(385, '\0'));
    EXPECT_EQ(WriteSubscription(1, -1, "").substr(9, 4), "\xFF\xFF\xFF\xFF");
    EXPECT_EQ(WriteSubscription(1, 0, std::string(399, 'x')).size(), 413U);
    EXPECT_EQ(WriteSubscription(1, 0, std::string(399, 'x')).back(), '\0');
    EXPECT_EQ(WriteSubscription(1, 0, std::string(400, 'x')), "");
}

TEST(XPlanePacketsTest, ValuesAreReadWithTheNewHeadAndTheOldOne) {
    const std::string pairs =
        Pair({"\x07\0\0\0", 4}, {"\0\x08\xE7\x47", 4}) + Pair("\xFF\xFF\xFF\xFF", {"\0\0\0\xBF", 4});
    const std::vector<NumberedValue> told = {{7, 118288.0F}, {-1, -0.5F}};
    EXPECT_EQ(ReadValues("RREF," + pairs), told);
    EXPECT_EQ(ReadValues("RREFO" + pairs), told);
    EXPECT_FALSE(ReadValues(std::string("RREF\0", 5) + pairs)) << "a subscription";
    EXPECT_FALSE(ReadValues("DATA," + pairs));
}

TEST(XPlanePacketsTest, ValuesOfOtherLengthsAreNone) {
    EXPECT_FALSE(ReadValues(""));
    EXPECT_FALSE(ReadValues("RREF"));
    EXPECT_FALSE(ReadValues("RREF,")) << "no value at all";
    EXPECT_EQ(ReadValues("RREF," + std::string(183 * 8, '\0'))->size(), 183U);
    EXPECT_FALSE(ReadValues("RREF," + std::string(184 * 8, '\0'))) << "more than a packet holds";
    for (std::size_t more = 1; more < 8; ++more)
        EXPECT_FALSE(ReadValues("RREF," + std::string(16 + more, '\0'))) << more;
}

TEST(XPlanePacketsTest, ValuesThatAreNoNumbersAreLeftOut) {
    const std::string number("\x01\0\0\0", 4);
    const std::vector<NumberedValue> told = {{1, 1.0F}};
    EXPECT_EQ(ReadValues("RREF," + Pair(number, {"\0\0\xC0\x7F", 4}) + Pair(number, {"\0\0\x80\x7F", 4}) +
                         Pair(number, {"\0\0\x80\x3F", 4}) + Pair(number, {"\0\0\x80\xFF", 4})),
              told);
    EXPECT_EQ(ReadValues("RREF," + Pair(number, {"\0\0\xC0\x7F", 4})), std::vector<NumberedValue>());
}

}  // namespace
}  // namespace orvelle::simulators
