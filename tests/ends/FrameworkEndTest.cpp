#include "adapters/ends/FrameworkEnd.h"

#include <gtest/gtest.h>

#include <vector>

#include "adapters/embedded/NetworkLink.h"
#include "tests/shared/HandLoop.h"
#include "tests/shared/MemoryValues.h"

namespace orvelle {
namespace {

using Texts = std::vector<std::string>;

class FrameworkEndTest : public testing::Test {
protected:
    FrameworkEndTest() {
        tessaly.Connected = [this] { events.push_back(tessaly.LinkUp() ? "Connected" : "too early"); };
        tessaly.Disconnected = [this] { events.push_back(tessaly.LinkUp() ? "too early" : "Disconnected"); };
        tessaly.ServerFound = [this](const std::string& name) { events.push_back("ServerFound " + name); };
        tessaly.SessionOpened = [this] { events.push_back("SessionOpened"); };
        tessaly.SessionClosed = [this] { events.push_back("SessionClosed"); };
        tessaly.SessionStatusChanged = [this] { events.push_back("SessionStatusChanged"); };
        tessaly.RadioChanged = [this] { events.push_back("RadioChanged"); };
        tessaly.RadioVoiceChanged = [this](Long radio) { Note("RadioVoiceChanged", radio); };
        tessaly.CallsignChanged = [this] { events.push_back("CallsignChanged"); };
        tessaly.InterfaceAppeared = [this](Long id) { Note("Appeared", id); };
        tessaly.InterfaceChanged = [this](Long id) { Note("Changed", id); };
        tessaly.InterfaceRemoved = [this](Long id) { Note("Removed", id); };
        tessaly.InterfaceParamChanged = [this](Long id, Long index) {
            Note("ParamChanged " + std::to_string(id), index);
        };
    }

    void Note(const std::string& name, Long number) { events.push_back(name + " " + std::to_string(number)); }

    void Connect() {
        tessaly.LinkPrepare();
        tessaly.LinkStart();
        tessaly.LinkStarted();
        far.SetLink(LinkState::Up);
        Run();
    }
    Texts Run(Long milliseconds = 0) {
        loop.Run(milliseconds);
        return std::exchange(events, {});
    }

    HandLoop loop;
    MemoryValues values;
    embedded::NetworkLink far{loop};
    const ends::LineTable<FrameworkLine> lines{far};
    ends::FrameworkEnd tessaly{loop, values, lines};
    Texts events;
};

TEST_F(FrameworkEndTest, KeepsServerAndEmbeddedBetweenRuns) {
    EXPECT_EQ(tessaly.GetServer(), "AUTOMATIC");
    EXPECT_FALSE(tessaly.Embedded());
    tessaly.SetServer("<LOCAL>");
    tessaly.Embedded(1);
    ends::FrameworkEnd next(loop, values, lines);
    EXPECT_EQ(next.GetServer(), "<LOCAL>");
    EXPECT_TRUE(next.Embedded());
    next.Embedded(0);
    EXPECT_FALSE(tessaly.Embedded());
}

TEST_F(FrameworkEndTest, TheLinkStandsOnlyOnceItWasStarted) {
    far.SetLink(LinkState::Up);
    EXPECT_TRUE(Run().empty());
    EXPECT_FALSE(tessaly.LinkUp());
    tessaly.LinkStart();
    EXPECT_FALSE(tessaly.LinkUp());
    EXPECT_EQ(Run(), Texts{"Connected"});
    far.SetLink(LinkState::Down);
    EXPECT_EQ(Run(), Texts{"Disconnected"});
}

TEST_F(FrameworkEndTest, EventsComeLateAndInOrder) {
    tessaly.LinkStart();
    far.SetDelay(100);
    far.SetLink(LinkState::Up);
    EXPECT_TRUE(Run(99).empty());
    far.SetDelay(0);
    far.SetLink(LinkState::Down);
    EXPECT_EQ(Run(1), (Texts{"Connected", "Disconnected"}));
}

TEST_F(FrameworkEndTest, SeesServersWhileItIsStarted) {
    far.SeeServer("early");
    tessaly.LinkStart();
    far.SeeServer("tower");
    EXPECT_EQ(Run(), Texts{"ServerFound tower"});
    EXPECT_EQ(far.ServersSeen(), (Texts{"early", "tower"}));
}

TEST_F(FrameworkEndTest, ResolvesAServerToHostAndPort) {
    EXPECT_EQ(tessaly.ResolveServerAddress("voice1"), "voice1:8767");
    EXPECT_EQ(tessaly.ResolveServerAddress("voice1:9000"), "voice1:9000");
}

TEST_F(FrameworkEndTest, RaisesNothingAfterLinkStop) {
    Connect();
    far.StartSession();
    far.SetLink(LinkState::Down);
    far.SetLink(LinkState::Up);
    tessaly.LinkStop();
    far.SetLink(LinkState::Down);
    far.SetLink(LinkState::Up);
    far.SetCallsign("ABC123");
    far.SeeServer("other");
    far.Claim("tower", "RWCom1", VoiceRecordType);
    EXPECT_TRUE(Run(1000).empty());
    EXPECT_FALSE(tessaly.LinkUp());
    EXPECT_FALSE(tessaly.OpenSession(0));
    EXPECT_EQ(tessaly.CreateInterface("VOICE", "RWCom1"), 0);
}

TEST_F(FrameworkEndTest, ASessionIsOpenedWhileItIsThereAndTheLinkStands) {
    EXPECT_FALSE(tessaly.OpenSession(0));
    Connect();
    EXPECT_FALSE(tessaly.OpenSession(0));
    EXPECT_EQ(tessaly.SessionHandle(), 0);
    far.StartSession();
    EXPECT_EQ(Run(), Texts{"SessionOpened"});
    EXPECT_EQ(tessaly.SessionHandle(), 1);
    EXPECT_TRUE(tessaly.OpenSession(0));
    tessaly.CloseSession();
    EXPECT_TRUE(tessaly.OpenSession(1));
    tessaly.CloseSession();
    EXPECT_FALSE(tessaly.OpenSession(2));
    far.Refuse().OpenSession = true;
    EXPECT_FALSE(tessaly.OpenSession(0));
}

TEST_F(FrameworkEndTest, TheSessionTellsWhatTheDeckSetWhileItIsOpen) {
    Connect();
    far.SetStatus(1);
    far.SetCallsign("ABC123");
    far.SetFrequency(0, "118.100");
    far.SetFrequency(1, "121.500");
    far.SetReceive("B");
    far.SetTransmit("1");
    far.SetVoice(1, {1, "srv1", "ops", "me", "secret"});
    far.StartSession();
    EXPECT_EQ(tessaly.SessionCallsign(), "");
    EXPECT_EQ(Run(), Texts{"SessionOpened"});
    ASSERT_TRUE(tessaly.OpenSession(tessaly.SessionHandle()));
    EXPECT_EQ(tessaly.SessionStatus(), 1);
    EXPECT_EQ(tessaly.SessionCallsign(), "ABC123");
    EXPECT_EQ(tessaly.FreqCOM1(), "118.100");
    EXPECT_EQ(tessaly.FreqCOM2(), "121.500");
    EXPECT_EQ(tessaly.ReceiveRadio(), "B");
    EXPECT_EQ(tessaly.TransmitRadio(), "1");
    EXPECT_EQ(tessaly.VoiceSoftware(0), 0);
    EXPECT_EQ(tessaly.VoiceSoftware(1), 1);
    EXPECT_EQ(tessaly.VoiceServer(1), "srv1");
    EXPECT_EQ(tessaly.VoiceChannel(1), "ops");
    EXPECT_EQ(tessaly.VoiceLogin(1), "me");
    EXPECT_EQ(tessaly.VoicePassword(1), "secret");
    EXPECT_EQ(tessaly.VoiceServer(2), "");
    tessaly.CloseSession();
    EXPECT_EQ(tessaly.SessionStatus(), 0);
    EXPECT_EQ(tessaly.VoiceServer(1), "");
}

TEST_F(FrameworkEndTest, EachChangeOfTheSessionRaisesItsEvent) {
    Connect();
    far.StartSession();
    far.SetStatus(1);
    far.SetCallsign("ABC123");
    far.SetFrequency(1, "121.500");
    far.SetReceive("1");
    far.SetTransmit("1");
    far.SetVoice(0, {3, "srv1", "ops", "", ""});
    far.SetVoice(1, {1, "srv2", "", "", ""});
    far.EndSession();
    EXPECT_TRUE(events.empty());
    EXPECT_EQ(Run(), (Texts{"SessionOpened", "SessionStatusChanged", "CallsignChanged", "RadioChanged", "RadioChanged",
                            "RadioChanged", "RadioVoiceChanged 0", "RadioVoiceChanged 1", "SessionClosed"}));
}

TEST_F(FrameworkEndTest, WhatDoesNotChangeRaisesNothing) {
    Connect();
    far.EndSession();
    far.StartSession();
    far.StartSession();
    Run();
    far.SetStatus(0);
    far.SetCallsign("");
    far.SetFrequency(0, "");
    far.SetFrequency(2, "118.100");
    far.SetReceive("");
    far.SetTransmit("");
    far.SetVoice(0, {});
    far.SetVoice(2, {1, "srv1", "", "", ""});
    EXPECT_TRUE(Run().empty());
}

TEST_F(FrameworkEndTest, ALossEndsTheSessionForThePanelAndTheLinkBringsItBack) {
    Connect();
    far.StartSession();
    Run();
    far.SetLink(LinkState::Down);
    far.SetReceive("1");
    EXPECT_EQ(Run(), Texts{"Disconnected"});
    EXPECT_FALSE(tessaly.OpenSession(0));
    EXPECT_EQ(tessaly.SessionHandle(), 0);
    far.SetTransmit("1");
    far.SetLink(LinkState::Up);
    EXPECT_EQ(Run(), (Texts{"Connected", "SessionOpened"}));
    EXPECT_TRUE(tessaly.OpenSession(0));
    EXPECT_EQ(tessaly.TransmitRadio(), "1");
}

TEST_F(FrameworkEndTest, ASessionThatEndsWithoutTheLinkIsNotToldOf) {
    Connect();
    far.StartSession();
    Run();
    far.SetLink(LinkState::Down);
    Run();
    far.EndSession();
    far.SetLink(LinkState::Up);
    EXPECT_EQ(Run(), Texts{"Connected"});
    far.StartSession();
    Run();
    EXPECT_EQ(tessaly.SessionHandle(), 2);
}

TEST_F(FrameworkEndTest, TellsTheDeckOfChangesFromTheLoop) {
    int told = 0;
    const auto ticket = far.Observe([&] { ++told; });
    Connect();
    told = 0;
    tessaly.SetServer("tower");
    tessaly.CreateInterface("VOICE", "VVL");
    tessaly.SetParam(2, 1);
    tessaly.SetParamText(9, "room");
    EXPECT_EQ(told, 0);
    Run();
    EXPECT_EQ(told, 1);
}

// The interface records.

TEST_F(FrameworkEndTest, CreatesLocalRecordsWithoutALink) {
    EXPECT_EQ(tessaly.CreateInterface("VOICE", "RWCom1"), 0);
    tessaly.LinkStart();
    EXPECT_EQ(tessaly.CreateInterface("VOICE", "RWCom1"), 1);
    EXPECT_TRUE(events.empty());
    EXPECT_EQ(tessaly.InterfaceType(), "VOICE");
    EXPECT_EQ(tessaly.InterfaceRole(), "RWCom1");
    EXPECT_TRUE(tessaly.InterfaceIsLocal());
    EXPECT_EQ(tessaly.CreateInterface("VOICE", "RWCom2"), 2);
    EXPECT_EQ(Run(), (Texts{"Appeared 1", "Appeared 2"}));
}

TEST_F(FrameworkEndTest, ARecordIsReadAndWrittenWhileItIsOpen) {
    Connect();
    const Long id = tessaly.CreateInterface("VOICE", "VVL");
    tessaly.SetParam(2, 1);
    tessaly.SetParamText(2, "two");
    tessaly.CloseInterface();
    tessaly.CloseInterface();
    tessaly.SetParam(2, 5);
    tessaly.SetParamText(2, "lost");
    EXPECT_EQ(tessaly.GetParam(2), 0);
    EXPECT_EQ(tessaly.GetParamText(2), "");
    EXPECT_EQ(tessaly.InterfaceType(), "");
    EXPECT_EQ(tessaly.InterfaceRole(), "");
    EXPECT_FALSE(tessaly.InterfaceIsLocal());
    EXPECT_TRUE(tessaly.OpenInterface(id));
    EXPECT_EQ(tessaly.GetParam(2), 1);
    EXPECT_EQ(tessaly.GetParamText(2), "two");
    EXPECT_EQ(tessaly.GetParam(3), 0);
    EXPECT_EQ(tessaly.GetParamText(3), "");
    EXPECT_EQ(Run(), Texts{"Appeared 1"});
}

TEST_F(FrameworkEndTest, RefusesOnDemand) {
    Connect();
    const Long id = tessaly.CreateInterface("VOICE", "VVL");
    tessaly.CloseInterface();
    far.Refuse().CreateInterface = true;
    far.Refuse().OpenInterface = true;
    EXPECT_EQ(tessaly.CreateInterface("VOICE", "RWCom1"), 0);
    EXPECT_FALSE(tessaly.OpenInterface(id));
    EXPECT_FALSE(tessaly.OpenInterface(99));
}

TEST_F(FrameworkEndTest, AnotherComputerClaimsAndDropsARole) {
    Connect();
    const Long id = far.Claim("tower", "RWCom1", VoiceRecordType);
    EXPECT_TRUE(events.empty());
    EXPECT_EQ(Run(), Texts{"Appeared 1"});
    ASSERT_TRUE(tessaly.OpenInterface(id));
    EXPECT_EQ(tessaly.InterfaceType(), "VOICE");
    EXPECT_EQ(tessaly.InterfaceRole(), "RWCom1");
    EXPECT_FALSE(tessaly.InterfaceIsLocal());
    EXPECT_TRUE(far.DropClaim(id));
    EXPECT_FALSE(far.DropClaim(id));
    EXPECT_EQ(Run(), Texts{"Removed 1"});
    EXPECT_FALSE(tessaly.OpenInterface(id));
    EXPECT_EQ(tessaly.InterfaceType(), "");
}

TEST_F(FrameworkEndTest, BothMayHoldOneRole) {
    Connect();
    tessaly.CreateInterface("VOICE", "RWCom1");
    far.Claim("tower", "RWCom1", VoiceRecordType);
    EXPECT_EQ(Run(), (Texts{"Appeared 1", "Appeared 2"}));
    const auto records = far.Records();
    EXPECT_TRUE(records.at(1).IsLocal);
    EXPECT_EQ(records.at(1).Owner, "");
    EXPECT_EQ(records.at(2).Owner, "tower");
}

TEST_F(FrameworkEndTest, OnlyThePanelDeletesItsRecordsAndOnlyThose) {
    Connect();
    const Long own = tessaly.CreateInterface("VOICE", "RWCom1");
    const Long foreign = far.Claim("tower", "RWCom2", VoiceRecordType);
    Run();
    EXPECT_FALSE(far.DropClaim(own));
    tessaly.DeleteInterface(foreign);
    tessaly.DeleteInterface(99);
    EXPECT_TRUE(Run().empty());
    tessaly.DeleteInterface(own);
    EXPECT_TRUE(events.empty());
    EXPECT_EQ(tessaly.GetParam(0), 0);
    EXPECT_EQ(Run(), Texts{"Removed 1"});
    EXPECT_EQ(far.Records().size(), 1U);
}

TEST_F(FrameworkEndTest, AnIdIsFreeAgainWhenItsRemovalWasTold) {
    Connect();
    const Long first = tessaly.CreateInterface("VOICE", "RWCom1");
    Run();
    tessaly.DeleteInterface(first);
    const Long second = tessaly.CreateInterface("VOICE", "RWCom1");
    EXPECT_NE(second, first);
    EXPECT_EQ(Run(), (Texts{"Removed 1", "Appeared 2"}));
    EXPECT_EQ(far.Claim("tower", "VVL", VoiceRecordType), first);
}

TEST_F(FrameworkEndTest, ARecordThatWasNeverToldOfGoesInSilence) {
    Connect();
    tessaly.DeleteInterface(tessaly.CreateInterface("VOICE", "RWCom1"));
    EXPECT_EQ(tessaly.CreateInterface("VOICE", "RWCom2"), 1);
    EXPECT_EQ(Run(), Texts{"Appeared 1"});
}

TEST_F(FrameworkEndTest, ThePanelHearsOfOtherComputersWhenTheLinkComesUp) {
    tessaly.LinkStart();
    const Long early = far.Claim("tower", "RWCom1", VoiceRecordType);
    EXPECT_TRUE(Run().empty());
    EXPECT_FALSE(tessaly.OpenInterface(early));
    far.SetLink(LinkState::Up);
    EXPECT_EQ(Run(), (Texts{"Connected", "Appeared 1"}));
    far.SetLink(LinkState::Down);
    Run();
    far.DropClaim(early);
    far.Claim("approach", "RWCom2", VoiceRecordType);
    EXPECT_TRUE(Run().empty());
    far.SetLink(LinkState::Up);
    EXPECT_EQ(Run(), (Texts{"Connected", "Removed 1", "Appeared 2"}));
}

TEST_F(FrameworkEndTest, AnotherPartyWritesParameters) {
    Connect();
    const Long id = tessaly.CreateInterface("VOICE", "VVL");
    tessaly.SetParam(7, 2);
    Run();
    EXPECT_TRUE(far.WriteParameter(id, 7, 1));
    EXPECT_TRUE(far.WriteText(id, 9, "srv1/private"));
    EXPECT_TRUE(far.AnnounceChange(id));
    EXPECT_TRUE(events.empty());
    EXPECT_EQ(Run(), (Texts{"ParamChanged 1 7", "ParamChanged 1 9", "Changed 1"}));
    EXPECT_EQ(tessaly.GetParam(7), 1);
    EXPECT_EQ(tessaly.GetParamText(9), "srv1/private");
    const InterfaceRecord record = far.Records().at(id);
    EXPECT_EQ(record.Parameters.at(7).Writer, ParameterWriter::OtherParty);
    EXPECT_EQ(record.Parameters.at(7).WriteNumber, 2U);
    EXPECT_EQ(record.Texts.at(9).WriteNumber, 3U);
    EXPECT_EQ(far.Writes(), 3U);
}

TEST_F(FrameworkEndTest, NobodyElseReachesARecordWithoutALink) {
    tessaly.LinkStart();
    const Long id = tessaly.CreateInterface("VOICE", "VVL");
    Run();
    EXPECT_FALSE(far.WriteParameter(id, 7, 1));
    EXPECT_FALSE(far.WriteText(id, 9, "room"));
    EXPECT_FALSE(far.AnnounceChange(id));
    far.SetLink(LinkState::Up);
    Run();
    EXPECT_FALSE(far.WriteParameter(99, 7, 1));
    EXPECT_TRUE(Run().empty());
    EXPECT_EQ(tessaly.GetParam(7), 0);
}

TEST_F(FrameworkEndTest, LinkStopForgetsThePanelsRecordsAndKeepsTheOthers) {
    Connect();
    tessaly.CreateInterface("VOICE", "RWCom1");
    far.Claim("tower", "RWCom2", VoiceRecordType);
    Run();
    tessaly.LinkStop();
    ASSERT_EQ(far.Records().size(), 1U);
    EXPECT_EQ(far.Records().begin()->second.Owner, "tower");
    tessaly.LinkStart();
    EXPECT_EQ(Run(), (Texts{"Connected", "Appeared 2"}));
}

}  // namespace
}  // namespace orvelle
