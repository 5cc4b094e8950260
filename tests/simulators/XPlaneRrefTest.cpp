#include "simulators/xplane/XPlaneRref.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/simulators/XPlaneRig.h"

namespace orvelle::simulators {
namespace {

const std::string Actuators = "sim/cockpit2/radios/actuators/";

TEST(XPlaneRrefTest, IsFoundByItsBeaconAndTellsItsState) {
    XPlaneRig rig;
    rig.Process = 41;
    EXPECT_EQ(rig.Source.Name(), "X-Plane");
    EXPECT_EQ(rig.Source.Stands(), Presence::Absent);
    EXPECT_FALSE(rig.Source.State());

    rig.Pass(2000);
    EXPECT_EQ(rig.Source.Name(), "X-Plane 12");
    EXPECT_EQ(rig.Source.Stands(), Presence::Live);
    EXPECT_EQ(rig.Source.Run(), 1);
    EXPECT_EQ(rig.Source.Problem(), "");
    EXPECT_EQ(rig.Asked, 1);
    ASSERT_TRUE(rig.Source.State());
    const SimulatorState& state = *rig.Source.State();
    EXPECT_EQ(state.Radios[0], (Radio{118305, true, true}));
    EXPECT_EQ(state.Radios[1], (Radio{121500, true, false}));
    EXPECT_EQ(state.Transmits, 1);
    EXPECT_EQ(state.Callsign, "");
    EXPECT_EQ(state.Tail, "N172SP");
    EXPECT_EQ(state.Aircraft, "C172");
    EXPECT_TRUE(state.IsOnline);
    EXPECT_FALSE(state.IsPaused);
    ASSERT_TRUE(state.Where);
    EXPECT_NEAR(state.Where->Latitude, 63.985, 0.0001);
    EXPECT_NEAR(state.Where->Longitude, -22.6056, 0.0001);
    EXPECT_NEAR(state.Where->Altitude, 170.6, 0.1);
}

TEST(XPlaneRrefTest, AChangeIsToldOnceAndTheSameNever) {
    XPlaneRig rig;
    rig.Pass(3000);
    rig.Changes = 0;
    rig.Pass(20'000);
    EXPECT_EQ(rig.Changes, 0);
    rig.Server.Values[Com1] = 119100;
    rig.Pass(3000);
    EXPECT_EQ(rig.Changes, 1);
    EXPECT_TRUE(rig.Tells(119100));
}

TEST(XPlaneRrefTest, WhatWasNotToldIsNotKnown) {
    XPlaneRig rig;
    rig.Server.Values.erase(Actuators + "com2_frequency_hz_833");
    rig.Server.Values.erase(Actuators + "com1_power");
    rig.Server.Values.erase("sim/flightmodel/position/elevation");
    rig.Server.Values.erase("sim/aircraft/view/acf_tailnum[2]");
    rig.Pass(12'000);
    ASSERT_TRUE(rig.Source.State());
    EXPECT_EQ(rig.Source.State()->Radios[0], (Radio{118305, false, false}));
    EXPECT_EQ(rig.Source.State()->Radios[1], (Radio{0, true, false}));
    EXPECT_FALSE(rig.Source.State()->Where);
    EXPECT_EQ(rig.Source.State()->Tail, "");
}

TEST(XPlaneRrefTest, ASilentOneIsBusyAsLongAsItsProcessIsThere) {
    XPlaneRig rig;
    rig.Process = 41;
    rig.Pass(2000);
    rig.Server.Hang(true);
    EXPECT_GE(rig.PassUntil([&] { return rig.Source.Stands() == Presence::Busy; }), 1900);
    rig.Pass(600'000);
    EXPECT_EQ(rig.Source.Stands(), Presence::Busy);
    EXPECT_TRUE(rig.Source.State());
    rig.Server.Values[Com1] = 119100;
    rig.Server.Hang(false);
    rig.Pass(100);
    EXPECT_TRUE(rig.Tells(119100));
    EXPECT_EQ(rig.Source.Run(), 1);
}

TEST(XPlaneRrefTest, TheEndOfItsProcessIsTheEndAtOnce) {
    XPlaneRig rig;
    rig.Process = 41;
    rig.Pass(2000);
    rig.Server.SendBeacon(rig.Server.Beacon());  // not read yet as it ends
    rig.Kill();
    EXPECT_EQ(rig.Source.Stands(), Presence::Absent);
    EXPECT_FALSE(rig.Source.State());
    rig.Pass(100);
    EXPECT_EQ(rig.Source.Name(), "X-Plane") << "what a process has left behind brings it back";
    rig.Pass(20'000);
    EXPECT_EQ(rig.Source.Stands(), Presence::Absent);
    EXPECT_EQ(rig.Source.Problem(), "");
}

TEST(XPlaneRrefTest, TenSecondsOfSilenceAreTheEndOfAnUnknownProcess) {
    XPlaneRig rig;
    rig.Pass(2000);
    rig.Kill();
    const Long gone = rig.PassUntil([&] { return rig.Source.Stands() == Presence::Absent; });
    EXPECT_GE(gone, 9800);
    EXPECT_LE(gone, 10'200);
    EXPECT_FALSE(rig.Source.State());
}

TEST(XPlaneRrefTest, OneThatDoesNotAnswerIsTold) {
    XPlaneRig rig;
    rig.Server.Answers = false;
    rig.Pass(8000);
    EXPECT_EQ(rig.Source.Stands(), Presence::Absent);
    EXPECT_EQ(rig.Source.Problem(), "X-Plane 12 is there on this computer, but doesn't answer on port " +
                                        std::to_string(rig.Server.Port()) +
                                        ": a firewall may be in the way, or its setting \"Disable Incoming Traffic\".");
    rig.Server.Answers = true;
    rig.Pass(1000);
    EXPECT_EQ(rig.Source.Problem(), "");
    EXPECT_EQ(rig.Source.Stands(), Presence::Live);
}

TEST(XPlaneRrefTest, OneThatNeverAnsweredAndWentIsForgotten) {
    XPlaneRig rig;
    rig.Server.Answers = false;
    rig.Pass(8000);
    rig.Server.Stop();
    rig.Pass(11'000);
    EXPECT_EQ(rig.Source.Problem(), "");
    EXPECT_EQ(rig.Source.Name(), "X-Plane");
}

TEST(XPlaneRrefTest, IsAskedAgainEveryFiveSecondsWithoutItsBeacon) {
    XPlaneRig rig;
    rig.Pass(2000);
    rig.Server.SendsBeacons = false;
    rig.Server.Stop();
    rig.Server.Start();
    const Long back = rig.PassUntil([&] { return rig.Server.Subscriptions() > 0; });
    EXPECT_GE(back, 0);
    EXPECT_LE(back, 5200);
    const int before = rig.Server.Requests();
    rig.Pass(60'000);
    EXPECT_NEAR(rig.Server.Requests() - before, 12 * static_cast<int>(rig.Server.Subscriptions()),
                static_cast<int>(rig.Server.Subscriptions()));
    EXPECT_LE(rig.Server.MostAtOnce(), 140);
}

TEST(XPlaneRrefTest, IsAskedAgainAtOnceByABeaconAfterSilence) {
    XPlaneRig rig;
    rig.Pass(2000);
    rig.Server.Stop();
    rig.Pass(1500);
    rig.Server.Start();
    const Long back = rig.PassUntil([&] { return rig.Server.Subscriptions() > 0; });
    EXPECT_GE(back, 0);
    EXPECT_LE(back, 200);
}

TEST(XPlaneRrefTest, AtItsEndNothingIsAskedForAnyMore) {
    XPlaneServer server;
    {
        SocketClock loop;
        XPlaneRref source(loop, ProcessQuestions(), {server.BeaconPort()});
        for (int step = 0; step < 40; ++step) {
            server.Pass(25);
            loop.Serve();
            loop.Run(25);
        }
        EXPECT_GT(server.Subscriptions(), 0U);
    }
    for (int step = 0; step < 1000 && server.Subscriptions() > 0; ++step) server.Pass(1);
    EXPECT_EQ(server.Subscriptions(), 0U);
}

TEST(XPlaneRrefTest, ItsProgramIsKnownByTheNamesOfItsFiles) {
    XPlaneRig rig;
    const std::vector<std::string> programs = rig.Source.Programs();
    const auto isProgram = [&](const char* name) { return std::ranges::find(programs, name) != programs.end(); };
    EXPECT_TRUE(isProgram("X-Plane-x86_64"));
    EXPECT_TRUE(isProgram("X-Plane"));
    EXPECT_FALSE(isProgram("fgfs"));
    EXPECT_FALSE(isProgram(""));
}

}  // namespace
}  // namespace orvelle::simulators
