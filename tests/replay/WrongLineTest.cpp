#include <gtest/gtest.h>

#include <span>

#include "tests/replay/Replay.h"

namespace orvelle::replay {
namespace {

struct WrongLine {
    const char* Line;
    const char* Complaint;
};

// Gives each line to a loaded panel and expects its complaint, and no echo of the line.
void ExpectComplaints(std::span<const WrongLine> lines) {
    for (const WrongLine& wrong : lines) {
        SCOPED_TRACE(wrong.Line);
        const Outcome outcome = Replay("only none\nload\n" + std::string(wrong.Line) + "\nclock 1\n");
        EXPECT_EQ(outcome.Status, 2);
        EXPECT_EQ(outcome.Transcript, "> load\n! FrmOrvelle.Show\n");
        EXPECT_EQ(outcome.Errors, "3: " + std::string(wrong.Complaint) + "\n");
    }
}

constexpr WrongLine Preparing[] = {
    {"give", "a name is missing at the end"},
    {"give Velmarc = 1", "Velmarc is not of the form OWNER.MEMBER"},
    {"give Velmarc(1).LinkUp = True", "Velmarc(1).LinkUp is not of the form OWNER.MEMBER"},
    {"give Velmarc.LinkUp.Twice = True", "Velmarc.LinkUp.Twice is not of the form OWNER.MEMBER"},
    {"give Velmarc.LinkUp", "a \"=\" is missing at the end"},
    {"give Velmarc.LinkUp True", "a \"=\" is missing before \"True\""},
    {"give Velmarc.LinkUp =", "a value is missing at the end"},
    {"give Velmarc.LinkUp = yes", "yes is no value"},
    {"give Velmarc.LinkUp = True,", "a value is missing at the end"},
    {"give Velmarc.LinkUp = True False", "nothing is expected where \"False\" stands"},
    {"give Velmarc.LinkUp = \"x\"", "\"x\" is no Boolean"},
    {"give Velmarc.LinkUp = (True, 1)", "an answer of Velmarc.LinkUp has up to 1 value"},
    {"give Velmarc.LinkUp = ()", "an answer of Velmarc.LinkUp has up to 1 value"},
    {"give VVL.Calibrate = (True, 1, 2, 3)", "an answer of VVL.Calibrate has up to 3 values"},
    {"give VVL.Calibrate = (True, \"1\")", "\"1\" is no number"},
    {"give VVL.Calibrate = (True", "a \")\" is missing at the end"},
    {"give Velmarc.GetServer = 5", "5 is no text"},
    {"give Tessaly.SessionHandle = True", "True is no whole number"},
    {"give Tessaly.VoiceSoftware() = 1", "Tessaly.VoiceSoftware takes 1 value and not 0"},
    {"give Tessaly.VoiceSoftware(0, 1) = 1", "Tessaly.VoiceSoftware takes 1 value and not 2"},
    {"give Tessaly.VoiceSoftware(\"0\") = 1", "\"0\" is no whole number"},
    {"give TSRemote.tsrConnect = 3000000000", "3000000000 is out of the range of a 32-bit number"},
    {"give Velmarc.PlaySound = 1", "nothing that can be told to answer is called Velmarc.PlaySound"},
    {"give Nobody.Nothing = 1", "nothing that can be told to answer is called Nobody.Nothing"},
    {"give IconList.RRRRRR = 1", "an icon can only be given as none"},
    {"give IconList.RRYRRR = none", "there is no icon RRYRRR"},
    {"give IconList.RRRRR = none", "there is no icon RRRRR"},
    {"give IconList.RRRRRX = none", "there is no icon RRRRRX"},
    {"store OrvelleCP \"Left\" 1", "a text in quotes is missing before \"OrvelleCP \"Left\" 1\""},
    {"store \"OrvelleCP\" \"Left\"", "a value is missing at the end"},
    {"store \"OrvelleCP\" \"Left\" True", "True is no text or whole number"},
    {"store \"OrvelleCP\" \"Left\" 1.5", "1.5 is no text or whole number"},
    {"store \"OrvelleCP\" \"Left\" 1 2", "nothing is expected where \"2\" stands"},
    {"store \"OrvelleCP\" \"Left", "the text has no closing quote"},
    {"registry \"SOFTWARE\" 5 1", "a text in quotes is missing before \"5 1\""},
    {"record one \"VOICE\" \"VVL\" local", "one is no whole number"},
    {"record 1 \"VOICE\" \"VVL\"", "a word is missing at the end"},
    {"record 1 \"VOICE\" \"VVL\" mine", "a record is local or foreign, not mine"},
    {"param 1 2", "a value is missing at the end"},
    {"param 1 2 \"3\"", "\"3\" is no whole number"},
    {"paramtext 1 2 3", "a text in quotes is missing before \"3\""},
    {"drop", "a value is missing at the end"},
    {"drop 1 2", "nothing is expected where \"2\" stands"},
    {"address \"1.2.3.4\"", "a word is missing at the end"},
    {"address \"1.2.3.4\" dots", "an address is padded with zeros or blanks"},
    {"address \"1234567890123456789012345678901\" zeros", "the address is longer than 30 characters"},
    {"clock", "a value is missing at the end"},
    {"clock 1.5", "1.5 is no whole number"},
    {"clock 3000000000", "3000000000 is out of the range of a 32-bit number"},
    {"players 2", "nothing is expected where \"2\" stands"},
};
TEST(WrongLines, OfThePreparationsAreTold) { ExpectComplaints(Preparing); }

constexpr WrongLine Stimulating[] = {
    {"load", "the panel is loaded already"},
    {"load now", "nothing is expected where \"now\" stands"},
    {"raise", "a name is missing at the end"},
    {"raise Velmarc.Exploded", "there is no event Velmarc.Exploded"},
    {"raise VVL.RoomLeft(1)", "there is no event VVL.RoomLeft"},
    {"raise VVL_RoomLeft(40000)", "40000 is out of the range of a 16-bit number"},
    {"raise Velmarc(5).Connected", "there is no event Velmarc(5).Connected"},
    {"raise Velmarc.Connected(1)", "the event Velmarc.Connected takes 0 values and not 1"},
    {"raise Velmarc.ServerFound", "the event Velmarc.ServerFound takes 1 value and not 0"},
    {"raise Velmarc.ServerFound(5)", "5 is no text"},
    {"raise Velmarc.FSKeyDown(False, True, \"A\")", "the event Velmarc.FSKeyDown takes 4 values and not 3"},
    {"raise Tessaly.RadioVoiceChanged(0", "a \")\" is missing at the end"},
    {"raise Tessaly.RadioVoiceChanged(0) now", "nothing is expected where \"now\" stands"},
    {"click Nothing", "there is no control Nothing"},
    {"click optRWDriver(3)", "there is no control optRWDriver(3)"},
    {"click optRWDriver", "there is no control optRWDriver"},
    {"click RWEnable", "RWEnable is no button, menu entry or option button"},
    {"check RWEnable", "a value is missing at the end"},
    {"check RWEnable 3", "3 is not between 0 and 2"},
    {"check RWPath 1", "RWPath is no check box"},
    {"text RWPath", "a text in quotes is missing at the end"},
    {"text RWPath C:\\a", "a text in quotes is missing before \"C:\\a\""},
    {"text RWEnable \"x\"", "RWEnable is no text box or combo box"},
    {"key VelmarcServer", "a value is missing at the end"},
    {"key Nothing 13", "there is no control Nothing"},
    {"pick RWPath 0", "RWPath is no combo box"},
    {"scroll VVLOut", "a value is missing at the end"},
    {"scroll VVLOut 1.5", "1.5 is no whole number"},
    {"scroll RWPath 1", "RWPath is no slider"},
    {"node Config", "a text in quotes is missing before \"Config\""},
    {"item RWPath 1", "RWPath is no list"},
    {"move 1", "a value is missing at the end"},
    {"move left 1", "left is no number"},
    {"resize 1", "nothing is expected where \"1\" stands"},
    {"state 3", "3 is not between 0 and 2"},
    {"close", "a value is missing at the end"},
    {"close -1", "-1 is not between 0 and 2147483647"},
    {"message RWPath 1237", "RWPath has no window of its own"},
    {"message Stub1", "a value is missing at the end"},
    {"message Stub1 1 2 3 4", "nothing is expected where \"4\" stands"},
    {"keydown 512", "512 is not between 0 and 511"},
    {"keydown -1", "-1 is not between 0 and 511"},
    {"syskeydown F10", "F10 is no whole number"},
    {"at", "a value is missing at the end"},
    {"at -5 resize", "-5 is not between 0 and 2147483647"},
    {"at 5", "a word is missing at the end"},
    {"at 5 load", "load cannot be scheduled"},
    {"at 5 at 5 resize", "at cannot be scheduled"},
    {"at 5 advance 5", "advance cannot be scheduled"},
    {"at 5 show RWPath", "show cannot be scheduled"},
    {"at 5 jump", "no line begins with jump"},
    {"at 5 click Nothing", "there is no control Nothing"},
    {"advance", "a value is missing at the end"},
    {"advance -1", "-1 is not between 0 and 2147483647"},
};
TEST(WrongLines, OfTheStimuliAreTold) { ExpectComplaints(Stimulating); }

constexpr WrongLine Looking[] = {
    {"show", "a name is missing at the end"},
    {"show Nothing", "there is no control or variable Nothing"},
    {"show RWPath Nothing", "there is no control or variable Nothing"},
    {"show RWPath.Colour", "there is no RWPath.Colour"},
    {"show RWPath.Value", "there is no RWPath.Value"},
    {"show RWPath.Text.Length", "there is no RWPath.Text.Length"},
    {"show RWServer.Text", "there is no control or variable RWServer.Text"},
    {"show ReceiveOff", "there is no control or variable ReceiveOff"},
    {"show ReceiveOff(3)", "there is no control or variable ReceiveOff(3)"},
    {"show RadioVoice(0)", "there is no control or variable RadioVoice(0)"},
    {"show RadioVoice(0).Colour", "there is no control or variable RadioVoice(0).Colour"},
    {"show optRWDriver(3)", "there is no control or variable optRWDriver(3)"},
    {"show ListJoyToKey", "a property of ListJoyToKey is wanted"},
    {"show ListJoyToKey(1)", "ListJoyToKey has no row 1"},
    {"show ListJoyToKey(\"1\")", "\"1\" is no whole number"},
    {"show VVLStatusBar", "a panel of VVLStatusBar is wanted: VVLStatusBar.Panels(1)"},
    {"show VVLStatusBar.Panels(3)", "VVLStatusBar has no panel 3"},
    {"show VVLStatusBar.Panels()", "Panels takes 1 value and not 0"},
    {"show VVLStatusBar.Bits(1)", "a panel of VVLStatusBar is wanted: VVLStatusBar.Panels(1)"},
    {"show twCategory.Nodes", "there is no twCategory.Nodes"},
    {"show Setting(\"OrvelleCP\")", "Setting takes 2 values and not 1"},
    {"show Setting", "Setting takes 2 values and not 0"},
    {"show Registry(\"a\", 5)", "5 is no text"},
    {"show Tessaly", "there is no Tessaly"},
    {"show Tessaly(1).Records", "there is no Tessaly(1).Records"},
    {"show Tessaly.Server", "there is no Tessaly.Server"},
    {"show Tessaly.Param(1)", "Tessaly.Param takes 2 values and not 1"},
    {"show Tessaly.ParamText(1, \"2\")", "\"2\" is no whole number"},
};
TEST(WrongLines, OfTheLooksAreTold) { ExpectComplaints(Looking); }

TEST(WrongLines, ControlsCannotBeNamedBeforeTheLoad) {
    EXPECT_EQ(Replay("click Shutdown\n").Errors, "1: the panel is not loaded yet\n");
    EXPECT_EQ(Replay("show RWPath\n").Errors, "1: the panel is not loaded yet\n");
    EXPECT_EQ(Replay("resize\n").Errors, "1: the panel is not loaded yet\n");
    EXPECT_EQ(Replay("players\n").Errors, "1: the panel is not loaded yet\n");
    EXPECT_EQ(Replay("raise Velmarc.Connected\n").Errors, "");
}

TEST(WrongLines, AScheduledStimulusIsWrongWithTheLineThatScheduledIt) {
    const std::string line = "at 10 address \"1234567890123456789012345678901\" zeros\n";
    const Outcome outcome = Replay("only none\nload\n" + line + "advance 5\nadvance 5\nclock 1\n");
    EXPECT_EQ(outcome.Status, 2);
    EXPECT_EQ(outcome.Errors, "3: the address is longer than 30 characters\n");
    EXPECT_EQ(outcome.Transcript, "> load\n! FrmOrvelle.Show\n> " + line + "> advance 5\n");
}

TEST(WrongLines, AScheduledStimulusMayNameAnEntryThatIsYetToCome) {
    EXPECT_EQ(AfterLoad("only none\nat 10 pick VelmarcServer 0\nclick optVelmarc(1)\n"
                        "raise Velmarc.ServerFound(\"a\")\nadvance 10\nshow VelmarcServer.ListIndex\n"),
              "> at 10 pick VelmarcServer 0\n> click optVelmarc(1)\n> raise Velmarc.ServerFound(\"a\")\n> advance 10\n"
              "VelmarcServer.ListIndex = 0\n");
}

}  // namespace
}  // namespace orvelle::replay
