#include <gtest/gtest.h>

#include "tests/replay/Replay.h"

namespace orvelle::replay {
namespace {

TEST(Stimulus, ClicksButtonsOptionsAndMenuEntries) {
    EXPECT_EQ(AfterLoad("only Velmarc.SaveSettingLong VolumeControl.Close\n"
                        "click optRWDriver(2)\n"
                        "click RWKeySet\n"
                        "show RWKeySet\n"
                        "click mnuTrayQuit\n"),
              "> click optRWDriver(2)\n"
              "Velmarc.SaveSettingLong(\"OrvelleCP\", \"RWDriven\", 2)\n"
              "> click RWKeySet\n"
              "RWKeySet.Caption = \"Cancel\"\n"
              "> click mnuTrayQuit\n"
              "VolumeControl.Close()\n"
              "Velmarc.SaveSettingLong(\"OrvelleCP\", \"Top\", 0)\n"
              "Velmarc.SaveSettingLong(\"OrvelleCP\", \"Left\", 0)\n"
              "! end\n");
}

TEST(Stimulus, DoesNothingToWhatIsDisabledItselfOrByItsPanel) {
    EXPECT_EQ(AfterLoad("only none\n"
                        "click VVLPrivKeySet\n"
                        "click J2KJoySet\n"
                        "check J2KToggle 1\n"
                        "text VelmarcServer \"pc\"\n"
                        "key VelmarcServer 13\n"
                        "show VVLPrivKeySet J2KJoySet J2KToggle VelmarcServer\n"),
              "> click VVLPrivKeySet\n> click J2KJoySet\n> check J2KToggle 1\n"
              "> text VelmarcServer \"pc\"\n> key VelmarcServer 13\n"
              "VVLPrivKeySet.Caption = \"Set\"\nJ2KJoySet.Caption = \"Set\"\nJ2KToggle.Value = 0\n"
              "VelmarcServer.Text = \"\"\n");
}

TEST(Stimulus, DoesNothingWhereThereIsNothingToClickOn) {
    EXPECT_EQ(AfterLoad("only none\n"
                        "raise Velmarc.Connected\n"
                        "pick VVLSpeakers 9\n"
                        "pick VVLSpeakers -1\n"
                        "item ListJoyToKey 1\n"
                        "item ListJoyToKey 0\n"
                        "node \"ATIS\"\n"
                        "show VVLSpeakers.ListIndex CurrentPanel\n"),
              "> raise Velmarc.Connected\n> pick VVLSpeakers 9\n> pick VVLSpeakers -1\n"
              "> item ListJoyToKey 1\n> item ListJoyToKey 0\n> node \"ATIS\"\n"
              "VVLSpeakers.ListIndex = 0\nCurrentPanel = 0\n");
}

TEST(Stimulus, ChecksABoxWhoseClickComesOnlyWithAChange) {
    EXPECT_EQ(AfterLoad("only Velmarc.SaveSettingLong\ncheck VVLFilter 2\ncheck VVLFilter 2\ncheck VVLFilter 0\n"),
              "> check VVLFilter 2\nVelmarc.SaveSettingLong(\"OrvelleCP\", \"VVLFilter\", 2)\n"
              "> check VVLFilter 2\n"
              "> check VVLFilter 0\nVelmarc.SaveSettingLong(\"OrvelleCP\", \"VVLFilter\", 0)\n");
}

TEST(Stimulus, ChangesTextsAndTypesKeys) {
    EXPECT_EQ(AfterLoad("only Velmarc.SaveSettingString Velmarc.SetServer\n"
                        "text RWPath \"C:\\a.exe\"\n"
                        "text RWFSKeyDisplay \"locked\"\n"
                        "click optVelmarc(1)\n"
                        "text VelmarcServer \"pc2\"\n"
                        "key VelmarcServer 65\n"
                        "key VelmarcServer 13\n"
                        "key RWPath 13\n"
                        "show RWFSKeyDisplay\n"),
              "> text RWPath \"C:\\a.exe\"\nVelmarc.SaveSettingString(\"OrvelleCP\", \"RWPath\", \"C:\\a.exe\")\n"
              "> text RWFSKeyDisplay \"locked\"\n"
              "> click optVelmarc(1)\nVelmarc.SetServer(\"\")\n"
              "> text VelmarcServer \"pc2\"\n"
              "> key VelmarcServer 65\n"
              "> key VelmarcServer 13\nVelmarc.SetServer(\"pc2\")\n"
              "> key RWPath 13\n"
              "RWFSKeyDisplay.Text = \"<No Hotkey>\"\n");
}

TEST(Stimulus, PicksEntriesAndMovesSliders) {
    EXPECT_EQ(AfterLoad("only Velmarc.SaveSetting*\npick VVLSpeakers 1\npick VVLSpeakers 1\nscroll VVLOut 500\n"),
              "> pick VVLSpeakers 1\nVelmarc.SaveSettingString(\"OrvelleCP\", \"VVLSpeakers\", \"Default Mapper\")\n"
              "> pick VVLSpeakers 1\nVelmarc.SaveSettingString(\"OrvelleCP\", \"VVLSpeakers\", \"Default Mapper\")\n"
              "> scroll VVLOut 500\nVelmarc.SaveSettingLong(\"OrvelleCP\", \"VVLOutVolume\", 400)\n");
}

TEST(Stimulus, ClicksNodesAndRows) {
    EXPECT_EQ(Replay("store \"OrvelleCP\\Key2Key\\1\" \"K2KFSKey\" \"F1\"\n"
                     "only none\nload\ngive Velmarc.LinkUp = True\nraise Velmarc.Connected\n"
                     "node \"Key to Key\"\nitem ListKeyToKey 1\nshow CurrentPanel K2KFSKey\n")
                  .Transcript,
              "> store \"OrvelleCP\\Key2Key\\1\" \"K2KFSKey\" \"F1\"\n"
              "> load\n! FrmOrvelle.Show\n> give Velmarc.LinkUp = True\n> raise Velmarc.Connected\n"
              "> node \"Key to Key\"\n> item ListKeyToKey 1\nCurrentPanel = 7\nK2KFSKey = \"F1\"\n");
}

TEST(Stimulus, MovesTheWindowWithoutAnEvent) {
    EXPECT_EQ(AfterLoad("move 100 200.5\nresize\nstate 1\nstate 0\n"),
              "> move 100 200.5\n"
              "> resize\n"
              "Velmarc.SaveSettingLong(\"OrvelleCP\", \"Top\", 200)\n"
              "Velmarc.SaveSettingLong(\"OrvelleCP\", \"Left\", 100)\n"
              "> state 1\n"
              "> state 0\n"
              "Velmarc.SaveSettingLong(\"OrvelleCP\", \"Top\", 200)\n"
              "Velmarc.SaveSettingLong(\"OrvelleCP\", \"Left\", 100)\n");
}

TEST(Stimulus, TheCloseBoxHidesAndTheIconShows) {
    EXPECT_EQ(AfterLoad("close 0\nmessage ST 1125 0 513\nmessage ST 1125 0 513\nmessage ST 1125 0 517\n"
                        "message ST 1125 0 516\nshow FrmOrvelle\n"),
              "> close 0\n! FrmOrvelle.Hide\n"
              "> message ST 1125 0 513\n! FrmOrvelle.Show\n"
              "> message ST 1125 0 513\n! FrmOrvelle.Hide\n"
              "> message ST 1125 0 517\n"
              "> message ST 1125 0 516\n"
              "FrmOrvelle.Visible = False\n");
}

TEST(Stimulus, AMessageEndsThePanelThroughItsDoorAlone) {
    EXPECT_EQ(AfterLoad("only none\nmessage FrmOrvelle 1237\nmessage ST 1237\nmessage Stub1 1236\n"
                        "message Stub1 1237 5 0x10\nmessage Stub1 1237\nshow VVLRunning\n"),
              "> message FrmOrvelle 1237\n> message ST 1237\n> message Stub1 1236\n"
              "> message Stub1 1237 5 0x10\n! end\n> message Stub1 1237\nVVLRunning = False\n");
}

TEST(Stimulus, TheWarningIsAWindowOfItsOwn) {
    EXPECT_EQ(
        AfterLoad("only none\nraise Velmarc.ServerFound(\"a\")\nraise Velmarc.ServerFound(\"b\")\n"
                  "show MultiFSWarningDlg Label1\nclick OKButton\nshow MultiFSWarningDlg\n"),
        "> raise Velmarc.ServerFound(\"a\")\n> raise Velmarc.ServerFound(\"b\")\n! MultiFSWarningDlg.Show\n"
        "MultiFSWarningDlg.Visible = True\n"
        "Label1.Caption = \"We strongly suggest you to switch to Specific mode and select a FS/Velmarc server.\"\n"
        "> click OKButton\nMultiFSWarningDlg.Visible = False\n");
}

TEST(Stimulus, RaisesEventsWithWhateverIsIgnored) {
    EXPECT_EQ(AfterLoad("only none\n"
                        "click RWJoySet\n"
                        "raise Velmarc.FSJoyDown(0, 0, \"1.B5\", \"\")\n"
                        "show RWFSJoy\n"
                        "raise Velmarc.FSJoyUp(\"\", True, \"1.B5\", 0)\n"
                        "raise Velmarc.Connected()\n"
                        "raise Tessaly.InterfaceParamChanged(1, 25)\n"
                        "raise VVL_RoomLeft(1)\n"
                        "raise VolumeControlHP.OutputOpened\n"),
              "> click RWJoySet\n> raise Velmarc.FSJoyDown(0, 0, \"1.B5\", \"\")\nRWFSJoy = \"1.B5\"\n"
              "> raise Velmarc.FSJoyUp(\"\", True, \"1.B5\", 0)\n> raise Velmarc.Connected()\n"
              "> raise Tessaly.InterfaceParamChanged(1, 25)\n> raise VVL_RoomLeft(1)\n"
              "> raise VolumeControlHP.OutputOpened\n");
}

TEST(Stimulus, PutsPlayersInPlace) {
    EXPECT_EQ(AfterLoad("players\nscroll VoiceATISVolume -100\nshow WMPCOM1\n"),
              "> players\n> scroll VoiceATISVolume -100\n"
              "Velmarc.SaveSettingLong(\"OrvelleCP\", \"VoiceATISVolume\", -100)\n"
              "WMPCOM1.Volume = -100\nWMPCOM2.Volume = -100\nWMPCOM1 = present\n");
}

}  // namespace
}  // namespace orvelle::replay
