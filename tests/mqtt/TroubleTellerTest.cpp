// When the user is told why a broker can't be had.
#include "adapters/mqtt/TroubleTeller.h"

#include <gtest/gtest.h>

#include "adapters/mqtt/BrokerTroubles.h"
#include "tests/shared/HandLoop.h"

namespace orvelle::mqtt {
namespace {

class TroubleTellerTest : public testing::Test {
protected:
    TroubleTellerTest() {
        teller.Told = [this](BrokerTrouble why, const HostAndPort&) { told.push_back(why); };
        teller.Over = [this](const HostAndPort&) { ++over; };
    }

    void FailFor(int seconds, BrokerTrouble why) {
        for (int second = 0; second < seconds; ++second) {
            teller.Fail(why, place);
            loop.Run(1000);
        }
    }

    HandLoop loop;
    const HostAndPort place{"simpc", 8883};
    TroubleTeller teller{loop};
    std::vector<BrokerTrouble> told;
    int over = 0;
};

using enum BrokerTrouble;

TEST_F(TroubleTellerTest, APassingLossIsNotTold) {
    for (int round = 0; round < 5; ++round) {
        FailFor(8, Unreachable);
        teller.Reach(place);
        loop.Run(100);
    }
    loop.Run(60000);
    EXPECT_TRUE(told.empty());
    EXPECT_EQ(over, 0);
}

TEST_F(TroubleTellerTest, TheEndOfWhatWasToldIsToldOnceItLasts) {
    FailFor(30, Unreachable);
    teller.Reach(place);
    loop.Run(5000);
    EXPECT_EQ(over, 0);
    loop.Run(6000);
    EXPECT_EQ(over, 1);
    FailFor(5, Unreachable);
    teller.Reach(place);
    loop.Run(20000);
    EXPECT_EQ(over, 1) << "that passed untold";
}

TEST_F(TroubleTellerTest, WhatLastsIsToldOnceForEachReason) {
    FailFor(30, Unreachable);
    EXPECT_EQ(told, std::vector{Unreachable});
    FailFor(30, Refused);
    FailFor(30, Unreachable);
    EXPECT_EQ(told, (std::vector{Unreachable, Refused}));
}

TEST_F(TroubleTellerTest, ItIsToldAgainAfterASuccessThatLasted) {
    FailFor(30, Unreachable);
    teller.Reach(place);
    loop.Run(5000);
    FailFor(30, Unreachable);
    EXPECT_EQ(told.size(), 1) << "five seconds are no success";
    teller.Reach(place);
    loop.Run(11000);
    FailFor(30, Unreachable);
    EXPECT_EQ(told.size(), 2);
}

TEST_F(TroubleTellerTest, AnotherProgramOfTheSameNameIsToldWhenItComesAgain) {
    teller.Fail(TakenOver, place);
    loop.Run(2000);
    teller.Reach(place);
    EXPECT_TRUE(told.empty()) << "it may be this program's other connection";
    for (int round = 0; round < 10; ++round) {
        loop.Run(2000);
        teller.Fail(TakenOver, place);
        loop.Run(2000);
        teller.Reach(place);
    }
    EXPECT_EQ(told, std::vector{TakenOver});
}

TEST_F(TroubleTellerTest, WhatNobodyWantsIsNotTold) {
    FailFor(8, Unreachable);
    teller.Rest();
    loop.Run(60000);
    EXPECT_TRUE(told.empty());
}

TEST_F(TroubleTellerTest, WithoutPatienceATroubleIsToldAtOnceAndItsEndOnceItLasts) {
    TroubleTeller hasty(loop, 0);
    hasty.Told = teller.Told;
    hasty.Over = teller.Over;
    for (int time = 0; time < 3; ++time) hasty.Fail(Unreachable, place);
    loop.Run(1);
    EXPECT_EQ(told, std::vector{Unreachable});
    hasty.Fail(Refused, place);
    EXPECT_EQ(told, (std::vector{Unreachable, Refused}));
    hasty.Reach(place);
    loop.Run(11000);
    EXPECT_EQ(over, 1);
}

TEST(BrokerTroubles, EachHasItsSentence) {
    std::set<std::string> sentences;
    for (const BrokerTrouble trouble : {HostUnknown, Unreachable, NotEncrypted, Refused, WrongProtocol, TakenOver}) {
        const std::string sentence = SentenceOf(trouble, {"simpc", 8884}, 7, KeyFrom::SetUpFile);
        EXPECT_NE(sentence.find("simpc"), std::string::npos);
        EXPECT_TRUE(sentence.ends_with("."));
        sentences.insert(sentence);
    }
    EXPECT_EQ(sentences.size(), 6);
    EXPECT_NE(SentenceOf(TakenOver, {"simpc", 8884}, 7, KeyFrom::SetUpFile).find("c07"), std::string::npos);
    EXPECT_EQ(SentenceOf(HostUnknown, {"sim pc", 8884}, 7, KeyFrom::SetUpFile), "\"sim pc\" is no name of a host.");
}

}  // namespace
}  // namespace orvelle::mqtt
