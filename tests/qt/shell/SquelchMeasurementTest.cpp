// The microphone's squelch is found between the room and the voice, or it is told why not.
#include "adapters/qt/services/SquelchMeasurement.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace orvelle::qt {
namespace {

using Step = SquelchMeasurement::Step;

constexpr int Seconds = 1000 / SquelchMeasurement::Interval;  // in levels

class SquelchMeasurementTest : public testing::Test {
protected:
    SquelchMeasurementTest() { measurement.Begin(); }

    // Until the step is another one or `levels` were taken.
    void Give(double level, int levels) {
        for (int given = 0; given < levels; ++given) measurement.Take(true, level);
    }
    void Measure(double room, double voice) {
        Give(room, 2 * Seconds);
        Give(voice, 3 * Seconds);
    }

    SquelchMeasurement measurement;
};

TEST_F(SquelchMeasurementTest, TwoSecondsOfQuietAndThreeOfSpeechGiveWhatLiesBetween) {
    EXPECT_EQ(measurement.Now(), Step::Waiting);
    EXPECT_TRUE(measurement.Take(true, 20));
    EXPECT_EQ(measurement.Now(), Step::Quiet);
    Give(20, 2 * Seconds - 2);
    EXPECT_EQ(measurement.Now(), Step::Quiet);
    EXPECT_TRUE(measurement.Take(true, 20));
    EXPECT_EQ(measurement.Now(), Step::Speaking);
    Give(62, 3 * Seconds - 1);
    EXPECT_EQ(measurement.Now(), Step::Speaking);
    EXPECT_FALSE(measurement.Result());
    EXPECT_TRUE(measurement.Take(true, 62));
    EXPECT_EQ(measurement.Now(), Step::Measured);
    EXPECT_GT(*measurement.Result(), 20);
    EXPECT_LT(*measurement.Result(), 62);
    EXPECT_NEAR(*measurement.Result(), 34, 0.01);
    EXPECT_FALSE(measurement.Take(true, 5));
}

TEST_F(SquelchMeasurementTest, TheVoiceIsWaitedForAndHasGaps) {
    Give(10, 2 * Seconds);
    Give(12, 5 * Seconds);
    EXPECT_EQ(measurement.Now(), Step::Speaking);
    EXPECT_EQ(measurement.Share(), 0);
    for (int level = 0; level < 3 * Seconds; ++level) measurement.Take(true, level % 3 == 0 ? 70 : 12);
    EXPECT_EQ(measurement.Now(), Step::Measured);
    EXPECT_NEAR(*measurement.Result(), 30, 0.01);
}

TEST_F(SquelchMeasurementTest, AClickInTheQuietDoesNotCount) {
    Give(90, 2);
    Give(10, 2 * Seconds - 2);
    Give(70, 3 * Seconds);
    EXPECT_NEAR(*measurement.Result(), 30, 0.01);
}

TEST_F(SquelchMeasurementTest, AVoiceNoLouderThanTheRoomIsTold) {
    Give(40, 2 * Seconds);
    Give(44, 10 * Seconds - 1);
    EXPECT_EQ(measurement.Now(), Step::Speaking);
    Give(44, 1);
    EXPECT_EQ(measurement.Now(), Step::TooSoft);
    EXPECT_FALSE(measurement.Result());
    measurement.Begin();
    Give(40, 2 * Seconds);
    Give(90, 1);  // no voice, but a click
    Give(41, 3 * Seconds);
    EXPECT_EQ(measurement.Now(), Step::TooSoft);
    EXPECT_FALSE(measurement.Result());
}

TEST_F(SquelchMeasurementTest, AMicrophoneThatGivesNothingIsTold) {
    Give(0, 12 * Seconds);
    EXPECT_EQ(measurement.Now(), Step::Silent);
    measurement.Begin();
    Give(std::numeric_limits<double>::quiet_NaN(), 12 * Seconds);
    EXPECT_EQ(measurement.Now(), Step::Silent);
    measurement.Begin();
    Measure(0, 50);  // one that lets no noise through
    EXPECT_EQ(measurement.Now(), Step::Measured);
}

TEST_F(SquelchMeasurementTest, ItWaitsForItsUser) {
    SquelchMeasurement unbegun;
    for (int given = 0; given < 20 * Seconds; ++given) EXPECT_FALSE(unbegun.Take(true, 50));
    EXPECT_EQ(unbegun.Now(), Step::Ready);
    EXPECT_EQ(unbegun.Share(), 0);
    EXPECT_FALSE(unbegun.IsUnderWay());
    unbegun.Begin();
    EXPECT_EQ(unbegun.Now(), Step::Waiting);
    EXPECT_TRUE(unbegun.IsUnderWay());
}

TEST_F(SquelchMeasurementTest, AMicrophoneThatGivesSomethingAfterAllIsMeasured) {
    Give(0, 12 * Seconds);
    EXPECT_EQ(measurement.Now(), Step::Silent);
    EXPECT_FALSE(measurement.Take(false, 10));
    EXPECT_FALSE(measurement.Take(true, 0));
    EXPECT_TRUE(measurement.Take(true, 10));
    EXPECT_EQ(measurement.Now(), Step::Quiet);
    Give(10, 2 * Seconds - 1);
    EXPECT_EQ(measurement.Now(), Step::Speaking);
    Give(70, 3 * Seconds);
    EXPECT_EQ(measurement.Now(), Step::Measured);
    EXPECT_NEAR(*measurement.Result(), 30, 0.01);
}

TEST_F(SquelchMeasurementTest, AVoiceThatIsDistortedIsMeasuredAndTold) {
    Measure(10, 100);
    EXPECT_EQ(measurement.Now(), Step::TooLoud);
    EXPECT_NEAR(*measurement.Result(), 40, 0.01);
}

TEST_F(SquelchMeasurementTest, LevelsOutsideTheirRangeAreTheNearerEnd) {
    EXPECT_EQ(AsLevel(-1), 0);
    EXPECT_EQ(AsLevel(101), 100);
    EXPECT_EQ(AsLevel(std::numeric_limits<double>::infinity()), 100);
    EXPECT_EQ(AsLevel(std::nan("")), 0);
    Measure(-1e300, 1e300);
    EXPECT_NEAR(*measurement.Result(), 100.0 / 3, 0.01);
}

TEST_F(SquelchMeasurementTest, AMicrophoneThatGoesBeginsAnewOnceItIsBack) {
    Give(10, 2 * Seconds);
    Give(70, Seconds);
    EXPECT_TRUE(measurement.Take(false, 70));
    EXPECT_EQ(measurement.Now(), Step::Waiting);
    Measure(30, 60);
    EXPECT_NEAR(*measurement.Result(), 40, 0.01);
    // What was measured stays.
    EXPECT_FALSE(measurement.Take(false, 0));
    EXPECT_EQ(measurement.Now(), Step::Measured);
}

TEST_F(SquelchMeasurementTest, StoppedItMeasuresNothingMore) {
    Give(10, 2 * Seconds);
    measurement.Stop();
    Give(70, 3 * Seconds);
    EXPECT_EQ(measurement.Now(), Step::Stopped);
    EXPECT_FALSE(measurement.Result());
}

}  // namespace
}  // namespace orvelle::qt
