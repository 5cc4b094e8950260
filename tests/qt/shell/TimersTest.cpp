// The clock and the timers of controls.
#include <gtest/gtest.h>

#include "adapters/qt/services/QtTimers.h"
#include "adapters/shared/SystemClock.h"
#include "platform/controls/Form.h"
#include "platform/controls/Timer.h"
#include "tests/qt/shell/Waiting.h"

namespace orvelle::qt {
namespace {

TEST(ClockTest, SleepTakesItsTimeAndTheCountShowsIt) {
    SystemClock clock;
    const Long start = clock.GetTickCount();
    clock.Sleep(30);
    EXPECT_GE(TickDifference(clock.GetTickCount(), start), 30);
    clock.Sleep(-1);
}

class TimersTest : public testing::Test {
protected:
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
    const Ticket attached = form.Attach(timers);
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
