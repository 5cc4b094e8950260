#include <gtest/gtest.h>

#include "tests/replay/Replay.h"

namespace orvelle::replay {
namespace {

TEST(Look, PrintsTheUsualPropertyOfEachKindOfControl) {
    EXPECT_EQ(AfterLoad("show StatusMainUser Shutdown VelmarcServer RWPath RWEnable optRWDriver(0) VVLOut\n"
                        "show RecvCOM1 Panels(0) StatusIcon ST FrmOrvelle mnuTrayQuit Timer1 OKButton\n"),
              "StatusMainUser.Caption = \"\"\n"
              "Shutdown.Caption = \"Shutdown\"\n"
              "VelmarcServer.Text = \"\"\n"
              "RWPath.Text = \"\"\n"
              "RWEnable.Value = 0\n"
              "optRWDriver(0).Value = True\n"
              "VVLOut.Value = 100\n"
              "RecvCOM1.Visible = False\n"
              "Panels(0).Visible = True\n"
              "StatusIcon.Picture = \"RRRRRR\"\n"
              "ST.Picture = \"RRRRRR\"\n"
              "FrmOrvelle.Visible = True\n"
              "mnuTrayQuit.Caption = \"Quit\"\n"
              "Timer1.Enabled = False\n"
              "OKButton.Caption = \"OK\"\n");
}

TEST(Look, PrintsPropertiesByName) {
    EXPECT_EQ(AfterLoad("show StatusVelmarc.ForeColor StatusRogerWilco.ForeColor RecvCOM1.FillColor Panels(4).Enabled\n"
                        "show VVLOut.Min VVLOut.Max VVLOut.TickFrequency RWEnable.Caption FrmOrvelle.WindowState\n"
                        "move 12.5 -30\n"
                        "show FrmOrvelle.Left FrmOrvelle.Top MultiFSWarningDlg.Visible VVLSpeakers.ListIndex\n"),
              "StatusVelmarc.ForeColor = 255\n"
              "StatusRogerWilco.ForeColor = -2147483630\n"
              "RecvCOM1.FillColor = 32768\n"
              "Panels(4).Enabled = False\n"
              "VVLOut.Min = 0\n"
              "VVLOut.Max = 400\n"
              "VVLOut.TickFrequency = 1\n"
              "RWEnable.Caption = \"Enable RogerWilco on this computer\"\n"
              "FrmOrvelle.WindowState = 0\n"
              "> move 12.5 -30\n"
              "FrmOrvelle.Left = 12.5\n"
              "FrmOrvelle.Top = -30\n"
              "MultiFSWarningDlg.Visible = False\n"
              "VVLSpeakers.ListIndex = 0\n");
}

TEST(Look, PrintsTheListOfAComboBox) {
    EXPECT_EQ(AfterLoad("show VelmarcServer.List VelmarcServer.ListIndex VVLSpeakers.List\n"),
              "VelmarcServer.List =\n"
              "VelmarcServer.ListIndex = -1\n"
              "VVLSpeakers.List = \"None\" \"Default Mapper\"\n");
}

TEST(Look, PrintsThePanelsOfAStatusBar) {
    EXPECT_EQ(AfterLoad("show VVLStatusBar.Panels(2) VelmarcStatus.Panels( 1 ) VelmarcStatus.Enabled\n"),
              "VVLStatusBar.Panels(2) = \"Engine off\"\n"
              "VelmarcStatus.Panels(1) = \"Not Connected\"\n"
              "VelmarcStatus.Enabled = True\n");
}

TEST(Look, PrintsTheRowsOfAList) {
    EXPECT_EQ(Replay("store \"OrvelleCP\\Joy2Key\\1\" \"J2KJoy\" \"A\"\n"
                     "store \"OrvelleCP\\Joy2Key\\1\" \"J2KKey\" \"30\"\n"
                     "only none\nload\nshow ListJoyToKey.Count ListJoyToKey(1) ListKeyToKey.Count\n")
                  .Transcript,
              "> store \"OrvelleCP\\Joy2Key\\1\" \"J2KJoy\" \"A\"\n"
              "> store \"OrvelleCP\\Joy2Key\\1\" \"J2KKey\" \"30\"\n"
              "> load\n! FrmOrvelle.Show\n"
              "ListJoyToKey.Count = 1\n"
              "ListJoyToKey(1) = \"A\" \"K30\" \"Push\" \"30\" \"\"\n"
              "ListKeyToKey.Count = 0\n");
}

TEST(Look, PrintsTheTreeWithItsTags) {
    const std::string tree = AfterLoad("show twCategory\n");
    EXPECT_TRUE(tree.starts_with("Config = 0\n  Velmarc = 1\n  Kestrine = 8\n    Extra = 11\n")) << tree;
}

TEST(Look, PrintsVariables) {
    EXPECT_EQ(AfterLoad("show ActiveVoiceSoftware RadioVoice(0).Server RadioVoice(1).Software ReceiveOff(2) Callsign\n"
                        "show RadioVoice(0).Channel RadioVoice(0).LoginName RadioVoice(0).Password ATISSource(1)\n"
                        "show WMPCOM1 PriorityStamp VVLRunning\n"),
              "ActiveVoiceSoftware = 0\n"
              "RadioVoice(0).Server = \"\"\n"
              "RadioVoice(1).Software = 0\n"
              "ReceiveOff(2) = False\n"
              "Callsign = \"\"\n"
              "RadioVoice(0).Channel = \"\"\n"
              "RadioVoice(0).LoginName = \"\"\n"
              "RadioVoice(0).Password = \"\"\n"
              "ATISSource(1) = \"\"\n"
              "WMPCOM1 = none\n"
              "PriorityStamp = 0\n"
              "VVLRunning = False\n");
}

TEST(Look, PrintsWhatTheStoreHoldsAlsoBeforeTheLoad) {
    EXPECT_EQ(
        Replay("store \"OrvelleCP\" \"Left\" 0x10\n"
               "registry \"SOFTWARE\\A\" \"\" \"x \"\"y\"\"\"\n"
               "show Setting(\"OrvelleCP\",\"Left\") Setting(\"OrvelleCP\", \"Top\") Registry(\"SOFTWARE\\A\", \"\")\n")
            .Transcript,
        "> store \"OrvelleCP\" \"Left\" 0x10\n"
        "> registry \"SOFTWARE\\A\" \"\" \"x \"\"y\"\"\"\n"
        "Setting(\"OrvelleCP\", \"Left\") = 16\n"
        "Setting(\"OrvelleCP\", \"Top\") = none\n"
        "Registry(\"SOFTWARE\\A\", \"\") = \"x \"\"y\"\"\"\n");
}

TEST(Look, PrintsTheInterfaceRecords) {
    EXPECT_EQ(Replay("show Tessaly.Records\n"
                     "record 7 \"VOICE\" \"VVL\" foreign\n"
                     "record 1 \"VOICE\" \"RWCom1\" local\n"
                     "record 2 \"OTHER\" \"\" local\n"
                     "param 7 13 1\n"
                     "paramtext 7 9 \"srv/private\"\n"
                     "drop 2\n"
                     "show Tessaly.Records Tessaly.Param(7, 13) Tessaly.Param(7,14) Tessaly.ParamText(7, 9)\n")
                  .Transcript,
              "> record 7 \"VOICE\" \"VVL\" foreign\n"
              "> record 1 \"VOICE\" \"RWCom1\" local\n"
              "> record 2 \"OTHER\" \"\" local\n"
              "> param 7 13 1\n"
              "> paramtext 7 9 \"srv/private\"\n"
              "> drop 2\n"
              "1 \"VOICE\" \"RWCom1\" local\n"
              "7 \"VOICE\" \"VVL\" foreign\n"
              "Tessaly.Param(7, 13) = 1\n"
              "Tessaly.Param(7, 14) = 0\n"
              "Tessaly.ParamText(7, 9) = \"srv/private\"\n");
}

TEST(Look, ChoosesWhatIsPrintedFromThereOn) {
    EXPECT_EQ(AfterLoad("only user32.* Velmarc.SaveSetting*\ncheck Topmost 1\n"
                        "hide *.Save*\ncheck Topmost 0\n"
                        "hide\nonly none\ncheck Topmost 1\n"),
              "> check Topmost 1\n"
              "Velmarc.SaveSettingLong(\"OrvelleCP\", \"Topmost\", 1)\n"
              "user32.SetWindowPos(FrmOrvelle, -1, 0, 0, 0, 0, 3)\n"
              "> check Topmost 0\n"
              "user32.SetWindowPos(FrmOrvelle, -2, 0, 0, 0, 0, 3)\n"
              "> check Topmost 1\n");
}

}  // namespace
}  // namespace orvelle::replay
