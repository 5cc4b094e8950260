#include "replay/VirtualTime.h"

#include <gtest/gtest.h>

#include <limits>

#include "platform/controls/Form.h"

namespace orvelle::replay {
namespace {

class VirtualTimeTest : public testing::Test {
protected:
    // The names and numbers of what falls due up to the moment, in order, with the time of each.
    std::string DueUntil(std::int64_t moment) {
        std::string due;
        while (const auto next = time.TakeDue(moment)) {
            const auto* timer = std::get_if<Timer*>(&*next);
            due += (timer != nullptr ? (*timer)->Name : std::to_string(std::get<WindowMessage>(*next).Number)) + "@" +
                   std::to_string(time.Elapsed()) + " ";
        }
        return due;
    }
    static Task Numbered(Long number) { return WindowMessage{nullptr, number}; }

    Form form{"Form", ""};
    Timer one{form, "One", 1000};
    Timer three{form, "Three", 3000};
    VirtualTime time;
};

TEST_F(VirtualTimeTest, TicksATimerAtEachMultipleOfItsInterval) {
    time.TurnOn(one);
    EXPECT_EQ(DueUntil(999), "");
    EXPECT_EQ(DueUntil(3000), "One@1000 One@2000 One@3000 ");
}

TEST_F(VirtualTimeTest, ServesTimersAndTasksInOrderOfTime) {
    time.TurnOn(one);
    time.Schedule(1500, Numbered(2));
    time.Schedule(500, Numbered(1));
    EXPECT_EQ(DueUntil(2000), "1@500 One@1000 2@1500 One@2000 ");
}

TEST_F(VirtualTimeTest, TicksTimersOfOneMomentInTheOrderInWhichTheyWereTurnedOn) {
    time.TurnOn(three);
    time.TurnOn(one);
    EXPECT_EQ(DueUntil(3000), "One@1000 One@2000 Three@3000 One@3000 ");
}

TEST_F(VirtualTimeTest, ServesTasksOfOneMomentInTheOrderInWhichTheyCame) {
    time.Schedule(10, Numbered(1));
    time.Schedule(10, Numbered(2));
    EXPECT_EQ(DueUntil(10), "1@10 2@10 ");
}

TEST_F(VirtualTimeTest, ATimerThatIsOffTicksNoMore) {
    time.TurnOn(one);
    time.TurnOff(one);
    EXPECT_EQ(DueUntil(5000), "");
}

TEST_F(VirtualTimeTest, WhatFellDueInAWaitComesLate) {
    time.TurnOn(one);
    time.MoveTo(1700);
    EXPECT_EQ(DueUntil(2000), "One@1700 One@2000 ");
}

TEST_F(VirtualTimeTest, NeverGoesBack) {
    time.MoveTo(50);
    time.MoveTo(20);
    EXPECT_EQ(time.Elapsed(), 50);
}

TEST_F(VirtualTimeTest, SettingTheTickCountLeavesTheTimeThatIsLeft) {
    time.TurnOn(one);
    time.MoveTo(400);
    time.SetTickCount(-9000);
    time.Schedule(100, Numbered(1));
    EXPECT_EQ(time.TickCount(), -9000);
    EXPECT_EQ(DueUntil(1000), "1@500 One@1000 ");
    EXPECT_EQ(time.TickCount(), -8400);
}

TEST_F(VirtualTimeTest, TheTickCountWraps) {
    time.SetTickCount(std::numeric_limits<Long>::max());
    time.MoveTo(1);
    EXPECT_EQ(time.TickCount(), std::numeric_limits<Long>::min());
}

}  // namespace
}  // namespace orvelle::replay
