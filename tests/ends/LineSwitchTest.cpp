// A server's name leads to another medium while the panel runs: what the first one held is let go, and what it said is
// taken back, before anything of the second is told.
#include <gtest/gtest.h>

#include <vector>

#include "adapters/embedded/NetworkLink.h"
#include "adapters/embedded/SimulatorLink.h"
#include "adapters/ends/FrameworkEnd.h"
#include "adapters/ends/SimulatorEnd.h"
#include "tests/shared/HandLoop.h"
#include "tests/shared/MemoryValues.h"

namespace orvelle::ends {
namespace {

using Texts = std::vector<std::string>;

class LineSwitchTest : public testing::Test {
protected:
    LineSwitchTest() {
        velmarc.Connected = [this] { events.push_back("Connected"); };
        velmarc.Disconnected = [this] { events.push_back("Disconnected"); };
        velmarc.FSKeyDown = [this](bool, bool, const std::string& key, const std::string&) {
            events.push_back("KeyDown " + key);
        };
        velmarc.FSKeyUp = [this](Long, Long, const std::string& key, const std::string&) {
            events.push_back("KeyUp " + key);
        };
        tessaly.Connected = [this] { events.push_back("Connected"); };
        tessaly.Disconnected = [this] { events.push_back("Disconnected"); };
        tessaly.SessionOpened = [this] { events.push_back("SessionOpened"); };
        tessaly.SessionClosed = [this] { events.push_back("SessionClosed"); };
        tessaly.InterfaceAppeared = [this](Long id) { events.push_back("Appeared " + std::to_string(id)); };
        tessaly.InterfaceRemoved = [this](Long id) {
            events.push_back("Removed " + std::to_string(id));
            if (wantsRole) tessaly.CreateInterface("VOICE", "VVL");
        };
        simulatorLines.Enter("cockpit", otherSimulator);
        frameworkLines.Enter("cockpit", otherNetwork);
    }

    Texts Run() {
        loop.Run();
        return std::exchange(events, {});
    }

    HandLoop loop;
    MemoryValues values;
    embedded::SimulatorLink simulator{loop};
    embedded::SimulatorLink otherSimulator{loop};
    LineTable<SimulatorLine> simulatorLines{simulator};
    SimulatorEnd velmarc{loop, values, simulatorLines, {}};
    embedded::NetworkLink network{loop};
    embedded::NetworkLink otherNetwork{loop};
    LineTable<FrameworkLine> frameworkLines{network};
    FrameworkEnd tessaly{loop, values, frameworkLines};
    bool wantsRole = false;
    Texts events;
};

TEST_F(LineSwitchTest, ANameLeadsToItsLineInAnyCaseAndEveryOtherToTheOthers) {
    EXPECT_EQ(&simulatorLines.For("Cockpit"), &otherSimulator);
    EXPECT_EQ(&simulatorLines.For("cockpit2"), &simulator);
    EXPECT_EQ(&simulatorLines.For(""), &simulator);
    simulatorLines.Enter("COCKPIT", simulator);
    EXPECT_EQ(&simulatorLines.For("cockpit"), &simulator);
    simulatorLines.EnterOthers(otherSimulator);
    EXPECT_EQ(&simulatorLines.For("elsewhere"), &otherSimulator);
}

TEST_F(LineSwitchTest, WhatWasHeldIsReleasedThenTheLossIsToldThenTheNewLineComesUp) {
    simulator.SetLink(LinkState::Up);
    otherSimulator.SetLink(LinkState::Up);
    simulator.PressKey("Ctrl");
    simulator.PressKey("A");
    EXPECT_EQ(Run(), (Texts{"Connected", "KeyDown Ctrl", "KeyDown A"}));
    velmarc.SetServer("cockpit");
    EXPECT_TRUE(events.empty());
    EXPECT_EQ(Run(), (Texts{"KeyUp Ctrl", "KeyUp A", "Disconnected", "Connected"}));
    simulator.PressKey("B");
    otherSimulator.PressKey("C");
    EXPECT_EQ(Run(), Texts{"KeyDown C"});
}

TEST_F(LineSwitchTest, ANewServerOfTheSameLineChangesNothingElse) {
    simulator.SetLink(LinkState::Up);
    simulator.PressKey("A");
    Run();
    velmarc.SetServer("another host");
    EXPECT_TRUE(Run().empty());
    EXPECT_EQ(simulator.Server(), "another host");
    EXPECT_TRUE(velmarc.LinkUp());
}

TEST_F(LineSwitchTest, AChangedTableIsFollowedWhenTheProgramSaysSo) {
    simulator.SetLink(LinkState::Up);
    otherSimulator.SetLink(LinkState::Up);
    Run();
    simulatorLines.EnterOthers(otherSimulator);
    EXPECT_TRUE(Run().empty());
    velmarc.ChooseLine();
    EXPECT_EQ(Run(), (Texts{"Disconnected", "Connected"}));
    EXPECT_EQ(simulator.Server(), "");
    EXPECT_EQ(otherSimulator.Server(), "AUTOMATIC");
}

TEST_F(LineSwitchTest, SessionAndRecordsOfTheFirstLineAreGoneBeforeTheSecondSpeaks) {
    tessaly.LinkStart();
    for (embedded::NetworkLink* link : {&network, &otherNetwork}) {
        link->SetLink(LinkState::Up);
        link->StartSession();
    }
    network.Claim("tower", "RWCom1", "VOICE");
    network.Claim("tower", "RWCom2", "VOICE");
    otherNetwork.Claim("ground", "RWCom1", "VOICE");
    EXPECT_EQ(Run(), (Texts{"Connected", "SessionOpened", "Appeared 1", "Appeared 2"}));
    tessaly.SetServer("cockpit");
    EXPECT_EQ(Run(), (Texts{"Disconnected", "Removed 1", "Removed 2", "Connected", "SessionOpened", "Appeared 1"}));
    network.EndSession();
    network.DropClaim(2);
    EXPECT_TRUE(Run().empty());
}

// A panel takes up its roles anew as soon as it hears that they are gone.
TEST_F(LineSwitchTest, NoNewRecordIsMadeBeforeThePanelHasHeardOfAllThatAreGone) {
    tessaly.LinkStart();
    network.SetLink(LinkState::Up);
    const Long first = tessaly.CreateInterface("VOICE", "VVL");
    const Long second = tessaly.CreateInterface("VOICE", "RWCom1");
    Run();
    wantsRole = true;
    tessaly.SetServer("cockpit");
    EXPECT_TRUE(network.Records().empty());
    EXPECT_EQ(Run(), (Texts{"Disconnected", "Removed " + std::to_string(first), "Removed " + std::to_string(second),
                            "Appeared 1"}));
    ASSERT_EQ(otherNetwork.Records().size(), 1U);
    EXPECT_EQ(otherNetwork.Records().begin()->second.Role, "VVL");
}

TEST_F(LineSwitchTest, ARecordMadeAfterTheSwitchIsNoneOfThoseThatAreGone) {
    tessaly.LinkStart();
    EXPECT_EQ(tessaly.CreateInterface("VOICE", "VVL"), 1);
    tessaly.SetServer("cockpit");
    EXPECT_FALSE(tessaly.OpenInterface(1));
    EXPECT_EQ(tessaly.CreateInterface("VOICE", "VVL"), 1);
    EXPECT_EQ(Run(), Texts{"Appeared 1"});
    EXPECT_TRUE(tessaly.OpenInterface(1));
    EXPECT_EQ(otherNetwork.Records().size(), 1U);
}

TEST_F(LineSwitchTest, ALinkThatIsNotStartedHasNoLineOpen) {
    network.SetLink(LinkState::Up);
    tessaly.SetServer("cockpit");
    EXPECT_EQ(network.Server() + otherNetwork.Server(), "");
    tessaly.LinkStart();
    EXPECT_EQ(otherNetwork.Server(), "cockpit");
    EXPECT_TRUE(Run().empty());
}

}  // namespace
}  // namespace orvelle::ends
