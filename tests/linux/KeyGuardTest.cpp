// The key guard as a process: when it runs, what it has of the panel, and what becomes of the keys where it is killed
// itself.
#include <sys/wait.h>

#include <algorithm>
#include <csignal>
#include <filesystem>

#include "tests/linux/KeysDownTest.h"
#include "tests/linux/WaitUntil.h"

namespace orvelle::linux {
namespace {

class KeyGuardTest : public KeysDownTest {
protected:
    static bool IsReplaced(const ChildProcess& ofPanel, pid_t first) {
        const std::vector<pid_t> guards = GuardsOf(ofPanel);
        return guards.size() == 1 && guards.front() != first;
    }

    const std::unique_ptr<ChildProcess> owned = NewPanel();
    ChildProcess& panel = *owned;
};

TEST_F(KeyGuardTest, RunsBeforeTheFirstKey) {
    EXPECT_EQ(panel.Ask("begin"), "done");
    ASSERT_EQ(GuardsOf(panel).size(), 1U);
    const std::vector<pid_t> guards = GuardsOf(panel);
    HoldThreeKeys(panel);
    EXPECT_EQ(GuardsOf(panel), guards);
}

TEST_F(KeyGuardTest, StartsWithTheFirstKeyAtTheLatest) {
    panel.Ask("up 29");
    EXPECT_TRUE(GuardsOf(panel).empty());
    panel.Ask("down 29");
    EXPECT_EQ(GuardsOf(panel).size(), 1U);
}

TEST_F(KeyGuardTest, TakesNoSignalThatCanBeRefused) {
    HoldThreeKeys(panel);
    const std::vector<pid_t> guards = GuardsOf(panel);
    ASSERT_EQ(guards.size(), 1U);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGPIPE, SIGUSR1}) kill(guards.front(), signal);
    panel.Kill(SIGKILL);
    panel.Wait();
    ExpectAllReleased();
}

TEST_F(KeyGuardTest, IsReplacedAtOnceWhereItIsKilledFirst) {
    for (int round = 0; round < Rounds; ++round) {
        const std::unique_ptr<ChildProcess> victim = NewPanel();
        HoldThreeKeys(*victim);
        const pid_t first = GuardOf(*victim);
        kill(first, SIGKILL);
        // The first one is not there as a zombie either.
        ASSERT_TRUE(WaitUntil([&] { return IsReplaced(*victim, first); }));
        victim->Kill(SIGKILL);
        victim->Wait();
        ExpectAllReleased(&panel);
    }
}

TEST_F(KeyGuardTest, IsReplacedFromTheLoopAlsoWhileNoKeyIsHeld) {
    panel.Ask("begin");
    const pid_t first = GuardOf(panel);
    kill(first, SIGKILL);
    EXPECT_TRUE(WaitUntil([&] { return IsReplaced(panel, first); }));
}

TEST_F(KeyGuardTest, KilledTogetherWithThePanelIsMadeUpForAtTheNextStart) {
    for (int round = 0; round < Rounds; ++round) {
        const std::unique_ptr<ChildProcess> victim = NewPanel();
        victim->Ask("begin");
        HoldThreeKeys(*victim);
        const pid_t guard = GuardOf(*victim);
        victim->Kill(SIGSTOP);  // so that nobody is replaced in between
        kill(guard, SIGKILL);
        victim->Kill(SIGKILL);
        victim->Wait();
        waitpid(guard, nullptr, 0);
        ASSERT_EQ(client.KeysDown(), (std::vector<int>{37, 54, 105}));

        const std::unique_ptr<ChildProcess> next = NewPanel();
        next->Ask("begin");
        EXPECT_TRUE(client.KeysDown().empty());
        // They count as held no more.
        EXPECT_EQ(next->Ask("holds 29"), "no");
    }
}

TEST_F(KeyGuardTest, OfAnEarlierRunThatLeftNothingLetsTheNextOneSendNothing) {
    HoldThreeKeys(panel);
    panel.WriteLine("end");
    panel.Wait();
    EXPECT_EQ(client.NextStrokes(6).size(), 6U);
    const std::unique_ptr<ChildProcess> next = NewPanel();
    next->Ask("begin");
    next->Ask("down 1");
    EXPECT_EQ(client.NextStrokes(1), (std::vector<SeenStroke>{{9, true}}));
}

TEST_F(KeyGuardTest, ThatAlwaysEndsAtOnceIsNotStartedForEver) {
    const std::unique_ptr<ChildProcess> helpless = NewPanel("/bin/false");
    helpless->Ask("begin");
    const std::string sentence =
        "The program /bin/false ends as soon as it is started, so a key that is held down stays down if the panel is "
        "killed.\n";
    EXPECT_TRUE(WaitUntil([&] { return helpless->Errors() == sentence; })) << helpless->Errors();
    EXPECT_TRUE(GuardsOf(*helpless).empty());
    // Keys are pressed all the same.
    helpless->Ask("down 1");
    EXPECT_EQ(client.NextStrokes(1), (std::vector<SeenStroke>{{9, true}}));
    EXPECT_EQ(helpless->Errors(), sentence);
}

TEST_F(KeyGuardTest, HoldsNothingOfThePanel) {
    panel.Ask("down 29");
    const std::vector<pid_t> guards = GuardsOf(panel);
    ASSERT_EQ(guards.size(), 1U);
    const std::string process = "/proc/" + std::to_string(guards.front());
    EXPECT_EQ(std::filesystem::read_symlink(process + "/cwd"), "/");
    EXPECT_EQ(getsid(guards.front()), guards.front());

    // Once the loader has closed the libraries that it read.
    std::vector<std::string> files;
    EXPECT_TRUE(WaitUntil([&] {
        files.clear();
        std::error_code error;
        for (const auto& entry : std::filesystem::directory_iterator(process + "/fd"))
            files.push_back(std::filesystem::read_symlink(entry.path(), error));
        return files.size() == 5;
    }));
    std::sort(files.begin(), files.end());
    EXPECT_EQ(files[0], "/dev/null");
    EXPECT_EQ(files[2], "/dev/null");
    EXPECT_TRUE(files[3].starts_with("/memfd:orvelle-held-keys"));
    EXPECT_TRUE(files[4].starts_with("socket:"));
}

}  // namespace
}  // namespace orvelle::linux
