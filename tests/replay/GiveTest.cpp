#include <gtest/gtest.h>

#include "tests/replay/Replay.h"

namespace orvelle::replay {
namespace {

TEST(Give, AnswersAnyArgument) {
    EXPECT_EQ(AfterLoad("only VVL.OutputStatus\n"
                        "give VVL.OutputStatus = True\n"
                        "give Tessaly.OpenInterface = True\n"
                        "raise VVL_Started\n"
                        "advance 1000\n"),
              "> give VVL.OutputStatus = True\n"
              "> give Tessaly.OpenInterface = True\n"
              "> raise VVL_Started\n"
              "> advance 1000\n"
              "! TimerDeviceStatus\n"
              "VVL.OutputStatus(0) -> True\n"
              "VVL.OutputStatus(1) -> True\n");
}

TEST(Give, AnswersCertainArgumentsFirst) {
    EXPECT_EQ(AfterLoad("only VVL.OutputStatus\n"
                        "give VVL.OutputStatus(1) = False\n"
                        "give VVL.OutputStatus = True\n"
                        "give Tessaly.OpenInterface = True\n"
                        "raise VVL_Started\n"
                        "advance 1000\n"),
              "> give VVL.OutputStatus(1) = False\n"
              "> give VVL.OutputStatus = True\n"
              "> give Tessaly.OpenInterface = True\n"
              "> raise VVL_Started\n"
              "> advance 1000\n"
              "! TimerDeviceStatus\n"
              "VVL.OutputStatus(0) -> True\n"
              "VVL.OutputStatus(1) -> False\n");
}

TEST(Give, AnswersSeveralValuesOnePerCall) {
    EXPECT_EQ(AfterLoad("only VVL.InputStatus\n"
                        "give VVL.InputStatus = True, False , True\n"
                        "give Tessaly.OpenInterface = True\n"
                        "raise VVL_Started\n"
                        "advance 4000\n"),
              "> give VVL.InputStatus = True, False , True\n"
              "> give Tessaly.OpenInterface = True\n"
              "> raise VVL_Started\n"
              "> advance 4000\n"
              "! TimerDeviceStatus\nVVL.InputStatus -> True\n"
              "! TimerDeviceStatus\nVVL.InputStatus -> False\n"
              "! TimerDeviceStatus\nVVL.InputStatus -> True\n"
              "! TimerDeviceStatus\nVVL.InputStatus -> True\n");
}

TEST(Give, AnswersWhatComesByReferenceInBrackets) {
    EXPECT_EQ(AfterLoad("only VVL.Calibrate\n"
                        "give VVL.Calibrate = (True, 12.5, 30), (True, 7), False\n"
                        "click VVLCalibrate\n"
                        "click VVLCalibrate\n"
                        "click VVLCalibrate\n"),
              "> give VVL.Calibrate = (True, 12.5, 30), (True, 7), False\n"
              "> click VVLCalibrate\nVVL.Calibrate(-1, -1) -> True, 12.5, 30\n"
              "> click VVLCalibrate\nVVL.Calibrate(-1, -1) -> True, 7, 0\n"
              "> click VVLCalibrate\nVVL.Calibrate(-1, -1) -> False, 0, 0\n");
}

TEST(Give, NamesTheRootOfTheRegistryAsANumber) {
    const std::string give =
        R"(give Velmarc.ReadRegistryString(0x80000002, "SOFTWARE\Microsoft\Windows\CurrentVersion\Run", "OrvelleCP", "") = "x")";
    EXPECT_EQ(Replay(give + "\nonly none\nload\nshow Autostart\n").Transcript,
              "> " + give + "\n> load\n! FrmOrvelle.Show\nAutostart.Value = 1\n");
}

TEST(Give, TakesAWholeNumberForABoolean) {
    EXPECT_EQ(
        Replay("give Tessaly.Embedded = 1\nonly Tessaly.Embedded\nload\n").Transcript,
        "> give Tessaly.Embedded = 1\n> load\nTessaly.Embedded -> True\nTessaly.Embedded = 1\n! FrmOrvelle.Show\n");
}

TEST(Give, TellsThatThePanelRunsAlready) {
    EXPECT_EQ(Replay("give App.PrevInstance = True\nload\nload\nadvance 5\n").Transcript,
              "> give App.PrevInstance = True\n> load\n! end\n> load\n> advance 5\n");
}

TEST(Give, TakesAnIconAwayBeforeAndAfterTheLoad) {
    const std::string before = Replay("give IconList.RRRRRR = none\nonly MsgBox\nload\n").Transcript;
    EXPECT_TRUE(before.starts_with("> give IconList.RRRRRR = none\n> load\nMsgBox(\"Missing icon RRRRRR\")\n"))
        << before;
    EXPECT_EQ(AfterLoad("only MsgBox\ngive IconList.VRRRRR = none\ngive Velmarc.LinkUp = True\n"
                        "raise Velmarc.Connected\n"),
              "> give IconList.VRRRRR = none\n> give Velmarc.LinkUp = True\n> raise Velmarc.Connected\n"
              "MsgBox(\"Missing icon VRRRRR\")\n");
}

TEST(Give, TellsWhatTheUserPicksInTheDialog) {
    EXPECT_EQ(AfterLoad("only Dialog.FileName\ngive Dialog.FileName = \"C:\\new.exe\"\nclick RWSearch\nshow RWPath\n"),
              "> give Dialog.FileName = \"C:\\new.exe\"\n> click RWSearch\nDialog.FileName = \"\"\n"
              "Dialog.FileName -> \"C:\\new.exe\"\nRWPath.Text = \"C:\\new.exe\"\n");
}

}  // namespace
}  // namespace orvelle::replay
