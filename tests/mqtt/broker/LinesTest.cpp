// The panel's lines against a real broker: what another program publishes is what the near ends are told.
#include <algorithm>
#include <csignal>

#include "tests/mqtt/broker/SetUpRig.h"

namespace orvelle::mqtt {
namespace {

constexpr const char* NothingHeld = R"({"number":9,"active":true,"keys":[],"buttons":[]})";
constexpr const char* TalkKeyHeld = R"({"number":1,"active":true,"keys":["Ctrl","F8"],"buttons":["Stick.Button 3"]})";

class Lines : public SetUpRig {
protected:
    bool Tells(const std::string& what, const LinesOfAPanel& of) {
        return Until([&] { return std::ranges::find(of.Told, what) != of.Told.end(); });
    }
    bool Tells(const std::string& what) { return Tells(what, panel); }
    std::ptrdiff_t Count(const std::string& what) const { return std::ranges::count(panel.Told, what); }

    LinesOfAPanel panel{loop, broker.SetUpOf(2)};
    PlayedMember simulator{loop, broker.SetUpOf(1), Program::Simulator};
};

TEST_F(Lines, StandWhileAProgramThatOffersThemIsThere) {
    EXPECT_TRUE(Tells("simulator up"));
    EXPECT_TRUE(Tells("framework up"));
    EXPECT_EQ(panel.Simulator.FarComputer().ComputerName, "PLAYED");
    EXPECT_EQ(panel.Simulator.FarComputer().IPAddress, "127.0.0.1");
    simulator.AtBroker.Close();
    EXPECT_TRUE(Tells("simulator lost"));
    EXPECT_TRUE(Tells("framework lost"));
}

TEST_F(Lines, AnOfferTakenBackLosesThatLinkAlone) {
    EXPECT_TRUE(Tells("framework up"));
    simulator.Presence.OffersFramework = false;
    simulator.AtBroker.Describe();
    EXPECT_TRUE(Tells("framework lost"));
    EXPECT_EQ(Count("simulator lost"), 0);
}

TEST_F(Lines, TellWhatIsHeld) {
    ASSERT_TRUE(Tells("simulator up"));
    simulator.AtBroker.Say(TopicKind::Input, TalkKeyHeld, 0, Retain::No);
    EXPECT_TRUE(Tells("held Ctrl F8|Stick.Button 3"));
    simulator.AtBroker.Say(TopicKind::Input, NothingHeld, 0, Retain::No);
    EXPECT_TRUE(Tells("held |"));
}

TEST_F(Lines, SilenceWhileSomethingIsHeldLetsGoOfIt) {
    ASSERT_TRUE(Tells("simulator up"));
    simulator.AtBroker.Say(TopicKind::Input, TalkKeyHeld, 0, Retain::No);
    EXPECT_TRUE(Tells("held Ctrl F8|Stick.Button 3"));
    EXPECT_TRUE(Tells("held |"));
}

TEST_F(Lines, TheSessionIsToldAndEnds) {
    simulator.AtBroker.Came = [this] {
        simulator.AtBroker.Say(TopicKind::Session,
                               R"({"handle":3,"status":1,"callsign":"ABC123","receive":"B","transmit":"1","radios":[
                               {"frequency":"118.300","software":1,"server":"s","channel":"tower","login":"","password":""},
                               {"frequency":"121.500","software":0,"server":"","channel":"","login":"","password":""}]})",
                               1, Retain::Yes);
    };
    EXPECT_TRUE(Tells("session 3 ABC123"));
    simulator.AtBroker.Say(TopicKind::Session, "", 1, Retain::Yes);
    EXPECT_TRUE(Until([this] { return panel.Told.back() == "session 0 "; }));
}

TEST_F(Lines, ARecordOfThePanelIsThereForOthersAndTakesTheirWrites) {
    ASSERT_TRUE(Tells("framework up"));
    const Long id = panel.Framework.NewRecordId();
    EXPECT_EQ(id, 2 * 65536 + 1);
    panel.Framework.SayRecord(id, {"VOICE", "VVL", {{{0, 3}}, {}}}, {});
    const auto heardRecord = [this] {
        return std::ranges::any_of(simulator.Heard, [](const std::string& each) {
            return each.starts_with("orvelle/1/c02/panel/record/1 {") && each.find("\"VVL\"") != std::string::npos;
        });
    };
    EXPECT_TRUE(Until(heardRecord));
    simulator.AtBroker.Say(TopicKind::Write, R"({"to":"c02","record":1,"numbers":{"9":1},"texts":{}})", 1, Retain::No);
    EXPECT_TRUE(Tells("write 131073 of 1"));
    panel.Framework.SayRecordEnded(id);
    EXPECT_TRUE(Until([this] {
        return std::ranges::find(simulator.Heard, "orvelle/1/c02/panel/record/1 ") != simulator.Heard.end();
    }));
}

TEST_F(Lines, ARecordThatGivesWayAtOnceIsToldToNobody) {
    ASSERT_TRUE(Tells("framework up"));
    LinesOfAPanel other(loop, broker.SetUpOf(3));
    ASSERT_TRUE(Tells("framework up", other));
    panel.Framework.SayRecord(panel.Framework.NewRecordId(), {"VOICE", "VVL", {}}, {});
    ASSERT_TRUE(Tells("record 131073 VVL", other));
    other.Framework.SayRecord(other.Framework.NewRecordId(), {"VOICE", "VVL", {}}, {});
    EXPECT_TRUE(Tells("record taken 196609", other));
    other.Framework.SayRecord(other.Framework.NewRecordId(), {"VOICE", "RWCom1", {}}, {});
    EXPECT_TRUE(Tells("record 196610 RWCom1"));
    EXPECT_EQ(Count("record 196609 VVL"), 0);
}

TEST_F(Lines, ThePanelOfTheLowerIdentityKeepsTheRole) {
    ASSERT_TRUE(Tells("framework up"));
    LinesOfAPanel other(loop, broker.SetUpOf(3));
    ASSERT_TRUE(Tells("framework up", other));
    other.Framework.SayRecord(other.Framework.NewRecordId(), {"VOICE", "VVL", {}}, {});
    panel.Framework.SayRecord(panel.Framework.NewRecordId(), {"VOICE", "VVL", {}}, {});
    EXPECT_TRUE(Tells("record taken 196609", other));
    EXPECT_EQ(std::ranges::find(other.Told, "record 131073 VVL") + 1,
              std::ranges::find(other.Told, "record taken 196609"));
    EXPECT_TRUE(Until([this] { return Count("record ended 196609") == Count("record 196609 VVL"); }));
    EXPECT_EQ(Count("record taken 131073"), 0);
}

TEST_F(Lines, ARestartOfTheBrokerMovesNoRole) {
    ASSERT_TRUE(Tells("framework up"));
    LinesOfAPanel other(loop, broker.SetUpOf(3));
    ASSERT_TRUE(Tells("framework up", other));
    panel.Framework.SayRecord(panel.Framework.NewRecordId(), {"VOICE", "VVL", {}}, {});
    ASSERT_TRUE(Tells("record 131073 VVL", other));
    broker.Kill(SIGKILL);
    EXPECT_TRUE(Tells("framework lost", other));
    other.Told.clear();
    broker.Start();
    EXPECT_TRUE(Tells("framework up", other));
    ServeFor(4000);
    EXPECT_EQ(std::ranges::count(other.Told, "record ended 131073"), 0);
    EXPECT_EQ(std::ranges::count(other.Told, "record 131073 VVL"), 0) << "it was known all the time";
}

TEST_F(Lines, APanelThatIsKilledLosesItsRecordsWithItsLease) {
    ASSERT_TRUE(Tells("framework up"));
    {
        PlayedMember other(loop, broker.SetUpOf(3), Program::Panel);
        ASSERT_TRUE(Until([&] { return other.AtBroker.IsThere(); }));
        other.AtBroker.Say(TopicKind::Record, R"({"type":"VOICE","role":"VVL"})", 1, Retain::Yes, 7);
        ASSERT_TRUE(Tells("record 196615 VVL"));
    }
    EXPECT_TRUE(Tells("record ended 196615"));
}

TEST_F(Lines, MalformedPayloadsAreDroppedAndCounted) {
    ASSERT_TRUE(Tells("simulator up"));
    simulator.AtBroker.Say(TopicKind::Input, R"({"number":1,"active":true,"keys":["A","A"],"buttons":[]})", 0,
                           Retain::No);
    simulator.AtBroker.Say(TopicKind::Input, "{", 0, Retain::No);
    simulator.AtBroker.Say(TopicKind::Input, TalkKeyHeld, 0, Retain::No);
    EXPECT_TRUE(Tells("held Ctrl F8|Stick.Button 3"));
    EXPECT_EQ(std::ranges::count_if(panel.Told, [](const std::string& each) { return each.starts_with("held"); }), 1);
}

}  // namespace
}  // namespace orvelle::mqtt
