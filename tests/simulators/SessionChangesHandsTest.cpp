#include "platform/RadioSelection.h"
#include "platform/Tessaly.h"
#include "tests/simulators/SessionRig.h"

namespace orvelle::simulators {
namespace {

class SessionChangesHandsTest : public SessionRig {};

TEST_F(SessionChangesHandsTest, ABusySimulatorKeepsItsSessionAndWhatStandsInIt) {
    TellAndSettle();
    network.Said.clear();
    const SessionSetting before = Now();
    flightGear.FallSilent();
    loop.Run(3'600'000);
    EXPECT_EQ(Now(), before);
    Tell();
    EXPECT_TRUE(network.Said.empty());
}

TEST_F(SessionChangesHandsTest, ARadioSettlesAlsoWhileItsSimulatorIsSilent) {
    Tell();
    flightGear.FallSilent();
    loop.Run(450);
    EXPECT_EQ(Channel(0), "Keflavik Tower");
}

TEST_F(SessionChangesHandsTest, WhatWasSetByHandStandsAgainWithoutASession) {
    network.StartSession();
    network.SetCallsign("HAND");
    network.SetFrequency(0, "121.500");
    network.SetVoice(1, {RogerWilco, "by.hand", "room", "", ""});
    const SessionSetting byHand = Now();
    TellAndSettle();
    EXPECT_NE(Now().Handle, byHand.Handle);
    EXPECT_EQ(Now().Callsign, "ABC123");
    EXPECT_EQ(Channel(1), "Unicom");

    flightGear.Go();
    EXPECT_FALSE(session.Rules());
    SessionSetting expected = byHand;
    expected.Handle = 0;
    EXPECT_EQ(Now(), expected);
    EXPECT_EQ(session.Radios()[0].Kilohertz, 0);
    network.Said.clear();
    loop.Run(1000);
    EXPECT_TRUE(network.Said.empty());
}

// Panels show the last radios of a session that has closed.
TEST_F(SessionChangesHandsTest, ItsRadiosAreSwitchedOffBeforeItEnds) {
    TellAndSettle();
    const SessionSetting flown = Now();
    network.Said.clear();
    flightGear.Go();
    ASSERT_GE(network.Said.size(), 2U);
    SessionSetting expected = flown;
    expected.Frequency = {};
    expected.Voice = {};
    expected.Receive = expected.Transmit = SelectsNone;
    EXPECT_EQ(network.Said[0], expected);
    EXPECT_EQ(network.Said[1].Handle, 0);
}

TEST_F(SessionChangesHandsTest, EachProcessOfASimulatorIsASessionOfItsOwn) {
    TellAndSettle();
    const Long first = Now().Handle;
    flightGear.Go();
    EXPECT_EQ(Now().Handle, 0);
    Tell();
    EXPECT_GT(Now().Handle, first);
    EXPECT_EQ(Now().Voice, (std::array<RadioVoiceSetting, 2>{})) << "records of the process before";

    const Long second = Now().Handle;
    flightGear.Begin();  // no end of the one before was seen
    state.Callsign = "DEF";
    Tell();
    EXPECT_GT(Now().Handle, second);
    EXPECT_EQ(Now().Callsign, "DEF");
    for (const SessionSetting& said : network.Said)
        EXPECT_FALSE(said.Handle == second && said.Callsign == "DEF") << "told in the session of another process";
}

TEST_F(SessionChangesHandsTest, TheSimulatorThatCountsSetsTheSession) {
    TellAndSettle();
    const Long first = Now().Handle;
    SimulatorState other = state;
    other.Callsign = "XP";
    xPlane.Tell(other);
    EXPECT_EQ(Now().Callsign, "ABC123");
    choice.Activate("X-Plane");
    EXPECT_EQ(Now().Callsign, "XP");
    EXPECT_GT(Now().Handle, first);
    xPlane.Go();
    EXPECT_EQ(Now().Callsign, "ABC123");
    EXPECT_TRUE(session.Rules());
    flightGear.Go();
    EXPECT_EQ(Now().Handle, 0);
    EXPECT_EQ(Now().Callsign, "") << "what stood there by hand was another simulator's";
}

TEST_F(SessionChangesHandsTest, OneThatHasToldNothingLeavesTheSessionToTheHand) {
    network.StartSession();
    const SessionSetting byHand = Now();
    flightGear.Begin();
    EXPECT_FALSE(session.Rules());
    EXPECT_EQ(Now(), byHand);
}

TEST_F(SessionChangesHandsTest, TheEndIsToldAtOnceWhateverThePace) {
    TellAndSettle();
    Tune(119100);
    flightGear.Go();
    EXPECT_EQ(Now().Handle, 0);
    Tell();
    EXPECT_EQ(Now().Frequency[0], "119.100");
    EXPECT_NE(Now().Handle, 0);
}

}  // namespace
}  // namespace orvelle::simulators
