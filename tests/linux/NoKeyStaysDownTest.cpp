#include <sys/wait.h>

#include <csignal>

#include "tests/linux/KeysDownTest.h"

namespace orvelle::linux {
namespace {

class NoKeyStaysDown : public KeysDownTest {
protected:
    void HoldThreeKeys() { KeysDownTest::HoldThreeKeys(panel); }

    const std::unique_ptr<ChildProcess> owned = NewPanel();
    ChildProcess& panel = *owned;
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

TEST_F(NoKeyStaysDown, AfterAKillAtAnyMoment) {
    for (int round = 0; round < 40; ++round) {
        const std::unique_ptr<ChildProcess> started = NewPanel();
        ChildProcess& hasty = *started;
        // The kill comes somewhere in the strokes that are on their way.
        for (const char* line : {"down 29", "down 30", "up 30", "down 285", "up 29", "down 46"}) hasty.WriteLine(line);
        for (int answer = 0; answer < round % 7; ++answer) hasty.ReadLine();
        hasty.Kill(SIGKILL);
        hasty.Wait();
        ExpectAllReleased(&panel);
    }
}

}  // namespace
}  // namespace orvelle::linux
