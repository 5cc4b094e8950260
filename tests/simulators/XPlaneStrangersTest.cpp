// What an X-Plane may send beyond what is awaited, what others may send in its place, and what gets lost.
#include <gtest/gtest.h>

#include "tests/simulators/XPlaneRig.h"

namespace orvelle::simulators {
namespace {

TEST(XPlaneStrangersTest, BeaconsOfOthersBringNothing) {
    XPlaneRig rig;
    rig.Server.SendsBeacons = false;
    rig.Pass(100);
    const std::string good = rig.Server.Beacon();
    std::string other = good;
    other[5] = 2;
    rig.Server.SendBeacon(other);
    other = good;
    other[7] = 2;
    rig.Server.SendBeacon(other);
    for (const std::string& packet : {good.substr(0, 20), std::string(), std::string(2000, 'x'), "x" + good})
        rig.Server.SendBeacon(packet);
    rig.Pass(2000);
    EXPECT_EQ(rig.Server.Requests(), 0);
    rig.Server.SendBeacon(good);
    rig.Pass(2000);
    EXPECT_TRUE(rig.Tells(118305));
}

TEST(XPlaneStrangersTest, AnswersThatAreNoneChangeNothing) {
    XPlaneRig rig;
    rig.Pass(2000);
    rig.Changes = 0;
    const std::string kilohertz("\0\0\0\0\0\0\x80\x3F", 8);
    for (const std::string& packet :
         {"RREF," + kilohertz + "x", "DATA," + kilohertz, std::string("RREF,"), std::string(),
          std::string("RREF,\0\0\0\0\0\0\xC0\x7F", 13), std::string("RREF,\xE8\x03\0\0\0\0\x80\x3F", 13),
          "RREF," + std::string(184 * 8, '\0'), std::string(2048, 'R')})
        rig.Server.SendAnswer(packet);
    rig.Loop.Serve();
    EXPECT_EQ(rig.Changes, 0);
    EXPECT_TRUE(rig.Tells(118305));
    // One that is whole would have changed it.
    rig.Server.SendAnswer("RREF," + kilohertz);
    rig.Loop.Serve();
    EXPECT_TRUE(rig.Tells(1));
}

TEST(XPlaneStrangersTest, APacketOfTheMostValuesIsTakenWhole) {
    XPlaneRig rig;
    rig.Pass(2000);
    rig.Server.SendAnswer("RREF," + std::string(182 * 8, '\xFF') + std::string("\0\0\0\0\0\0\x80\x3F", 8));
    rig.Loop.Serve();
    EXPECT_TRUE(rig.Tells(1));
}

TEST(XPlaneStrangersTest, TheOldHeadAndManySmallPacketsAreTheSame) {
    XPlaneRig rig;
    rig.Server.Head = "RREFO";
    rig.Server.PairsInPacket = 1;
    rig.Pass(2000);
    EXPECT_TRUE(rig.Tells(118305));
    EXPECT_EQ(rig.Source.State()->Tail, "N172SP");
    EXPECT_TRUE(rig.Source.State()->Where);
}

TEST(XPlaneStrangersTest, WhatIsLostComesLater) {
    XPlaneRig rig;
    rig.Server.PairsInPacket = 3;
    rig.Server.LosesOneOf = 4;
    EXPECT_GE(rig.PassUntil([&] {
        return rig.Source.State() && rig.Source.State()->Where && rig.Source.State()->Tail == "N172SP" &&
               rig.Source.State()->Aircraft == "C172" && rig.Tells(118305);
    }),
              0);
    rig.Server.Values[Com1] = 119100;
    EXPECT_GE(rig.PassUntil([&] { return rig.Tells(119100); }), 0);
}

TEST(XPlaneStrangersTest, OthersMayReadTheSameXPlane) {
    XPlaneRig rig;
    int changes = 0;
    XPlaneRref other(rig.Loop, ProcessQuestions(), {rig.Server.BeaconPort()});
    other.Changed = [&changes] { ++changes; };
    rig.Pass(2000);
    EXPECT_TRUE(rig.Tells(118305));
    EXPECT_EQ(other.Stands(), Presence::Live);
    EXPECT_EQ(*other.State(), *rig.Source.State());
    EXPECT_GT(changes, 0);
}

TEST(XPlaneStrangersTest, APortThatSomebodyKeepsIsToldAndTriedAgain) {
    XPlaneServer server;
    SocketClock loop;
    server.KeepBeaconPort(PortUse::Alone);
    XPlaneRref source(loop, ProcessQuestions(), {server.BeaconPort()});
    int changes = 0;
    source.Changed = [&changes] { ++changes; };
    EXPECT_EQ(source.Problem(), "X-Plane can't be found, since port " + std::to_string(server.BeaconPort()) +
                                    " can't be had: another program keeps it to itself; it is tried again each "
                                    "second.");
    loop.Run(5000);
    EXPECT_EQ(changes, 0) << "told once";
    server.KeepBeaconPort(PortUse::Shared);
    loop.Run(1000);
    EXPECT_EQ(source.Problem(), "");
    EXPECT_EQ(changes, 1);
}

}  // namespace
}  // namespace orvelle::simulators
