// Where "AUTOMATIC" leads, by what the network shows and how it fares there.
#include "adapters/mqtt/AutomaticPlace.h"

#include <gtest/gtest.h>

#include "tests/shared/HandLoop.h"

namespace orvelle::mqtt {
namespace {

const HostAndPort Own{"simpc", 8883};
const HostAndPort Elsewhere{"simpc-2.local", 8884};

class AutomaticPlaceTest : public testing::Test {
protected:
    AutomaticPlaceTest() {
        place.Changed = [this] { ++changes; };
    }

    void Show(const HostAndPort& at, const std::string& setUp = "Home") { found.Add({setUp, at}); }

    HandLoop loop;
    FoundServers found{loop};
    AutomaticPlace place{loop, found, {.Name = "Home", .Host = "simpc"}};
    int changes = 0;
};

TEST_F(AutomaticPlaceTest, IsWhereTheSetUpShowsUnderItsName) {
    found.Begin();
    Show({"a-club", 8883}, "Club");
    Show(Elsewhere);
    EXPECT_EQ(place.Place(), Elsewhere);
}

TEST_F(AutomaticPlaceTest, IsAwaitedForTwoSecondsThenThatOfTheFile) {
    found.Begin();
    EXPECT_EQ(place.Place(), std::nullopt);
    loop.Run(1900);
    EXPECT_EQ(place.Place(), std::nullopt);
    loop.Run(200);
    EXPECT_EQ(place.Place(), Own);
    EXPECT_EQ(changes, 1);
}

TEST_F(AutomaticPlaceTest, IsTakenAsSoonAsItShows) {
    found.Begin();
    EXPECT_EQ(place.Place(), std::nullopt);
    loop.Run(500);
    Show(Elsewhere);
    loop.Run(1);
    EXPECT_EQ(place.Place(), Elsewhere);
}

TEST_F(AutomaticPlaceTest, IsThatOfTheFileAtOnceWhereNobodyLooks) {
    EXPECT_EQ(place.Place(), Own);
    found.Begin();
    found.Settle();
    AutomaticPlace other{loop, found, {.Name = "Home", .Host = "SimPC"}};
    EXPECT_EQ(other.Place(), Own) << "there is no daemon to wait for";
}

TEST_F(AutomaticPlaceTest, IsKeptWhereItWasReachedWhateverShowsLater) {
    EXPECT_EQ(place.Place(), Own);
    place.Reach();
    Show(Elsewhere);
    place.Fail(BrokerTrouble::Unreachable);
    loop.Run(10000);
    EXPECT_EQ(place.Place(), Own) << "a loss alone";
    place.Fail(BrokerTrouble::Unreachable);
    loop.Run(3000);
    EXPECT_EQ(place.Place(), Elsewhere);
}

TEST_F(AutomaticPlaceTest, GoesToTheFileAfterEachImpostor) {
    for (int count = 0; count < 9; ++count) Show({"impostor-" + std::to_string(count), 8883});
    EXPECT_NE(place.Place(), Own);
    place.Fail(BrokerTrouble::Refused);
    loop.Run(1);
    EXPECT_EQ(place.Place(), Own);
    for (int count = 0; count < 20; ++count) {
        place.Fail(BrokerTrouble::Unreachable);
        loop.Run(2000);
        EXPECT_NE(place.Place(), Own);
        place.Fail(BrokerTrouble::NotEncrypted);
        loop.Run(1);
        EXPECT_EQ(place.Place(), Own);
    }
}

TEST_F(AutomaticPlaceTest, LeavesAPlaceThatDoesNotAnswerInTime) {
    Show(Elsewhere);
    EXPECT_EQ(place.Place(), Elsewhere);
    loop.Run(3900);
    EXPECT_EQ(place.Place(), Elsewhere);
    loop.Run(200);
    EXPECT_EQ(place.Place(), Own);
}

TEST_F(AutomaticPlaceTest, IsTheRightOneWhereAnotherProgramTakesOver) {
    Show(Elsewhere);
    EXPECT_EQ(place.Place(), Elsewhere);
    place.Reach();
    for (int count = 0; count < 3; ++count) place.Fail(BrokerTrouble::TakenOver);
    loop.Run(20000);
    EXPECT_EQ(place.Place(), Elsewhere);
}

TEST_F(AutomaticPlaceTest, HammersNobody) {
    Show(Elsewhere);
    place.Place();
    int attempts = 0;
    place.Changed = [&] {
        ++attempts;
        loop.Post([this] { place.Fail(BrokerTrouble::Unreachable); });
    };
    place.Fail(BrokerTrouble::Unreachable);
    loop.Run(60000);
    EXPECT_LT(attempts, 80);
    EXPECT_GT(attempts, 50);
}

}  // namespace
}  // namespace orvelle::mqtt
