// The event loop, the clock and the timers of controls.
#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <string>
#include <vector>

#include "adapters/qt/services/QtEventLoop.h"
#include "adapters/qt/services/QtTimers.h"
#include "adapters/shared/SystemClock.h"
#include "platform/controls/Form.h"
#include "platform/controls/Timer.h"
#include "tests/qt/shell/Waiting.h"

namespace orvelle::qt {
namespace {

TEST(LoopTest, RunsTasksInOrderAndNeverInsideThePost) {
    QtEventLoop loop;
    std::vector<int> ran;
    loop.Post([&] {
        ran.push_back(1);
        loop.Post([&] { ran.push_back(3); });
        loop.PostAfter(0, [&] { ran.push_back(4); });
        ran.push_back(2);
    });
    EXPECT_TRUE(ran.empty());
    EXPECT_TRUE(ComesTrue([&] { return ran.size() == 4; }));
    EXPECT_EQ(ran, (std::vector<int>{1, 2, 3, 4}));
}

TEST(LoopTest, RunsLaterTasksByTheirTimeAndThoseOfOneMomentInOrder) {
    QtEventLoop loop;
    std::vector<int> ran;
    loop.PostAfter(60, [&] { ran.push_back(4); });
    for (const int number : {1, 2, 3}) loop.PostAfter(20, [&ran, number] { ran.push_back(number); });
    loop.PostAfter(-5, [&] { ran.push_back(0); });
    EXPECT_TRUE(ran.empty());
    EXPECT_TRUE(ComesTrue([&] { return ran.size() == 5; }));
    EXPECT_EQ(ran, (std::vector<int>{0, 1, 2, 3, 4}));
}

TEST(LoopTest, ATaskNeverRunsEarly) {
    QtEventLoop loop;
    SystemClock clock;
    const Long start = clock.GetTickCount();
    Long ranAt = start;
    loop.PostAfter(50, [&] { ranAt = clock.GetTickCount(); });
    EXPECT_TRUE(ComesTrue([&] { return ranAt != start; }));
    EXPECT_GE(TickDifference(ranAt, start), 49);  // the count is cut to whole milliseconds
}

TEST(LoopTest, TasksThatWaitAreDroppedWithTheLoop) {
    bool ran = false;
    {
        QtEventLoop loop;
        loop.Post([&] { ran = true; });
    }
    Settle();
    EXPECT_FALSE(ran);
}

TEST(LoopTest, AFileThatBecomesReadableRunsItsTask) {
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe(ends.data()), 0);
    std::string taken;
    {
        QtEventLoop loop;
        loop.WhenReadable(ends[0], [&] {
            char character = 0;
            EXPECT_EQ(read(ends[0], &character, 1), 1);
            taken += character;
        });
        EXPECT_EQ(write(ends[1], "ab", 2), 2);
        EXPECT_TRUE(ComesTrue([&] { return taken == "ab"; }));
    }
    for (const int end : ends) close(end);
}

TEST(ClockTest, SleepTakesItsTimeAndTheCountShowsIt) {
    SystemClock clock;
    const Long start = clock.GetTickCount();
    clock.Sleep(30);
    EXPECT_GE(TickDifference(clock.GetTickCount(), start), 30);
    clock.Sleep(-1);
}

class TimersTest : public testing::Test {
protected:
    TimersTest() { form.Attach(timers); }

    Form form{"form", ""};
    // Runs a second timer for longer than the first one's interval.
    void LetOthersTick() {
        int ticks = 0;
        other.Tick = [&] { ++ticks; };
        other.Enabled = true;
        EXPECT_TRUE(ComesTrue([&] { return ticks == 3; }));
        other.Enabled = false;
    }

    Timer fast{form, "fast", 10};
    Timer other{form, "other", 20};
    QtTimers timers;
};

TEST_F(TimersTest, TickWhileOnAndStopWhenOff) {
    int ticks = 0;
    fast.Tick = [&] { ++ticks; };
    fast.Enabled = true;
    EXPECT_EQ(ticks, 0);
    EXPECT_TRUE(ComesTrue([&] { return ticks >= 3; }));
    fast.Enabled = false;
    ticks = 0;
    LetOthersTick();
    EXPECT_EQ(ticks, 0);
}

TEST_F(TimersTest, TurningOnOneThatIsOnChangesNothing) {
    SystemClock clock;
    const Long start = clock.GetTickCount();
    bool ticked = false;
    fast.Tick = [&] { ticked = true; };
    fast.Enabled = true;
    // Were each of these a new start, the tick would never come.
    EXPECT_TRUE(ComesTrue([&] {
        fast.Enabled = true;
        return ticked;
    }));
    EXPECT_GE(TickDifference(clock.GetTickCount(), start), 9);
}

TEST_F(TimersTest, AHandlerMayTurnItsOwnTimerOff) {
    int ticks = 0;
    fast.Tick = [&] {
        ++ticks;
        fast.Enabled = false;
    };
    fast.Enabled = true;
    EXPECT_TRUE(ComesTrue([&] { return ticks == 1; }));
    LetOthersTick();
    EXPECT_EQ(ticks, 1);
}

TEST_F(TimersTest, NothingTicksThatWasNeverOn) {
    fast.Tick = [] { FAIL(); };
    fast.Enabled = false;
    form.Visible = true;
    LetOthersTick();
}

}  // namespace
}  // namespace orvelle::qt
