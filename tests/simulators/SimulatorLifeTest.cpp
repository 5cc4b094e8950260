#include "simulators/SimulatorLife.h"

#include <gtest/gtest.h>

#include "tests/shared/HandLoop.h"
#include "tests/simulators/PlayedProcesses.h"

namespace orvelle::simulators {
namespace {

class SimulatorLifeTest : public testing::Test {
protected:
    SimulatorLifeTest() {
        life.Changed = [this] { ++changes; };
    }
    void Expect(Presence presence, int run, int told) {
        EXPECT_EQ(life.Stands(), presence);
        EXPECT_EQ(life.Run(), run);
        EXPECT_EQ(changes, told);
    }

    HandLoop loop;
    PlayedProcesses processes;
    SimulatorLife life{loop, processes.Questions({})};
    int changes = 0;
};

TEST_F(SimulatorLifeTest, BeginsWithTheFirstWordAndWordsTellNothingNew) {
    Expect(Presence::Absent, 0, 0);
    for (int word = 0; word < 100; ++word) {
        life.Hear(41);
        loop.Run(SimulatorLife::QuietMilliseconds - 1);
    }
    Expect(Presence::Live, 1, 1);
    EXPECT_EQ(life.Process(), 41);
}

TEST_F(SimulatorLifeTest, IsBusyAfterTwoSecondsAndForAsLongAsItsProcessIsThere) {
    life.Hear(41);
    loop.Run(1999);
    Expect(Presence::Live, 1, 1);
    loop.Run(1);
    Expect(Presence::Busy, 1, 2);
    loop.Run(3'600'000);
    Expect(Presence::Busy, 1, 2);
    life.Hear(41);
    Expect(Presence::Live, 1, 3);
}

TEST_F(SimulatorLifeTest, EndsWithItsProcessAtOnce) {
    life.Hear(41);
    processes.End(41);
    Expect(Presence::Absent, 1, 2);
    EXPECT_EQ(life.Process(), 0);
    EXPECT_TRUE(loop.Idle());
}

TEST_F(SimulatorLifeTest, EndsWithItsProcessAlsoWhileItIsBusy) {
    life.Hear(41);
    loop.Run(5000);
    processes.End(41);
    Expect(Presence::Absent, 1, 3);
}

TEST_F(SimulatorLifeTest, TheNextProcessIsAnotherRun) {
    life.Hear(41);
    processes.End(41);
    life.Hear(42);
    Expect(Presence::Live, 2, 3);
    life.Hear(43);
    Expect(Presence::Live, 3, 4);
    processes.End(42);
    Expect(Presence::Live, 3, 4);
}

TEST_F(SimulatorLifeTest, OfAnUnknownProcessTenSecondsOfSilenceAreTheEnd) {
    life.Hear(0);
    loop.Run(9999);
    Expect(Presence::Busy, 1, 2);
    loop.Run(1);
    Expect(Presence::Absent, 1, 3);
    life.Hear(0);
    Expect(Presence::Live, 2, 4);
}

TEST_F(SimulatorLifeTest, AWordAfterASilenceBeginsAllTimesAnew) {
    life.Hear(0);
    loop.Run(9000);
    life.Hear(0);
    loop.Run(9999);
    Expect(Presence::Busy, 1, 4);
    loop.Run(1);
    Expect(Presence::Absent, 1, 5);
}

TEST_F(SimulatorLifeTest, OneThatSaysThatItGoesHasGone) {
    life.Hear(41);
    life.Forget();
    Expect(Presence::Absent, 1, 2);
    life.Forget();
    Expect(Presence::Absent, 1, 2);
    EXPECT_TRUE(loop.Idle());
}

}  // namespace
}  // namespace orvelle::simulators
