#include "simulators/SimulatorSession.h"

#include "platform/Tessaly.h"
#include "tests/simulators/SessionRig.h"

namespace orvelle::simulators {
namespace {

class SimulatorSessionTest : public SessionRig {};

TEST_F(SimulatorSessionTest, WhatASimulatorTellsIsTheSessionAtOnceAndItsRecordsAfterAWhile) {
    Tell();
    EXPECT_TRUE(session.Rules());
    const SessionSetting first = Now();
    EXPECT_NE(first.Handle, 0);
    EXPECT_EQ(first.Status, ConnectedToMultiplayer);
    EXPECT_EQ(first.Callsign, "ABC123");
    EXPECT_EQ(first.Receive, "1");
    EXPECT_EQ(first.Transmit, "1");
    EXPECT_EQ(first.Frequency, (std::array<std::string, 2>{"118.300", "122.800"}));
    EXPECT_EQ(first.Voice, (std::array<RadioVoiceSetting, 2>{}));
    EXPECT_EQ(network.Said.back(), first);

    loop.Run(399);
    EXPECT_EQ(Now(), first);
    EXPECT_FALSE(session.Radios()[0].IsSettled);
    loop.Run(1);
    const RadioVoiceSetting tower{TeamSpeakHost, "voice.example.org:8767", "Keflavik Tower", "pilot", ""};
    EXPECT_EQ(Now().Voice[0], tower);
    EXPECT_EQ(session.Radios()[0].Chosen.Station, "BIKF_TWR");
    EXPECT_TRUE(session.Radios()[0].IsSettled);
    EXPECT_EQ(Channel(1), "Unicom");
    EXPECT_EQ(Now().Handle, first.Handle);
}

TEST_F(SimulatorSessionTest, AKnobPassesManyFrequenciesAndOneRecordComes) {
    TellAndSettle();
    network.Said.clear();
    for (int step = 1; step <= 32; ++step) {
        Tune(118300 + 25 * step);
        loop.Run(50);
        EXPECT_EQ(Channel(0), "Keflavik Tower");
    }
    EXPECT_EQ(network.Said.size(), 32U);
    EXPECT_EQ(Now().Frequency[0], "119.100");
    EXPECT_FALSE(session.Radios()[0].IsSettled);
    loop.Run(SimulatorSession::SettlingMilliseconds - 50);
    EXPECT_EQ(Channel(0), "Keflavik Tower");
    EXPECT_TRUE(session.Radios()[0].IsSettled);
    EXPECT_EQ(network.Said.size(), 32U) << "a record that stays as it is was set again";
}

TEST_F(SimulatorSessionTest, TheFrequencyThatIsSettledMayBeLeftForAMoment) {
    TellAndSettle();
    Tune(121500);
    loop.Run(300);
    Tune(118300);
    EXPECT_TRUE(session.Radios()[0].IsSettled);
    loop.Run(1000);
    EXPECT_EQ(Channel(0), "Keflavik Tower");
    for (const SessionSetting& said : network.Said)
        EXPECT_TRUE(said.Voice[0].Channel.empty() || said.Voice[0].Channel == "Keflavik Tower");
}

TEST_F(SimulatorSessionTest, NoMoreThanTwentyMessagesASecondAndTheLastStateCounts) {
    TellAndSettle();
    network.Said.clear();
    for (int step = 0; step < 999; ++step) {
        Tune(118000 + 5 * step);
        loop.Run(1);
    }
    EXPECT_EQ(network.Said.size(), 20U);
    loop.Run(SimulatorSession::PaceMilliseconds);
    EXPECT_EQ(Now().Frequency[0], "122.990");
}

TEST_F(SimulatorSessionTest, WhatIsToldTogetherIsOneMessage) {
    TellAndSettle();
    network.Said.clear();
    state.Radios = {Radio{119100, true, true}, Radio{121500, true, true}};
    state.Transmits = 2;
    state.Callsign = "DEF";
    Tell();
    EXPECT_EQ(network.Said.size(), 1U);
    EXPECT_EQ(Now().Receive, "B");
    EXPECT_EQ(Now().Transmit, "2");
    EXPECT_EQ(Now().Callsign, "DEF");
}

TEST_F(SimulatorSessionTest, WhatIsToldAgainIsSaidOnce) {
    TellAndSettle();
    network.Said.clear();
    for (int line = 0; line < 100; ++line) {
        Tell();
        loop.Run(50);
    }
    EXPECT_TRUE(network.Said.empty());
}

TEST_F(SimulatorSessionTest, ARadioWithoutPowerKeepsItsFrequencyAndLosesItsRecordAfterAWhile) {
    TellAndSettle();
    state.Radios[0].IsOperable = false;
    Tell();
    EXPECT_EQ(Now().Receive, "");
    EXPECT_EQ(Now().Transmit, "");
    EXPECT_EQ(Now().Frequency[0], "118.300");
    loop.Run(399);
    EXPECT_EQ(Channel(0), "Keflavik Tower") << "a starter's dip in the voltage takes the record away";
    loop.Run(1);
    EXPECT_EQ(Now().Voice[0], RadioVoiceSetting());
    EXPECT_EQ(session.Radios()[0].Chosen.Why, directory::Reason::NotTuned);
    state.Radios[0].IsOperable = true;
    TellAndSettle();
    EXPECT_EQ(Channel(0), "Keflavik Tower");
}

TEST_F(SimulatorSessionTest, AFrequencyOutsideTheBandIsShownAndHasNoRecord) {
    state.Radios[0].Kilohertz = 117950;
    state.Radios[1].Kilohertz = 0;
    TellAndSettle();
    EXPECT_EQ(Now().Frequency, (std::array<std::string, 2>{"117.950", ""}));
    EXPECT_EQ(Now().Voice, (std::array<RadioVoiceSetting, 2>{}));
    EXPECT_TRUE(session.Radios()[1].IsSettled);
}

TEST_F(SimulatorSessionTest, AnOldRadiosFrequencyIsShownByItsChannelsName) {
    Tune(118020);
    EXPECT_EQ(Now().Frequency[0], "118.025");
}

TEST_F(SimulatorSessionTest, WhoTransmitsOnBothTransmitsOnNone) {
    state.Transmits = 3;
    Tell();
    EXPECT_EQ(Now().Transmit, "");
}

TEST_F(SimulatorSessionTest, TheCallsignIsTheSimulatorsElseTheUsersElseTheAircrafts) {
    state.Callsign = "";
    state.Tail = "D-EABC";
    Tell();
    EXPECT_EQ(Now().Callsign, "D-EABC");
    loop.Run(50);
    session.SetOwnCallsign("OWN1");
    EXPECT_EQ(Now().Callsign, "OWN1");
    loop.Run(50);
    state.Callsign = "ABC123";
    Tell();
    EXPECT_EQ(Now().Callsign, "ABC123");
}

TEST_F(SimulatorSessionTest, AStationIsLeftByThePlace) {
    TellAndSettle();
    for (const double latitude : {64.85, 64.9, 64.87}) {
        state.Where->Latitude = latitude;  // about 51 to 54 miles, and 50 is its range
        Tell();
        loop.Run(50);
        EXPECT_EQ(Channel(0), "Keflavik Tower");
        EXPECT_EQ(session.Radios()[0].Chosen.Why, directory::Reason::HeldStation);
    }
    state.Where->Latitude = 65;
    Tell();
    EXPECT_EQ(Now().Voice[0], RadioVoiceSetting());
    state.Where->Latitude = 64.88;
    Tell();
    loop.Run(50);
    EXPECT_EQ(Now().Voice[0], RadioVoiceSetting());
    state.Where->Latitude = 64.8;
    Tell();
    loop.Run(50);
    EXPECT_EQ(Channel(0), "Keflavik Tower");
}

TEST_F(SimulatorSessionTest, AStationIsNotHeldOverToAnotherOfItsChannels) {
    TellAndSettle();
    state.Where->Latitude = 64.87;
    Tell();
    Tune(119100);
    loop.Run(450);
    EXPECT_EQ(session.Radios()[0].Chosen.Why, directory::Reason::NoneInRange);
    EXPECT_EQ(Now().Voice[0], RadioVoiceSetting());
}

TEST_F(SimulatorSessionTest, RecordsFollowADirectoryAtOnce) {
    TellAndSettle();
    written.Write("");
    EXPECT_EQ(Now().Voice, (std::array<RadioVoiceSetting, 2>{}));
    loop.Run(50);
    written.Write(ClubDirectory);
    EXPECT_EQ(Channel(0), "Keflavik Tower");
    EXPECT_EQ(Channel(1), "Unicom");
}

TEST_F(SimulatorSessionTest, RecordsFollowTheUsersOwnLoginsAtOnce) {
    TellAndSettle();
    logins.Set("VOICE.example.org:8767", {"pilot7", "secret"});
    session.TakeUpLogins();
    EXPECT_EQ(Now().Voice[0].Login, "pilot7");
    EXPECT_EQ(Now().Voice[1].Password, "secret");
}

}  // namespace
}  // namespace orvelle::simulators
