#include "replay/peers/TessalyPeer.h"
#include "tests/replay/PeerTest.h"

namespace orvelle::replay {
namespace {

class RecordsTest : public PeerTest {
protected:
    TessalyPeer tessaly{"Tessaly", transcript, answers};
};

TEST_F(RecordsTest, TheLinkIsDownAndHasNoSession) {
    EXPECT_EQ(tessaly.GetServer(), "AUTOMATIC");
    tessaly.SetServer("<LOCAL>");
    EXPECT_EQ(tessaly.GetServer(), "<LOCAL>");
    EXPECT_FALSE(tessaly.Embedded());
    tessaly.Embedded(1);
    EXPECT_TRUE(tessaly.Embedded());
    EXPECT_FALSE(tessaly.LinkUp());
    EXPECT_EQ(tessaly.SessionHandle(), 0);
    EXPECT_FALSE(tessaly.OpenSession(0));
    tessaly.CloseSession();
    EXPECT_EQ(Printed(), R"(Tessaly.GetServer() -> "AUTOMATIC"
Tessaly.SetServer("<LOCAL>")
Tessaly.GetServer() -> "<LOCAL>"
Tessaly.Embedded -> False
Tessaly.Embedded = 1
Tessaly.Embedded -> True
Tessaly.LinkUp() -> False
Tessaly.SessionHandle() -> 0
Tessaly.OpenSession(0) -> False
Tessaly.CloseSession()
)");
}

TEST_F(RecordsTest, TheSessionIsEmpty) {
    EXPECT_EQ(tessaly.SessionStatus() + tessaly.VoiceSoftware(0), 0);
    EXPECT_EQ(tessaly.SessionCallsign() + tessaly.ReceiveRadio() + tessaly.TransmitRadio(), "");
    EXPECT_EQ(tessaly.FreqCOM1() + tessaly.FreqCOM2() + tessaly.VoiceServer(1) + tessaly.VoiceChannel(1), "");
    EXPECT_EQ(tessaly.VoiceLogin(0) + tessaly.VoicePassword(0) + tessaly.ResolveServerAddress("srv"), "");
    EXPECT_NE(Printed().find("Tessaly.VoiceServer(1) -> \"\"\n"), std::string::npos);
}

TEST_F(RecordsTest, ARecordThatIsCreatedIsLocalAndOpenWithTheLowestFreeId) {
    tessaly.PutRecord(1, {"VOICE", "RWCom1", InterfaceRecord::Owner::Foreign});
    EXPECT_EQ(tessaly.CreateInterface("VOICE", "VVL"), 2);
    tessaly.SetParam(0, 3);
    EXPECT_EQ(tessaly.GetParam(0), 3);
    EXPECT_EQ(tessaly.InterfaceType(), "VOICE");
    EXPECT_EQ(tessaly.InterfaceRole(), "VVL");
    EXPECT_TRUE(tessaly.InterfaceIsLocal());
    tessaly.CloseInterface();
    tessaly.DeleteInterface(2);
    EXPECT_FALSE(tessaly.OpenInterface(2));
    EXPECT_EQ(tessaly.CreateInterface("VOICE", "VVL"), 2);
    EXPECT_EQ(tessaly.GetParam(0), 0);
    EXPECT_EQ(Printed(), R"(Tessaly.CreateInterface("VOICE", "VVL") -> 2
Tessaly.SetParam(0, 3)
Tessaly.GetParam(0) -> 3
Tessaly.InterfaceType() -> "VOICE"
Tessaly.InterfaceRole() -> "VVL"
Tessaly.InterfaceIsLocal() -> True
Tessaly.CloseInterface()
Tessaly.DeleteInterface(2)
Tessaly.OpenInterface(2) -> False
Tessaly.CreateInterface("VOICE", "VVL") -> 2
Tessaly.GetParam(0) -> 0
)");
}

TEST_F(RecordsTest, AnotherPartysRecordIsForeignAndItsWritesAreRead) {
    tessaly.PutRecord(7, {"VOICE", "VVL", InterfaceRecord::Owner::Foreign});
    tessaly.PutParam(7, 13, 1);
    tessaly.PutParamText(7, 9, "srv/private");
    EXPECT_TRUE(tessaly.OpenInterface(7));
    EXPECT_FALSE(tessaly.InterfaceIsLocal());
    EXPECT_EQ(tessaly.GetParam(13), 1);
    EXPECT_EQ(tessaly.GetParamText(9), "srv/private");
    tessaly.SetParamText(9, "");
    EXPECT_EQ(tessaly.GetParamText(9), "");
}

TEST_F(RecordsTest, ADroppedRecordIsGoneWithItsParameters) {
    tessaly.PutRecord(7, {"VOICE", "VVL", InterfaceRecord::Owner::Foreign});
    tessaly.PutParam(7, 13, 1);
    tessaly.DropRecord(7);
    EXPECT_FALSE(tessaly.OpenInterface(7));
    EXPECT_EQ(tessaly.Table().Find(7), nullptr);
    EXPECT_EQ(InterfaceRecordTable::At(tessaly.Table().Params, 7, 13).Held, 0);
}

TEST_F(RecordsTest, WithNothingOpenEverythingIsEmptyAndClosingIsHarmless) {
    tessaly.CloseInterface();
    tessaly.SetParam(2, 1);
    EXPECT_EQ(tessaly.GetParam(2), 0);
    EXPECT_EQ(tessaly.GetParamText(7) + tessaly.InterfaceType() + tessaly.InterfaceRole(), "");
    EXPECT_FALSE(tessaly.InterfaceIsLocal());
}

TEST_F(RecordsTest, AnIdThatIsGivenMakesNoRecord) {
    answers.Give("Tessaly.CreateInterface", {{Long{0}}, {Long{9}}});
    EXPECT_EQ(tessaly.CreateInterface("VOICE", "RWCom1"), 0);
    EXPECT_EQ(tessaly.CreateInterface("VOICE", "RWCom1"), 9);
    EXPECT_TRUE(tessaly.Table().Records.empty());
    EXPECT_FALSE(tessaly.OpenInterface(9));
}

TEST_F(RecordsTest, ARecordCanBeOpenedByAGivenAnswerAlone) {
    answers.Give("Tessaly.OpenInterface", {{true}});
    tessaly.PutParam(0, 16, 1);
    EXPECT_TRUE(tessaly.OpenInterface(0));
    EXPECT_EQ(tessaly.GetParam(16), 1);
}

TEST_F(RecordsTest, OfAGivenParameterAndAWriteTheLaterHolds) {
    tessaly.PutRecord(1, {"VOICE", "VVL", InterfaceRecord::Owner::Local});
    tessaly.OpenInterface(1);
    answers.Give("Tessaly.GetParam(7)", {{Long{2}}});
    EXPECT_EQ(tessaly.GetParam(7), 2);
    tessaly.SetParam(7, 0);
    EXPECT_EQ(tessaly.GetParam(7), 0);
    EXPECT_EQ(tessaly.GetParam(8), 0);
}

}  // namespace
}  // namespace orvelle::replay
