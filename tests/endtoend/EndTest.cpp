// No end of the panel without a word, and none too many: what comes after each of its ends.
#include <csignal>

#include "apps/EndCause.h"
#include "apps/EndSentences.h"
#include "platform/RuntimeError.h"
#include "tests/endtoend/PanelTest.h"
#include "tests/endtoend/StartedPanel.h"
#include "tests/linux/XServer.h"

namespace orvelle {

namespace {

constexpr const char* Teller = "orvelle-ended";
const std::string Panel = "orvelle-panel";

class EndTest : public StartedPanel {
protected:
    // What the one window tells the user; the words behind the program's own.
    std::vector<std::string> Told() {
        EXPECT_TRUE(Shows(Teller));
        const std::vector<pid_t> tellers = processes.Running(Teller);
        EXPECT_EQ(tellers.size(), 1U);
        std::vector<std::string> words = MarkedProcesses::WordsOf(tellers.at(0));
        words.erase(words.begin());
        return words;
    }
    void Answer(const QString& key) {
        user.Do({"windowactivate", "--sync", QString::number(*WindowOf(Teller)), "key", key});
    }
    // Which the panel's guard would leave behind, were there something to tell.
    void ExpectNothingTold() { EXPECT_TRUE(NothingIsLeft()); }

    QProcess panel;
};

TEST_F(EndTest, AKilledPanelIsToldAndStartedAgain) {
    Start(panel);
    ASSERT_TRUE(Shows(Panel));
    kill(static_cast<pid_t>(panel.processId()), SIGKILL);
    ASSERT_TRUE(IsOver(panel));
    EXPECT_EQ(Told(), std::vector<std::string>{PANEL_PROGRAM});
    Answer("alt+s");
    ASSERT_TRUE(Shows(Panel));
    ASSERT_TRUE(ComesTrue([this] { return processes.Running(Teller).empty(); }));

    // It has a guard of its own, which tells the next end as well.
    ASSERT_TRUE(ComesTrue([this] { return processes.Running("orvelle-key-guard").size() == 1; }));
    kill(processes.Running(Panel).at(0), SIGSEGV);
    EXPECT_EQ(Told(), std::vector<std::string>{PANEL_PROGRAM});
    Answer("alt+c");
    EXPECT_TRUE(NothingIsLeft());
}

TEST_F(EndTest, ASettingThatEndsTheStartIsToldWithThePlaceOfTheSettings) {
    Settings().SaveSettingLong("OrvelleCP", "RWDriven", 7);
    Start(panel);
    ASSERT_TRUE(IsOver(panel));
    EXPECT_EQ(panel.exitCode(), 70);
    EXPECT_EQ(panel.readAllStandardError(), "OrvelleCP: run-time error 9: subscript out of range\n");
    const std::string settings = folder.filePath("OrvelleCP").toStdString();
    EXPECT_EQ(Told(), (std::vector<std::string>{PANEL_PROGRAM,
                                                EndBySettings(settings, "run-time error 9: subscript out of range")}));
    // The sentence's way out is one.
    QDir().rename(folder.filePath("OrvelleCP"), folder.filePath("elsewhere"));
    Answer("Return");
    EXPECT_TRUE(Shows(Panel));
}

TEST_F(EndTest, AnEndThatWasAskedForIsNotTold) {
    Start(panel);
    ASSERT_TRUE(Shows(Panel));
    ASSERT_TRUE(user.Input.SendDoorMessage("OrvelleCP Stub1", 1237, 0, 0));
    ASSERT_TRUE(IsOver(panel));
    ExpectNothingTold();
    for (const int signal : {SIGTERM, SIGHUP}) {
        QProcess asked;
        Start(asked);
        ASSERT_TRUE(Shows(Panel));
        kill(static_cast<pid_t>(asked.processId()), signal);
        ASSERT_TRUE(IsOver(asked));
        ExpectNothingTold();
    }
}

TEST_F(EndTest, TheEndOfTheXServerIsNotTold) {
    linux::XServer server;
    Start(panel, PANEL_PROGRAM, QString::fromStdString(server.Display()));
    ASSERT_TRUE(ComesTrue([this] { return processes.Running("orvelle-key-guard").size() == 1; }));
    server.End();
    ASSERT_TRUE(IsOver(panel));
    EXPECT_EQ(panel.exitCode(), 1);
    ASSERT_TRUE(ComesTrue([this] { return processes.Running("orvelle-key-guard").empty(); }));
    EXPECT_TRUE(processes.Running(Teller).empty());
}

class EndOfPanelTest : public PanelTest {
protected:
    EndOfPanelTest() {
        store::SqliteStore& store = house.Settings.Store;
        for (const char* name : {"RWEnable", "TSEnable"}) store.SaveSettingLong("OrvelleCP", name, 1);
        for (const char* name : {"RWFSKey", "TSFSKey"}) store.SaveSettingString("OrvelleCP", name, "F9");
        store.SaveSettingString("OrvelleCP", "TSPath", VoiceProgram());
        store.HandlerEnded();
    }

    void Tune(Long software) {
        Open();
        Connect();
        house.Outside.Practice.NetworkLink.SetVoice(0, {software, "srv1", "ops", "", ""});
        EXPECT_TRUE(ComesTrue([&] { return panel.Variables().ActiveVoiceSoftware == software; }));
    }
    // As from the loop.
    void Press(const std::string& key) {
        try {
            house.Outside.Velmarc.FSKeyDown(false, true, key, key);
        } catch (const RuntimeError& error) {
            process.EndByError(error);
        }
    }
    void TalkWithoutKey() {
        Tune(RogerWilco);
        panel.RWPTTKeyClear.UserClick();
        Press("F9");
    }

    MarkedProcesses processes;
};

TEST_F(EndOfPanelTest, ATalkKeyThatIsNotSetIsToldByItsDriver) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    // The one that ends is another instance.
    const QByteArray before = qgetenv("XDG_RUNTIME_DIR");
    qputenv("XDG_RUNTIME_DIR", folder.path().toLocal8Bit());
    EXPECT_EXIT(TalkWithoutKey(), testing::ExitedWithCode(70), "OrvelleCP: run-time error 13: type mismatch\n");
    qputenv("XDG_RUNTIME_DIR", before);
    ASSERT_TRUE(ComesTrue([this] { return processes.Running(Teller).size() == 1; }));
    EXPECT_EQ(MarkedProcesses::WordsOf(processes.Running(Teller).at(0)).back(), EndWithoutTalkKey("RogerWilco"));
}

TEST_F(EndOfPanelTest, TheDriverInUseIsTheCauseWhileItsKeyIsNotSet) {
    ASSERT_NO_FATAL_FAILURE(Tune(RogerWilco));
    EXPECT_EQ(CauseInPanel(panel), "");
    panel.RWPTTKeyClear.UserClick();
    EXPECT_EQ(CauseInPanel(panel), EndWithoutTalkKey("RogerWilco"));
    panel.RWEnable.UserCheck(0);
    EXPECT_EQ(CauseInPanel(panel), "");
}

TEST_F(EndOfPanelTest, TeamSpeaksKeyIsNeverThereAfterAStart) {
    ASSERT_NO_FATAL_FAILURE(Tune(TeamSpeakHost));
    EXPECT_EQ(CauseInPanel(panel), EndWithoutTalkKey("TeamSpeak"));
}

TEST_F(EndOfPanelTest, ARowWhoseKeysCantBePressedIsTheCause) {
    ASSERT_NO_FATAL_FAILURE(Open());
    const Long good = panel.ListJoyToKey.AddRow("Joystick.Button 1");
    panel.ListJoyToKey.SetSubItem(good, KeyScanColumn, "29+46");
    EXPECT_EQ(CauseInPanel(panel), "");
    const Long bad = panel.ListKeyToKey.AddRow("F9");
    panel.ListKeyToKey.SetSubItem(bad, KeyScanColumn, "29+");
    EXPECT_EQ(CauseInPanel(panel), EndByTableRow("Key to Key", "F9"));
    panel.ListJoyToKey.SetSubItem(good, KeyScanColumn, "");
    EXPECT_EQ(CauseInPanel(panel), EndByTableRow("Joy to Key", "Joystick.Button 1"));
}

TEST_F(EndOfPanelTest, TheSentencesSayWhatHappenedAndWhatToDo) {
    EXPECT_EQ(EndWithoutTalkKey("RogerWilco"),
              "The panel has ended, because the talk key of RogerWilco was used and is not set. Start the panel again "
              "and set the key on the page RogerWilco: it must be set after each start.");
    EXPECT_EQ(
        EndByTableRow("Key to Key", "F9"),
        "The panel has ended, because the row \"F9\" on the page Key to Key has keys that can't be pressed. Start "
        "the panel again, give that row its keys and press Apply.");
    EXPECT_EQ(EndBySettings("/home/me/OrvelleCP", "run-time error 6: overflow"),
              "The panel could not start, because one of its settings has a value that it can't use (run-time error 6: "
              "overflow). If it ends like this again, move the folder /home/me/OrvelleCP to another place: the panel "
              "then starts with new settings.");
    EXPECT_EQ(
        EndByOwnError("internal error: bad"),
        "The panel has ended by an error of its own (internal error: bad). Start it again: your settings are kept, "
        "but for the talk keys, which must be set after each start.");
    EXPECT_EQ(
        EndWithoutWord(),
        "The panel has ended without being asked to: it crashed, or something else ended it, as the system does "
        "when memory runs short. Start it again: your settings are kept, but for the talk keys, which must be set "
        "after each start.");
}

}  // namespace

}  // namespace orvelle
