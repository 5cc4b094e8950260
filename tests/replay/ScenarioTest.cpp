#include <gtest/gtest.h>

#include "tests/replay/Replay.h"

namespace orvelle::replay {
namespace {

TEST(Scenario, EchoesEachLineWithoutItsComment) {
    EXPECT_EQ(Replay("# a comment\n\n   \nclock 5   # five\r\n  clock -1\n").Transcript, "> clock 5\n> clock -1\n");
}

TEST(Scenario, RunsALastLineWithoutAnEnd) { EXPECT_EQ(Replay("clock 5").Transcript, "> clock 5\n"); }

TEST(Scenario, EndsWithStatusZeroAlsoWhenThePanelEnded) {
    EXPECT_EQ(Replay("only none\nload\nclick Shutdown\nclick Shutdown\nadvance 5000\n").Status, 0);
    EXPECT_EQ(Replay("").Status, 0);
}

TEST(Scenario, StopsAtTheFirstWrongLine) {
    const Outcome outcome = Replay("clock 1\n# comment\nfrobnicate 2\nclock 3\n");
    EXPECT_EQ(outcome.Status, 2);
    EXPECT_EQ(outcome.Transcript, "> clock 1\n");
    EXPECT_EQ(outcome.Errors, "3: no line begins with frobnicate\n");
}

TEST(Scenario, NeverReachesAWrongLineBehindAWrongLine) {
    EXPECT_EQ(Replay("x\ny\n").Errors, "1: no line begins with x\n");
}

TEST(Scenario, ARuntimeErrorThatLeavesAHandlerEndsTheProgram) {
    EXPECT_EQ(Replay("store \"OrvelleCP\" \"RWDriven\" 7\nonly none\nload\nclick RWSearch\nshow RWEnable\n").Transcript,
              "> store \"OrvelleCP\" \"RWDriven\" 7\n> load\n! run-time error 9\n! end\n> click RWSearch\n"
              "RWEnable.Value = 0\n");
}

TEST(Scenario, NothingIsDoneAfterTheEndButTheStoreCanBeLookedAt) {
    EXPECT_EQ(
        AfterLoad("only none\nmove 30 40\nclick Shutdown\nstore \"OrvelleCP\" \"Left\" 5\nraise Velmarc.Connected\n"
                  "at 5 click RWSearch\nadvance 10\nshow Setting(\"OrvelleCP\", \"Left\")\n"),
        "> move 30 40\n> click Shutdown\n! end\n> store \"OrvelleCP\" \"Left\" 5\n> raise Velmarc.Connected\n"
        "> at 5 click RWSearch\n> advance 10\nSetting(\"OrvelleCP\", \"Left\") = 30\n");
}

TEST(Scenario, PrintsTheSameBytesAtEveryRun) {
    const std::string lines = "load\nraise Velmarc.ServerFound(\"a\")\nclick RWPTTKeySet\nclick Shutdown\n";
    EXPECT_EQ(Replay(lines).Transcript, Replay(lines).Transcript);
}

}  // namespace
}  // namespace orvelle::replay
