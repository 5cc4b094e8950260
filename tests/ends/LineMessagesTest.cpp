// What a line says, whole and with several changes at once, becomes the events that tell them one by one.
#include <gtest/gtest.h>

#include <functional>
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

class LineMessagesTest : public testing::Test {
protected:
    LineMessagesTest() {
        velmarc.FSKeyDown = [this](bool repeat, bool active, const std::string& key, const std::string& sequence) {
            events.push_back((repeat ? "Repeat " : "KeyDown ") + key + " of " + sequence + (active ? "" : " inactive"));
            if (inHandler) std::exchange(inHandler, nullptr)();
        };
        velmarc.FSKeyUp = [this](Long, Long, const std::string& key, const std::string&) {
            events.push_back("KeyUp " + key);
        };
        velmarc.FSJoyDown = [this](Long, Long, const std::string& button, const std::string&) {
            events.push_back("JoyDown " + button);
        };
        velmarc.FSJoyUp = [this](Long, Long, const std::string& button, const std::string&) {
            events.push_back("JoyUp " + button);
        };
        tessaly.SessionOpened = [this] { events.push_back("Opened " + tessaly.SessionCallsignOf()); };
        tessaly.SessionClosed = [this] { events.push_back("Closed"); };
        tessaly.SessionStatusChanged = [this] { events.push_back("Status"); };
        tessaly.CallsignChanged = [this] { events.push_back("Callsign"); };
        tessaly.RadioVoiceChanged = [this](Long radio) { events.push_back("Voice " + std::to_string(radio)); };
        tessaly.RadioChanged = [this] { events.push_back("Radio"); };
        tessaly.InterfaceAppeared = [this](Long id) { events.push_back("Appeared " + std::to_string(id)); };
        tessaly.InterfaceChanged = [this](Long id) { events.push_back("Changed " + std::to_string(id)); };
        tessaly.InterfaceRemoved = [this](Long id) { events.push_back("Removed " + std::to_string(id)); };
        tessaly.InterfaceParamChanged = [this](Long id, Long index) {
            events.push_back("Param " + std::to_string(id) + "/" + std::to_string(index));
        };
        simulator.SetLink(LinkState::Up);
        network.SetLink(LinkState::Up);
        tessaly.LinkStart();
        loop.Run();
        events.clear();
    }

    Texts Take() { return std::exchange(events, {}); }

    // Reads the callsign as a handler of the panel does.
    class End : public FrameworkEnd {
    public:
        using FrameworkEnd::FrameworkEnd;
        std::string SessionCallsignOf() {
            if (!OpenSession(0)) return "closed";
            const std::string callsign = SessionCallsign();
            CloseSession();
            return callsign;
        }
    };

    HandLoop loop;
    MemoryValues values;
    embedded::SimulatorLink simulator{loop};
    embedded::NetworkLink network{loop};
    const LineTable<SimulatorLine> simulatorLines{simulator};
    const LineTable<FrameworkLine> frameworkLines{network};
    SimulatorEnd velmarc{loop, values, simulatorLines, {}};
    End tessaly{loop, values, frameworkLines};
    std::function<void()> inHandler;  // once, at the next key that goes down
    Texts events;
};

TEST_F(LineMessagesTest, WhatIsGoneComesUpBeforeWhatIsNewGoesDownAndTheRepeatComesLast) {
    simulator.Said({true, {"Ctrl", "A"}, {"Stick.Button 1"}, ""});
    EXPECT_EQ(Take(), (Texts{"KeyDown Ctrl of Ctrl", "KeyDown A of Ctrl+A", "JoyDown Stick.Button 1"}));
    simulator.Said({false, {"A", "B"}, {"Stick.Button 2"}, "B"});
    EXPECT_EQ(Take(), (Texts{"KeyUp Ctrl", "JoyUp Stick.Button 1", "KeyDown B of A+B inactive",
                             "JoyDown Stick.Button 2", "Repeat B of A+B inactive"}));
    simulator.Said({false, {"A", "B"}, {"Stick.Button 2"}, ""});
    EXPECT_TRUE(Take().empty());
}

TEST_F(LineMessagesTest, WhatIsSaidWhileAHandlerServesTheLoopIsToldAfterWhatWasSaidBefore) {
    inHandler = [this] { simulator.Said({true, {}, {}, ""}); };
    simulator.Said({true, {"A", "B"}, {}, ""});
    EXPECT_EQ(Take(), (Texts{"KeyDown A of A", "KeyDown B of A+B", "KeyUp A", "KeyUp B"}));
}

TEST_F(LineMessagesTest, EachKindOfChangeOfASessionIsToldOnceForAMessage) {
    SessionSetting session;
    session.Handle = 7;
    session.Callsign = "ABC123";
    network.SessionSaid(session);
    EXPECT_EQ(Take(), Texts{"Opened ABC123"});
    session.Status = 1;
    session.Callsign = "XYZ";
    session.Voice[1].Channel = "ops";
    session.Voice[0].Channel = "tower";
    session.Frequency = {"118.100", "121.500"};
    session.Receive = "B";
    network.SessionSaid(session);
    EXPECT_EQ(Take(), (Texts{"Status", "Callsign", "Voice 0", "Voice 1", "Radio"}));
    network.SessionSaid(session);
    EXPECT_TRUE(Take().empty());
}

TEST_F(LineMessagesTest, AnotherHandleIsAnEndAndABeginning) {
    SessionSetting session;
    session.Handle = 7;
    network.SessionSaid(session);
    Take();
    session.Handle = 8;
    session.Callsign = "XYZ";
    network.SessionSaid(session);
    EXPECT_EQ(Take(), (Texts{"Closed", "Opened XYZ"}));
    EXPECT_EQ(tessaly.SessionHandle(), 8);
}

TEST_F(LineMessagesTest, ARecordThatIsSaidAnewIsToldByItsDifferences) {
    RecordContent record{"VOICE", "VVL", {{{2, 1}, {7, 3}}, {{7, "room"}}}};
    network.RecordSaid(65537, record);
    EXPECT_EQ(Take(), Texts{"Appeared 65537"});
    record.Parameters = {{{3, 5}, {7, 3}}, {{7, "other"}, {9, ""}}};
    network.RecordSaid(65537, record);
    EXPECT_EQ(Take(), (Texts{"Param 65537/2", "Param 65537/3", "Param 65537/7"}));
    record.Role = "RWCom1";
    network.RecordSaid(65537, record);
    EXPECT_EQ(Take(), Texts{"Changed 65537"});
    network.RecordEnded(65537);
    network.RecordEnded(65537);
    EXPECT_EQ(Take(), Texts{"Removed 65537"});
}

TEST_F(LineMessagesTest, ARecordOutlivesALossOfTheLink) {
    network.RecordSaid(65537, {"VOICE", "VVL", {}});
    Take();
    network.SetLink(LinkState::Down);
    loop.Run();
    EXPECT_FALSE(tessaly.OpenInterface(65537));
    network.SetLink(LinkState::Up);
    loop.Run();
    network.RecordSaid(65537, {"VOICE", "VVL", {{{2, 1}}, {}}});
    EXPECT_EQ(Take(), Texts{"Param 65537/2"});
    EXPECT_TRUE(tessaly.OpenInterface(65537));
    EXPECT_EQ(tessaly.GetParam(2), 1);
}

// Its owner decides; the write shows when the record comes back.
TEST_F(LineMessagesTest, WhatThePanelWritesToAnothersRecordShowsWhenItIsSaid) {
    const Long id = network.Claim("tower", "VVL", VoiceRecordType);
    loop.Run();
    Take();
    ASSERT_TRUE(tessaly.OpenInterface(id));
    tessaly.SetParam(9, 1);
    EXPECT_EQ(tessaly.GetParam(9), 0);
    loop.Run();
    EXPECT_EQ(tessaly.GetParam(9), 1);
    EXPECT_EQ(Take(), Texts{"Param " + std::to_string(id) + "/9"});
}

TEST_F(LineMessagesTest, BeforeARecordGoesThePanelHearsOfAnotherOneOfTheRole) {
    const RecordContent duty{"VOICE", "VVL", {}};
    network.RecordSaid(900, duty);
    network.RecordSaid(901, duty);
    Take();
    network.RecordEnded(901);
    EXPECT_EQ(Take(), (Texts{"Appeared 900", "Removed 901"}));
    const Long own = tessaly.CreateInterface("VOICE", "VVL");
    loop.Run();
    Take();
    network.RecordTaken(own);
    EXPECT_EQ(Take(), (Texts{"Appeared 900", "Removed " + std::to_string(own)}));
    network.RecordEnded(900);
    EXPECT_EQ(Take(), (Texts{"Removed 900"}));
}

TEST_F(LineMessagesTest, NobodyButTheOwnerSaysOrEndsItsRecord) {
    const Long own = tessaly.CreateInterface("VOICE", "VVL");
    tessaly.SetParam(2, 1);
    loop.Run();
    Take();
    network.RecordSaid(own, {"VOICE", "RWCom1", {}});
    network.RecordEnded(own);
    network.WriteSaid(99, {{{2, 5}}, {}});
    EXPECT_TRUE(Take().empty());
    EXPECT_EQ(tessaly.InterfaceRole(), "VVL");
    EXPECT_EQ(tessaly.GetParam(2), 1);
}

TEST_F(LineMessagesTest, AWriteOfAnotherPartyIsToldWhereItChangesSomething) {
    const Long own = tessaly.CreateInterface("VOICE", "VVL");
    tessaly.SetParam(2, 1);
    loop.Run();
    Take();
    network.WriteSaid(own, {{{2, 1}, {9, 1}, {7, 2}}, {{7, "room"}}});
    EXPECT_EQ(Take(), (Texts{"Param " + std::to_string(own) + "/7", "Param " + std::to_string(own) + "/9"}));
    EXPECT_EQ(tessaly.GetParamText(7), "room");
}

}  // namespace
}  // namespace orvelle::ends
