#include "simulators/xplane/XPlaneTarget.h"

#include <gtest/gtest.h>

namespace orvelle::simulators {
namespace {

constexpr std::uint32_t Loopback = 0x7F000001;
const XPlaneTarget Own{XPlaneOwner::ThisComputer, Loopback, 49000, 121400};
const XPlaneTarget OwnElsewhere{XPlaneOwner::ThisComputer, Loopback, 49100, 121400};
const XPlaneTarget Foreign{XPlaneOwner::Another, 0xC0A80005, 49000, 121400};
const XPlaneTarget ForeignElsewhere{XPlaneOwner::Another, 0xC0A80005, 49100, 121400};
const XPlaneTarget OtherForeign{XPlaneOwner::Another, 0xC0A80006, 49000, 121400};

constexpr XPlaneAnswer Answers[] = {XPlaneAnswer::Awaited, XPlaneAnswer::None, XPlaneAnswer::Given,
                                    XPlaneAnswer::Paused};

TEST(XPlaneTargetTest, OneOfThisComputerComesBeforeAllOthers) {
    for (const XPlaneAnswer answer : Answers) {
        EXPECT_TRUE(TakesOver(Own, Foreign, answer));
        EXPECT_FALSE(TakesOver(Foreign, Own, answer));
    }
}

TEST(XPlaneTargetTest, TheSameNeverTakesOver) {
    for (const XPlaneAnswer answer : Answers) {
        EXPECT_FALSE(TakesOver(Own, Own, answer));
        EXPECT_FALSE(TakesOver(Foreign, Foreign, answer));
    }
}

TEST(XPlaneTargetTest, OneThatAnswersStays) {
    EXPECT_FALSE(TakesOver(OtherForeign, Foreign, XPlaneAnswer::Given));
    EXPECT_FALSE(TakesOver(OtherForeign, Foreign, XPlaneAnswer::Awaited));
    EXPECT_FALSE(TakesOver(OwnElsewhere, Own, XPlaneAnswer::Given));
}

TEST(XPlaneTargetTest, OneThatNeverAnswersGivesWay) {
    EXPECT_TRUE(TakesOver(OtherForeign, Foreign, XPlaneAnswer::None));
    EXPECT_TRUE(TakesOver(OwnElsewhere, Own, XPlaneAnswer::None));
}

TEST(XPlaneTargetTest, OneThatPausesGivesWayToAnotherPortOfItsComputer) {
    EXPECT_TRUE(TakesOver(OwnElsewhere, Own, XPlaneAnswer::Paused));
    EXPECT_TRUE(TakesOver(ForeignElsewhere, Foreign, XPlaneAnswer::Paused));
    EXPECT_FALSE(TakesOver(OtherForeign, Foreign, XPlaneAnswer::Paused));
}

TEST(XPlaneTargetTest, ItIsNamedByItsVersion) {
    EXPECT_EQ(NameOf(Own), "X-Plane 12");
    EXPECT_EQ(NameOf({XPlaneOwner::Another, 0, 1, 115503}), "X-Plane 11");
    EXPECT_EQ(NameOf({XPlaneOwner::Another, 0, 1, 104103}), "X-Plane 10");
    EXPECT_EQ(NameOf({XPlaneOwner::Another, 0, 1, 0}), "X-Plane");
    EXPECT_EQ(NameOf({XPlaneOwner::Another, 0, 1, -121400}), "X-Plane");
}

TEST(XPlaneTargetTest, OneOfAnotherComputerIsNamedWithThat) {
    XPlaneTarget target = Foreign;
    EXPECT_EQ(NameWithHost(target), "X-Plane 12 at 192.168.0.5");
    target.Host = "Cockpit-2 left";
    EXPECT_EQ(NameWithHost(target), "X-Plane 12 on Cockpit-2 left");
    for (const std::string& host : {std::string("<b>cockpit"), std::string("cock\npit"), std::string(64, 'x'),
                                    std::string("  "), std::string("K\xC3\xB6ln")}) {
        target.Host = host;
        EXPECT_EQ(NameWithHost(target), "X-Plane 12 at 192.168.0.5") << host;
    }
    target = Own;
    target.Host = "cockpit";
    EXPECT_EQ(NameWithHost(target), "X-Plane 12");
}

}  // namespace
}  // namespace orvelle::simulators
