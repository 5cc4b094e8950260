#include "simulators/SimulatorChoice.h"

#include <gtest/gtest.h>

#include "tests/simulators/PlayedSource.h"

namespace orvelle::simulators {
namespace {

class SimulatorChoiceTest : public testing::Test {
protected:
    SimulatorChoiceTest() {
        choice.Changed = [this] { ++changes; };
    }

    PlayedSource first{"FlightGear", "fgfs"}, second{"X-Plane 12", "X-Plane-x86_64"};
    SimulatorChoice choice{{&first, &second}};
    int changes = 0;
};

TEST_F(SimulatorChoiceTest, NoneCountsWhileNoneIsThere) {
    EXPECT_EQ(choice.Chosen(), nullptr);
    EXPECT_TRUE(choice.PassedOver().empty());
    EXPECT_EQ(choice.All().size(), 2U);
}

TEST_F(SimulatorChoiceTest, WithoutAWindowTheOneThatCameFirstCounts) {
    second.Tell({});
    first.Tell({});
    EXPECT_EQ(choice.Chosen(), &second);
    EXPECT_EQ(choice.PassedOver(), std::vector<SimulatorSource*>{&first});
    EXPECT_EQ(changes, 2);
}

TEST_F(SimulatorChoiceTest, TheOneWhoseWindowWasLastActiveCounts) {
    first.Tell({});
    second.Tell({});
    choice.Activate("X-Plane-x86_64");
    EXPECT_EQ(choice.Chosen(), &second);
    EXPECT_EQ(changes, 3);
    choice.Activate("X-Plane-x86_64");
    choice.Activate("firefox");
    EXPECT_EQ(choice.Chosen(), &second);
    EXPECT_EQ(changes, 3) << "told though nothing has changed";
    choice.Activate("FlightGear");  // a window whose process can't be told
    EXPECT_EQ(choice.Chosen(), &first);
}

TEST_F(SimulatorChoiceTest, AWindowMayComeBeforeTheFirstWord) {
    first.Tell({});
    choice.Activate("X-Plane-x86_64");
    EXPECT_EQ(choice.Chosen(), &first);
    second.Begin();
    EXPECT_EQ(choice.Chosen(), &first) << "one that has told nothing takes the place of one that flies";
    second.Tell({});
    EXPECT_EQ(choice.Chosen(), &second);
}

TEST_F(SimulatorChoiceTest, OneThatGoesLeavesThePlaceAndComesBackBehindTheOther) {
    first.Tell({});
    second.Tell({});
    choice.Activate("X-Plane-x86_64");
    second.Go();
    EXPECT_EQ(choice.Chosen(), &first);
    EXPECT_TRUE(choice.PassedOver().empty());
    second.Tell({});
    EXPECT_EQ(choice.Chosen(), &first);
    first.Go();
    EXPECT_EQ(choice.Chosen(), &second);
    second.Go();
    EXPECT_EQ(choice.Chosen(), nullptr);
}

TEST_F(SimulatorChoiceTest, OneThatIsBusyKeepsItsPlace) {
    first.Tell({});
    second.Tell({});
    first.FallSilent();
    EXPECT_EQ(choice.Chosen(), &first);
}

}  // namespace
}  // namespace orvelle::simulators
