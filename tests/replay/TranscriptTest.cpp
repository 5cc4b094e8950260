#include "replay/Transcript.h"

#include <gtest/gtest.h>

#include <sstream>

namespace orvelle::replay {
namespace {

class TranscriptTest : public testing::Test {
protected:
    std::ostringstream out;
    Transcript transcript{out};
};

TEST_F(TranscriptTest, PrintsCallsUnderTheEchoOfTheirLine) {
    transcript.Begin("load");
    transcript.Call("Velmarc.LinkUp", "Velmarc.LinkUp() -> False");
    transcript.Note("FrmOrvelle.Show");
    transcript.Flush();
    transcript.Begin("resize");
    transcript.Flush();
    EXPECT_EQ(out.str(), "> load\nVelmarc.LinkUp() -> False\n! FrmOrvelle.Show\n> resize\n");
}

TEST_F(TranscriptTest, DropsTheEchoOfALineUnderWhichNothingWasPrinted) {
    transcript.Begin("pick VelmarcServer 9");
    transcript.Drop();
    transcript.Flush();
    EXPECT_EQ(out.str(), "");
}

TEST_F(TranscriptTest, PrintsOnlyWhatMatchesAPattern) {
    transcript.Only({"VVL.Room*", "*.GetServer", "MsgBox", "user3?.[a-m]*"});
    for (const char* name : {"VVL.RoomJoin", "VVL.Start", "Velmarc.GetServer", "Tessaly.GetServer", "MsgBox",
                             "user32.keybd_event", "user32.SetCapture"})
        transcript.Call(name, name);
    EXPECT_EQ(out.str(), "VVL.RoomJoin\nVelmarc.GetServer\nTessaly.GetServer\nMsgBox\nuser32.keybd_event\n");
}

TEST_F(TranscriptTest, LeavesOutWhatIsHiddenAlsoOfWhatIsWanted) {
    transcript.Only({"VVL.*"});
    transcript.Hide({"*.Start"});
    transcript.Call("VVL.Start", "start");
    transcript.Call("VVL.Stop", "stop");
    EXPECT_EQ(out.str(), "stop\n");
}

TEST_F(TranscriptTest, PrintsAllAgainWithoutPatterns) {
    transcript.Only({"none"});
    transcript.Hide({"VVL.*"});
    transcript.Only({});
    transcript.Hide({});
    transcript.Call("VVL.Start", "start");
    EXPECT_EQ(out.str(), "start\n");
}

TEST_F(TranscriptTest, PrintsNotesAndLooksWhateverIsWanted) {
    transcript.Only({"none"});
    transcript.Note("Timer1");
    transcript.Look("RWServer = \"\"");
    EXPECT_EQ(out.str(), "! Timer1\nRWServer = \"\"\n");
}

TEST_F(TranscriptTest, PrintsNoCallAfterTheEnd) {
    transcript.End();
    transcript.Call("VVL.Stop", "VVL.Stop()");
    transcript.Note("FrmOrvelle.Hide");
    transcript.Begin("resize");
    transcript.Flush();
    transcript.Look("VVLRunning = False");
    EXPECT_TRUE(transcript.Ended());
    EXPECT_EQ(out.str(), "! end\n> resize\nVVLRunning = False\n");
}

}  // namespace
}  // namespace orvelle::replay
