// The simulator's program against the panel's lines, over a real broker.
#include <algorithm>
#include <csignal>

#include "adapters/mqtt/BrokerNetworkSide.h"
#include "adapters/mqtt/BrokerSimulatorSide.h"
#include "tests/mqtt/broker/SetUpRig.h"

namespace orvelle::mqtt {
namespace {

class Sides : public SetUpRig {
protected:
    Sides() {
        simulator.SetLink(LinkState::Up);
        network.SetLink(LinkState::Up);
        program.Open(broker.SetUpOf(1));
    }

    bool Tells(const std::string& what) {
        return Until([&] { return std::ranges::find(panel.Told, what) != panel.Told.end(); });
    }
    std::ptrdiff_t Count(const std::string& what) const { return std::ranges::count(panel.Told, what); }

    SimulatorAtBroker program{loop, [] { return PresenceSetting{.Name = "COCKPIT", .Address = "", .Desktop = "X11"}; }};
    BrokerSimulatorSide simulator{program};
    BrokerNetworkSide network{program};
    LinesOfAPanel panel{loop, broker.SetUpOf(2)};
};

TEST_F(Sides, WhatIsPressedIsHeldAtThePanelUntilItIsLetGo) {
    ASSERT_TRUE(Tells("simulator up"));
    EXPECT_TRUE(simulator.PressKey("Ctrl"));
    EXPECT_TRUE(simulator.PressButton("Stick", "Button 3"));
    EXPECT_TRUE(Tells("held Ctrl|Stick.Button 3"));
    ServeFor(1000);
    EXPECT_EQ(Count("held |"), 0) << "it is said again and again, so that it counts";
    simulator.PressKey("Ctrl");
    EXPECT_TRUE(Tells("held Ctrl|Stick.Button 3 repeat Ctrl"));
    simulator.SetSimulatorActive(false);
    EXPECT_TRUE(Tells("held Ctrl|Stick.Button 3 inactive"));
    simulator.ReleaseAll();
    EXPECT_TRUE(Tells("held | inactive"));
}

TEST_F(Sides, ALinkTakenBackLetsGoFirst) {
    ASSERT_TRUE(Tells("simulator up"));
    simulator.PressKey("F8");
    ASSERT_TRUE(Tells("held F8|"));
    simulator.SetLink(LinkState::Down);
    EXPECT_FALSE(simulator.PressKey("F9"));
    EXPECT_TRUE(Tells("simulator lost"));
    EXPECT_EQ(Count("held |"), 1);
}

TEST_F(Sides, TheLowestThatOffersALinkServesIt) {
    EXPECT_EQ(simulator.ServedBy(), 0);
    ASSERT_TRUE(Tells("simulator up"));
    PlayedMember other(loop, broker.SetUpOf(3), Program::Simulator);
    ASSERT_TRUE(Until([&] { return program.Others().IsThere({3, Program::Simulator}); }));
    EXPECT_EQ(simulator.ServedBy(), 1);
    simulator.SetLink(LinkState::Down);
    EXPECT_EQ(simulator.ServedBy(), 3);
    EXPECT_EQ(network.ServedBy(), 1);
    other.AtBroker.Close();
    EXPECT_TRUE(Until([&] { return simulator.ServedBy() == 0; }));
}

TEST_F(Sides, TheNextOneServesWhenTheLowerOneGoes) {
    ASSERT_TRUE(Tells("simulator up"));
    SimulatorAtBroker further(loop,
                              [] { return PresenceSetting{.Name = "COCKPIT3", .Address = "", .Desktop = "X11"}; });
    BrokerSimulatorSide furtherSimulator(further);
    BrokerNetworkSide furtherNetwork(further);
    furtherSimulator.SetLink(LinkState::Up);
    furtherNetwork.SetLink(LinkState::Up);
    further.Open(broker.SetUpOf(3));
    ASSERT_TRUE(Until([&] { return further.IsThere(); }));
    furtherNetwork.SetCallsign("ORV3");
    furtherNetwork.StartSession();
    furtherSimulator.PressKey("F9");
    ServeFor(300);
    EXPECT_EQ(Count("held F9|"), 0) << "it stands by";
    program.Close();
    EXPECT_TRUE(Tells("held F9|"));
    EXPECT_TRUE(Tells("session " + std::to_string(furtherNetwork.Session().Handle) + " ORV3"));
}

TEST_F(Sides, TheSessionReachesAPanelThatComesLater) {
    network.SetCallsign("ORV123");
    network.StartSession();
    const std::string session = "session " + std::to_string(network.Session().Handle) + " ORV123";
    EXPECT_TRUE(Tells(session));
    LinesOfAPanel late(loop, broker.SetUpOf(3));
    EXPECT_TRUE(Until([&] { return std::ranges::find(late.Told, session) != late.Told.end(); }));
    network.EndSession();
    EXPECT_TRUE(Tells("session 0 "));
}

TEST_F(Sides, RecordsAreSeenAndWrittenTo) {
    ASSERT_TRUE(Tells("framework up"));
    const Long id = panel.Framework.NewRecordId();
    panel.Framework.SayRecord(id, {"VOICE", "VVL", {{{0, 3}}, {{7, "room"}}}}, {});
    EXPECT_TRUE(Until([&] { return network.Records().size() == 1; }));
    const InterfaceRecord record = network.Records().at(id);
    EXPECT_EQ(record.Owner, "PANEL");
    EXPECT_EQ(record.Role, "VVL");
    EXPECT_EQ(record.Parameters.at(0).Content, 3);
    EXPECT_EQ(record.Texts.at(7).Content, "room");
    EXPECT_TRUE(network.WriteParameter(id, 9, 1));
    EXPECT_TRUE(Tells("write " + std::to_string(id) + " of 1"));
}

TEST_F(Sides, SoundsAreAskedForByPanels) {
    ASSERT_TRUE(Tells("simulator up"));
    panel.Simulator.SaySound("Tessaly\\RADIO_ONCHANNEL.wav");
    EXPECT_TRUE(Until([&] { return simulator.SoundsPlayed() == 1; }));
    EXPECT_EQ(simulator.Sounds().front(), "Tessaly\\RADIO_ONCHANNEL.wav");
}

TEST_F(Sides, ABrokerThatStopsLosesTheLinksWithinItsLease) {
    ASSERT_TRUE(Tells("simulator up"));
    simulator.PressKey("F8");
    ASSERT_TRUE(Tells("held F8|"));
    broker.Signal(SIGSTOP);
    EXPECT_TRUE(Tells("held |"));
    EXPECT_TRUE(Tells("simulator lost"));
    panel.Told.clear();
    broker.Signal(SIGCONT);
    EXPECT_TRUE(Tells("simulator up"));
    EXPECT_TRUE(Tells("held F8|")) << "it is held all the time over there";
}

}  // namespace
}  // namespace orvelle::mqtt
