#include "adapters/linux/ProcessEnd.h"

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <csignal>
#include <optional>

#include "tests/linux/ChildProcess.h"
#include "tests/linux/ServeUntil.h"
#include "tests/linux/WaitUntil.h"

namespace orvelle::linux {
namespace {

class ProcessEndTest : public testing::TestWithParam<EndToldBy> {
protected:
    Ticket Watch(pid_t process) {
        return WhenProcessEnds(
            loop, process, [this] { ++told; }, GetParam());
    }
    bool IsTold() {
        return ServeUntil(loop, [this] { return told > 0; });
    }
    // Looks have had their time.
    void ServeTwoLooks() {
        bool isOver = false;
        const Ticket over = loop.After(2 * ProcessLookMilliseconds + 50, [&] { isOver = true; });
        EXPECT_TRUE(ServeUntil(loop, [&] { return isOver; }));
    }
    bool Waits(pid_t process, bool isEnded) {
        siginfo_t info{};
        return waitid(P_PID, static_cast<id_t>(process), &info, (isEnded ? WEXITED : WSTOPPED) | WNOWAIT) == 0;
    }

    PollEventLoop loop;
    int told = 0;
};

// Its parent, this test, takes no notice of it, as a launcher may not.
TEST_P(ProcessEndTest, IsToldOfAKilledProcessThatNobodyHasWaitedFor) {
    ChildProcess sleeps({"/usr/bin/sleep", "600"});
    const Ticket ticket = Watch(sleeps.Id());
    sleeps.Kill(SIGKILL);
    EXPECT_TRUE(IsTold());
    EXPECT_TRUE(Waits(sleeps.Id(), true));
    ServeTwoLooks();
    EXPECT_EQ(told, 1);
}

TEST_P(ProcessEndTest, AStoppedProcessHasNotEnded) {
    ChildProcess sleeps({"/usr/bin/sleep", "600"});
    const Ticket ticket = Watch(sleeps.Id());
    sleeps.Kill(SIGSTOP);
    ASSERT_TRUE(Waits(sleeps.Id(), false));
    ServeTwoLooks();
    EXPECT_EQ(told, 0);
    sleeps.Kill(SIGKILL);
    EXPECT_TRUE(IsTold());
}

TEST_P(ProcessEndTest, AProcessThatBecomesAnotherProgramHasNotEnded) {
    ChildProcess becomes({"/bin/sh", "-c", "read line; exec cat"});
    const Ticket ticket = Watch(becomes.Id());
    becomes.WriteLine("go");
    EXPECT_EQ(becomes.Ask("is another program"), "is another program");
    ServeTwoLooks();
    EXPECT_EQ(told, 0);
    becomes.Kill(SIGKILL);
    EXPECT_TRUE(IsTold());
}

TEST_P(ProcessEndTest, IsToldOfAProcessThatHasEndedBeforeAndFromTheLoopAlone) {
    ChildProcess ends({"/bin/true"});
    const pid_t process = ends.Id();
    ends.Wait();
    const Ticket ticket = Watch(process);
    EXPECT_EQ(told, 0);
    EXPECT_TRUE(IsTold());
}

TEST_P(ProcessEndTest, ATicketThatHasEndedIsToldNothing) {
    ChildProcess ends({"/usr/bin/sleep", "600"});
    Watch(ends.Id()).End();
    ends.Kill(SIGKILL);
    ends.Wait();
    ServeTwoLooks();
    EXPECT_EQ(told, 0);
}

TEST_P(ProcessEndTest, TheTaskMayEndItsTicket) {
    ChildProcess sleeps({"/usr/bin/sleep", "600"});
    std::optional<Ticket> ticket;
    ticket = WhenProcessEnds(
        loop, sleeps.Id(),
        [&] {
            ++told;
            ticket.reset();
        },
        GetParam());
    sleeps.Kill(SIGTERM);
    EXPECT_TRUE(IsTold());
    EXPECT_FALSE(ticket);
}

INSTANTIATE_TEST_SUITE_P(By, ProcessEndTest, testing::Values(EndToldBy::Kernel, EndToldBy::Looks),
                         [](const auto& each) { return each.param == EndToldBy::Kernel ? "Kernel" : "Looks"; });

}  // namespace
}  // namespace orvelle::linux
