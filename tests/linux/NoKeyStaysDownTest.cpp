#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/wait.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "tests/linux/ChildProcess.h"
#include "tests/linux/WaitUntil.h"
#include "tests/linux/XClient.h"
#include "tests/linux/XServer.h"

namespace orvelle::linux {
namespace {

std::vector<pid_t> ChildrenOf(pid_t process) {
    const std::string id = std::to_string(process);
    std::ifstream file("/proc/" + id + "/task/" + id + "/children");
    EXPECT_TRUE(file.is_open());
    return {std::istream_iterator<pid_t>(file), std::istream_iterator<pid_t>()};
}

class NoKeyStaysDown : public testing::Test {
protected:
    // Whoever loses its parent becomes this process's child, so that the end of a guard can be waited for.
    NoKeyStaysDown() { prctl(PR_SET_CHILD_SUBREAPER, 1); }

    std::vector<pid_t> Guards() const { return ChildrenOf(panel.Id()); }

    void HoldThreeKeys() {
        EXPECT_EQ(panel.Ask("down 29"), "done");
        EXPECT_EQ(panel.Ask("down 285"), "done");
        EXPECT_EQ(panel.Ask("down 46"), "done");
        EXPECT_TRUE(WaitUntil([&] { return client.KeysDown() == std::vector<int>({37, 54, 105}); }));
    }

    // The panel is gone; once its guard is too, no key is down any more.
    void ExpectAllReleased() {
        for (const pid_t child : ChildrenOf(getpid()))
            if (child != server.Id() && child != panel.Id()) waitpid(child, nullptr, 0);
        EXPECT_TRUE(client.KeysDown().empty());
    }

    XServer server;
    XClient client{server.Display()};
    ChildProcess panel{{PANEL_STAND_IN, server.Display(), KEY_GUARD, testing::TempDir()}};
};

TEST_F(NoKeyStaysDown, WhenMainReturns) {
    HoldThreeKeys();
    panel.WriteLine("return");
    EXPECT_EQ(panel.Wait(), 0);
    EXPECT_TRUE(client.KeysDown().empty());
    ExpectAllReleased();
}

TEST_F(NoKeyStaysDown, WhenTheProgramEndsItself) {
    HoldThreeKeys();
    panel.WriteLine("end");
    EXPECT_EQ(panel.Wait(), 0);
    EXPECT_TRUE(client.KeysDown().empty());
    ExpectAllReleased();
}

TEST_F(NoKeyStaysDown, AfterARunTimeError) {
    HoldThreeKeys();
    panel.WriteLine("fail");
    EXPECT_EQ(WEXITSTATUS(panel.Wait()), 70);
    EXPECT_EQ(panel.Errors(), "OrvelleCP: run-time error 13: type mismatch\n");
    EXPECT_TRUE(client.KeysDown().empty());
    ExpectAllReleased();
}

TEST_F(NoKeyStaysDown, AfterSignalsThatAskForTheEnd) {
    HoldThreeKeys();
    panel.Kill(SIGTERM);
    const int status = panel.Wait();
    EXPECT_TRUE(WIFSIGNALED(status));
    EXPECT_EQ(WTERMSIG(status), SIGTERM);
    EXPECT_TRUE(client.KeysDown().empty());
    ExpectAllReleased();
}

TEST_F(NoKeyStaysDown, AfterASignalToTheWholeGroup) {
    HoldThreeKeys();
    kill(-panel.Id(), SIGINT);
    EXPECT_EQ(WTERMSIG(panel.Wait()), SIGINT);
    ExpectAllReleased();
}

TEST_F(NoKeyStaysDown, AfterSigkill) {
    HoldThreeKeys();
    panel.Kill(SIGKILL);
    EXPECT_EQ(WTERMSIG(panel.Wait()), SIGKILL);
    ExpectAllReleased();
}

TEST_F(NoKeyStaysDown, AfterSigkillOfTheWholeGroup) {
    HoldThreeKeys();
    kill(-panel.Id(), SIGKILL);
    panel.Wait();
    ExpectAllReleased();
}

TEST_F(NoKeyStaysDown, AfterEndsWithoutAnyCleanUp) {
    HoldThreeKeys();
    panel.WriteLine("nothing");
    EXPECT_EQ(panel.Wait(), 0);
    ExpectAllReleased();
}

TEST_F(NoKeyStaysDown, AfterAnAbort) {
    HoldThreeKeys();
    panel.WriteLine("abort");
    panel.Wait();
    ExpectAllReleased();
}

TEST_F(NoKeyStaysDown, AfterACrash) {
    HoldThreeKeys();
    panel.WriteLine("crash");
    panel.Wait();
    ExpectAllReleased();
}

TEST_F(NoKeyStaysDown, AfterAnExceptionThatNobodyCaught) {
    HoldThreeKeys();
    panel.WriteLine("terminate");
    panel.Wait();
    ExpectAllReleased();
}

TEST_F(NoKeyStaysDown, AndNothingElseIsReleased) {
    HoldThreeKeys();
    panel.Ask("up 46");
    panel.Kill(SIGKILL);
    panel.Wait();
    ExpectAllReleased();
    const std::vector<SeenStroke> strokes = client.NextStrokes(6);
    EXPECT_EQ(strokes,
              (std::vector<SeenStroke>{{37, true}, {105, true}, {54, true}, {54, false}, {37, false}, {105, false}}));
}

TEST_F(NoKeyStaysDown, TheGuardStartsWithTheFirstKeyAndNoEarlier) {
    panel.Ask("up 29");
    EXPECT_TRUE(Guards().empty());
    panel.Ask("down 29");
    ASSERT_EQ(Guards().size(), 1U);
    panel.Ask("up 29");
    panel.Ask("down 46");
    EXPECT_EQ(Guards().size(), 1U);
}

TEST_F(NoKeyStaysDown, TheGuardTakesNoSignalThatCanBeRefused) {
    HoldThreeKeys();
    const std::vector<pid_t> guards = Guards();
    ASSERT_EQ(guards.size(), 1U);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGPIPE, SIGUSR1}) kill(guards.front(), signal);
    panel.Kill(SIGKILL);
    panel.Wait();
    ExpectAllReleased();
}

TEST_F(NoKeyStaysDown, AGuardThatWasKilledIsReplacedAtTheNextKey) {
    panel.Ask("down 29");
    const std::vector<pid_t> first = Guards();
    ASSERT_EQ(first.size(), 1U);
    kill(first.front(), SIGKILL);
    // Its end of the pipe closes before it can be buried.
    const std::string end = "/proc/" + std::to_string(first.front()) + "/fd/3";
    std::error_code error;
    EXPECT_TRUE(WaitUntil([&] { return !std::filesystem::is_fifo(end, error); }));
    panel.Ask("down 46");
    EXPECT_EQ(Guards().size(), 1U);  // the first one is not there as a zombie either
    EXPECT_NE(Guards(), first);
    panel.Kill(SIGKILL);
    panel.Wait();
    ExpectAllReleased();
}

TEST_F(NoKeyStaysDown, TheGuardHoldsNothingOfThePanel) {
    panel.Ask("down 29");
    const std::vector<pid_t> guards = Guards();
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
    EXPECT_TRUE(files[4].starts_with("pipe:"));
}

TEST_F(NoKeyStaysDown, AfterAKillAtAnyMoment) {
    for (int round = 0; round < 40; ++round) {
        ChildProcess hasty({PANEL_STAND_IN, server.Display(), KEY_GUARD, testing::TempDir()});
        // The kill comes somewhere in the strokes that are on their way.
        for (const char* line : {"down 29", "down 30", "up 30", "down 285", "up 29", "down 46"}) hasty.WriteLine(line);
        for (int answer = 0; answer < round % 7; ++answer) hasty.ReadLine();
        hasty.Kill(SIGKILL);
        hasty.Wait();
        ExpectAllReleased();
    }
}

}  // namespace
}  // namespace orvelle::linux
