#include <gtest/gtest.h>

#include "tests/replay/Replay.h"

namespace orvelle::replay {
namespace {

TEST(Time, ServesTimersAndScheduledStimuliInOrder) {
    EXPECT_EQ(AfterLoad("only VVL.InputStatus Velmarc.PlaySound\n"
                        "check VoiceTuningSound 1\n"
                        "raise VVL_Started\n"
                        "at 1500 raise VVL_RoomKicked(0)\n"
                        "at 500 raise VVL_RoomJoinSucceed(0)   # early\n"
                        "advance 400\n"
                        "advance 1600\n"),
              "> check VoiceTuningSound 1\n"
              "> raise VVL_Started\n"
              "> at 1500 raise VVL_RoomKicked(0)\n"
              "> at 500 raise VVL_RoomJoinSucceed(0)\n"
              "> advance 400\n"
              "> advance 1600\n"
              "Velmarc.PlaySound(\"Tessaly\\RADIO_ONCHANNEL.wav\")\n"
              "! TimerDeviceStatus\n"
              "VVL.InputStatus -> False\n"
              "Velmarc.PlaySound(\"Tessaly\\RADIO_NOCHANNEL.wav\")\n"
              "! TimerDeviceStatus\n"
              "VVL.InputStatus -> False\n");
}

TEST(Time, StopsTickingWhenATimerIsTurnedOff) {
    EXPECT_EQ(AfterLoad("only none\nraise VVL_Started\nadvance 999\nraise VVL_Stopped\nadvance 5000\n"),
              "> raise VVL_Started\n> advance 999\n> raise VVL_Stopped\n> advance 5000\n");
}

TEST(Time, ALocalCaptureTakesKeysAndServesEverythingElse) {
    EXPECT_EQ(AfterLoad("only kernel32.Sleep none.*\nhide kernel32.Sleep\n"
                        "clock 2147483000\n"
                        "keydown 17\n"
                        "raise VVL_Started\n"
                        "at 0 raise Velmarc.ServerFound(\"early\")\n"
                        "at 50 syskeydown 56\n"
                        "at 50 keydown 256\n"
                        "at 250 raise Velmarc.ServerFound(\"late\")\n"
                        "at 250 message ST 1125 0 513\n"
                        "at 3500 keydown 30\n"
                        "click TSPTTKeySet\n"
                        "show TSPTTKey TSPTTKeyDisplay VelmarcServer.List\n"
                        "advance 1000\n"
                        "show TSPTTKey\n"),
              "> clock 2147483000\n> keydown 17\n> raise VVL_Started\n"
              "> at 0 raise Velmarc.ServerFound(\"early\")\n> at 50 syskeydown 56\n> at 50 keydown 256\n"
              "> at 250 raise Velmarc.ServerFound(\"late\")\n> at 250 message ST 1125 0 513\n> at 3500 keydown 30\n"
              "> click TSPTTKeySet\n"
              "! MultiFSWarningDlg.Show\n"
              "! FrmOrvelle.Hide\n"
              "! TimerDeviceStatus\n"
              "! TimerDeviceStatus\n"
              "TSPTTKey = \"256\"\nTSPTTKeyDisplay.Text = \"K256\"\nVelmarcServer.List = \"early\" \"late\"\n"
              "> advance 1000\n! TimerDeviceStatus\n! TimerDeviceStatus\n"
              "TSPTTKey = \"256\"\n");
}

TEST(Time, AnAnswerCanChangeInsideALocalCapture) {
    EXPECT_EQ(AfterLoad("only none\n"
                        "at 300 give Velmarc.LinkUp = True\n"
                        "at 400 raise Velmarc.Connected\n"
                        "click RWPTTKeySet\n"
                        "show StatusVelmarc\n"),
              "> at 300 give Velmarc.LinkUp = True\n> at 400 raise Velmarc.Connected\n> click RWPTTKeySet\n"
              "StatusVelmarc.Caption = \"FS with Velmarc is up and running\"\n");
}

TEST(Time, TheProgramCanEndInsideALocalCapture) {
    EXPECT_EQ(AfterLoad("only user32.*\nat 300 message Stub1 1237\nclick RWPTTKeySet\n"),
              "> at 300 message Stub1 1237\n> click RWPTTKeySet\nuser32.SetCapture(RWPTTKeyDisplay)\n! end\n");
}

TEST(Time, ARuntimeErrorInsideALocalCaptureEndsTheProgram) {
    EXPECT_EQ(Replay("store \"OrvelleCP\\Joy2Key\\1\" \"J2KJoy\" \"1.B1\"\n"
                     "store \"OrvelleCP\\Joy2Key\\1\" \"J2KKey\" \"\"\n"
                     "only none\nload\nat 300 raise Velmarc.FSJoyDown(0, 0, \"1.B1\", \"\")\nclick RWPTTKeySet\n"
                     "click RWPTTKeySet\n")
                  .Transcript,
              "> store \"OrvelleCP\\Joy2Key\\1\" \"J2KJoy\" \"1.B1\"\n"
              "> store \"OrvelleCP\\Joy2Key\\1\" \"J2KKey\" \"\"\n"
              "> load\n! FrmOrvelle.Show\n> at 300 raise Velmarc.FSJoyDown(0, 0, \"1.B1\", \"\")\n"
              "> click RWPTTKeySet\n! run-time error 13\n! end\n> click RWPTTKeySet\n");
}

}  // namespace
}  // namespace orvelle::replay
