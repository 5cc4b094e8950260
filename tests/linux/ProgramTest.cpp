#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <csignal>
#include <cstdlib>
#include <cstring>
#include <filesystem>

#include "adapters/linux/ProcessProgram.h"
#include "adapters/linux/TerminationSignals.h"
#include "platform/RuntimeError.h"
#include "tests/linux/ChildProcess.h"

namespace orvelle::linux {
namespace {

class SingleInstance : public testing::Test {
protected:
    SingleInstance() { EXPECT_NE(mkdtemp(folder.data()), nullptr); }
    ~SingleInstance() override { std::filesystem::remove_all(folder); }

    std::vector<std::string> Panel() const { return {PANEL_STAND_IN, ":65000", KEY_GUARD, folder}; }

    std::string folder = testing::TempDir() + "instance-XXXXXX";
};

TEST_F(SingleInstance, IsTheFirstOne) {
    ChildProcess first(Panel());
    EXPECT_EQ(first.Ask("instance"), "first");
    EXPECT_EQ(first.Ask("instance"), "first");
    ChildProcess second(Panel());
    EXPECT_EQ(second.Ask("instance"), "second");
    ChildProcess third(Panel());
    EXPECT_EQ(third.Ask("instance"), "second");
}

TEST_F(SingleInstance, MakesRoomWhenItEnds) {
    ChildProcess first(Panel());
    EXPECT_EQ(first.Ask("instance"), "first");
    first.WriteLine("end");
    first.Wait();
    ChildProcess next(Panel());
    EXPECT_EQ(next.Ask("instance"), "first");
}

TEST_F(SingleInstance, MakesRoomWhenItIsKilled) {
    ChildProcess first(Panel());
    EXPECT_EQ(first.Ask("instance"), "first");
    ChildProcess waiting(Panel());
    EXPECT_EQ(waiting.Ask("instance"), "second");
    first.Kill(SIGKILL);
    first.Wait();
    EXPECT_EQ(waiting.Ask("instance"), "first");
}

TEST_F(SingleInstance, OfOneDisplayDoesNotHinderAnother) {
    InstanceLock one(folder, "OrvelleCP-:0");
    InstanceLock sameAgain(folder, "OrvelleCP-:0");
    InstanceLock other(folder, "OrvelleCP-:1");
    EXPECT_TRUE(one.Take());
    EXPECT_FALSE(sameAgain.Take());
    EXPECT_TRUE(other.Take());
}

TEST_F(SingleInstance, CountsTheScreensOfADisplayAsOne) {
    setenv("XDG_RUNTIME_DIR", folder.c_str(), 1);
    setenv("DISPLAY", ":7", 1);
    InstanceLock one = InstanceLock::OfThisSession();
    setenv("DISPLAY", ":7.1", 1);
    InstanceLock otherScreen = InstanceLock::OfThisSession();
    setenv("DISPLAY", "remote/host:7.1", 1);
    InstanceLock otherHost = InstanceLock::OfThisSession();
    EXPECT_TRUE(one.Take());
    EXPECT_FALSE(otherScreen.Take());
    EXPECT_TRUE(otherHost.Take());
}

TEST_F(SingleInstance, IsNotKeptFromStartingByAFolderThatIsNotTheUsersAlone) {
    chmod(folder.c_str(), S_IRWXU | S_IRWXG | S_IRWXO);
    InstanceLock one(folder, "panel");
    InstanceLock two(folder, "panel");
    EXPECT_TRUE(one.Take());
    EXPECT_TRUE(two.Take());
    EXPECT_EQ(one.Problem(), "Whether the program runs a second time can't be known, since the folder " + folder +
                                 " is not this user's alone.");
}

TEST_F(SingleInstance, TellsWhereThereIsNoLock) {
    ChildProcess first(Panel());
    EXPECT_EQ(first.Ask("instance"), "first");
    const std::string target = folder + "/elsewhere";
    const std::string link = folder + "/link.lock";
    std::filesystem::create_symlink(target, link);
    std::filesystem::create_directory_symlink(folder, folder + "/folder");

    const std::string always = "Whether the program runs a second time can't be known, since ";
    ProcessProgram linked(InstanceLock(folder, "link"));
    EXPECT_FALSE(linked.PrevInstance());
    EXPECT_EQ(linked.Problem(), always + link + " can't be opened: Too many levels of symbolic links.");
    EXPECT_FALSE(std::filesystem::exists(target));
    ProcessProgram elsewhere(InstanceLock(folder + "/folder", "panel"));
    EXPECT_FALSE(elsewhere.PrevInstance());
    EXPECT_EQ(elsewhere.Problem(), always + "the folder " + folder + "/folder is not this user's alone.");

    ProcessProgram good(InstanceLock(folder, "good"));
    EXPECT_FALSE(good.PrevInstance());
    EXPECT_EQ(good.Problem(), "");
}

TEST_F(SingleInstance, MakesItsFolder) {
    InstanceLock one(folder + "/new", "panel");
    InstanceLock two(folder + "/new", "panel");
    EXPECT_TRUE(one.Take());
    EXPECT_FALSE(two.Take());
}

ProcessProgram Program() { return ProcessProgram(InstanceLock("/nowhere", "panel")); }

void Say(const char* text) { [[maybe_unused]] const ssize_t written = write(STDERR_FILENO, text, strlen(text)); }

TEST(ProgramEndDeathTest, RunsTheCleanUpsTheLastFirst) {
    const auto end = [] {
        ProcessProgram program = Program();
        const Ticket first = program.AtEnd([] { Say("first "); });
        const Ticket failing = program.AtEnd([] { throw RuntimeError(RuntimeError::Overflow); });
        const Ticket last = program.AtEnd([] { Say("last "); });
        program.End();
    };
    EXPECT_EXIT(end(), testing::ExitedWithCode(0), "last first ");
}

TEST(ProgramEndDeathTest, LeavesOutWhatIsGone) {
    const auto end = [] {
        ProcessProgram program = Program();
        const Ticket first = program.AtEnd([] { Say("first"); });
        Ticket gone = program.AtEnd([] { Say("gone"); });
        const Ticket last = program.AtEnd([&gone] {
            Say("last ");
            gone.End();
        });
        program.End();
    };
    EXPECT_EXIT(end(), testing::ExitedWithCode(0), "^last first$");
}

TEST(ProgramEndDeathTest, InsideACleanUpGoesOnWithTheOthers) {
    const auto end = [] {
        ProcessProgram program = Program();
        const Ticket first = program.AtEnd([] { Say("first"); });
        const Ticket failing = program.AtEnd([&program] { program.Fail(RuntimeError::Overflow); });
        program.End();
    };
    EXPECT_EXIT(end(), testing::ExitedWithCode(70), "firstOrvelleCP: run-time error 6: overflow");
}

TEST(ProgramEndDeathTest, TellsTheRunTimeErrorInOneLine) {
    EXPECT_EXIT(Program().Fail(6), testing::ExitedWithCode(70), "^OrvelleCP: run-time error 6: overflow\n$");
    EXPECT_EXIT(Program().Fail(9), testing::ExitedWithCode(70),
                "^OrvelleCP: run-time error 9: subscript out of range\n$");
    EXPECT_EXIT(Program().Fail(13), testing::ExitedWithCode(70), "^OrvelleCP: run-time error 13: type mismatch\n$");
    EXPECT_EXIT(Program().Fail(91), testing::ExitedWithCode(70), "^OrvelleCP: run-time error 91\n$");
    EXPECT_EXIT(Program().Fail("out of memory"), testing::ExitedWithCode(70), "^OrvelleCP: out of memory\n$");
}

TEST(ProgramEndDeathTest, BySignalIsTheSignalsEnd) {
    const auto end = [] {
        TerminationSignals signals;
        kill(getpid(), SIGHUP);
        ProcessProgram program = Program();
        const Ticket cleanUp = program.AtEnd([] { Say("cleaned up"); });
        program.EndBySignal(signals.Take());
    };
    EXPECT_EXIT(end(), testing::KilledBySignal(SIGHUP), "cleaned up");
}

TEST(TerminationSignalsDeathTest, AreTakenOnceAndAnIgnoredOneStaysIgnored) {
    const auto end = [] {
        signal(SIGHUP, SIG_IGN);
        TerminationSignals signals;
        kill(getpid(), SIGHUP);
        if (signals.Take() != 0) _exit(1);
        kill(getpid(), SIGTERM);
        if (signals.Take() != SIGTERM) _exit(2);
        _exit(signals.Take() == 0 ? 0 : 3);
    };
    EXPECT_EXIT(end(), testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace orvelle::linux
