// What passes from the microphone.
#include "adapters/speech/Squelch.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace orvelle::speech {

namespace {

// Of this level by its power.
Block Level(double decibels) {
    Block block;
    for (std::size_t index = 0; index < BlockSamples; ++index) {
        block[index] = static_cast<float>(std::pow(10, decibels / 20)) * (index % 2 == 0 ? 1.0F : -1.0F);
    }
    return block;
}

bool Passes(double squelch, double decibels) {
    SquelchGate gate;
    gate.Set(squelch);
    return gate.Passes(Level(decibels));
}

TEST(SquelchTest, LevelIsByPower) {
    EXPECT_EQ(LevelOf(Silence), 0);
    EXPECT_EQ(LevelOf(Level(-80)), 0);
    EXPECT_NEAR(LevelOf(Level(-60)), 0, 0.01);
    EXPECT_NEAR(LevelOf(Level(-30)), 50, 0.01);
    EXPECT_NEAR(LevelOf(Level(0)), 100, 0.01);
    EXPECT_EQ(LevelOf(Level(40)), 100);
    Block odd = Silence;
    odd[7] = std::numeric_limits<float>::quiet_NaN();
    EXPECT_EQ(LevelOf(odd), 0);
    odd[7] = std::numeric_limits<float>::infinity();
    EXPECT_EQ(LevelOf(odd), 100);
}

TEST(SquelchTest, EverythingPassesAt0AndNothingAt100) {
    constexpr double Nan = std::numeric_limits<double>::quiet_NaN();
    constexpr double Infinity = std::numeric_limits<double>::infinity();
    for (const double open : {0.0, -1.0, -Infinity, Nan}) EXPECT_TRUE(Passes(open, -300)) << open;
    for (const double closed : {100.0, 101.0, Infinity}) EXPECT_FALSE(Passes(closed, 0)) << closed;
    EXPECT_FALSE(Passes(50, -31));
    EXPECT_TRUE(Passes(50, -29));
}

TEST(SquelchTest, OpensAtOnceAndHoldsFor300Milliseconds) {
    SquelchGate gate;
    gate.Set(50);
    EXPECT_FALSE(gate.Passes(Level(-40)));
    EXPECT_TRUE(gate.Passes(Level(-20)));
    for (int block = 0; block < 30; ++block) EXPECT_TRUE(gate.Passes(Level(-40))) << block;
    EXPECT_FALSE(gate.Passes(Level(-40)));
    EXPECT_TRUE(gate.Passes(Level(-20)));
}

TEST(SquelchTest, ClosesWhenItIsToldAndAt100) {
    SquelchGate gate;
    gate.Set(50);
    EXPECT_TRUE(gate.Passes(Level(-20)));
    gate.Close();
    EXPECT_FALSE(gate.Passes(Level(-40)));
    EXPECT_TRUE(gate.Passes(Level(-20)));
    gate.Set(100);
    EXPECT_FALSE(gate.Passes(Level(-20)));
    gate.Set(50);
    EXPECT_FALSE(gate.Passes(Level(-40)));
}

}  // namespace

}  // namespace orvelle::speech
