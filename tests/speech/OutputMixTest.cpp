// Volume, limit, tones of talks, and what is too quiet, at one output.
#include "adapters/speech/OutputMix.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/speech/Goertzel.h"
#include "tests/speech/MixRig.h"

namespace orvelle::speech {

namespace {

class OutputMixTest : public testing::Test {
protected:
    OutputMixTest() {
        mix.SetSignalVolume(0);
        mix.Route(0, true);
    }
    double Level(double amplitude) {
        Talker talker(0, Tone(1000, amplitude, 1000), ++speakers);
        Heard(mix, talker, 20);
        const double level = ToneAmplitude(Heard(mix, talker, 40), 1000);
        mix.Forget(0);
        return level;
    }

    OutputMix mix;
    std::uint32_t speakers = 0;
};

TEST_F(OutputMixTest, VolumeIsOfTheVoices) {
    const double whole = Level(0.1);
    EXPECT_NEAR(whole, 0.1, 0.03);
    for (const Long percent : {50, 200, 400}) {
        mix.SetVolume(percent);
        EXPECT_NEAR(Level(0.1), whole * percent / 100, 0.05 * percent / 100) << percent;
    }
    mix.SetVolume(100000);
    EXPECT_NEAR(Level(0.1), whole * 4, 0.05 * 4);
    for (const Long percent : {0, -1, std::numeric_limits<Long>::min()}) {
        mix.SetVolume(percent);
        EXPECT_EQ(Level(0.1), 0) << percent;
    }
}

TEST_F(OutputMixTest, NothingIsEverAboveFullScale) {
    mix.SetVolume(400);
    mix.SetSignalVolume(100);
    std::vector<Talker> talkers;
    for (Long room = 0; room < Rooms; ++room) {
        mix.Route(room, true);
        for (std::uint32_t speaker = 0; speaker < 3; ++speaker) {
            talkers.emplace_back(room, Tone(300 + 200 * room + 70 * speaker, 1, 1000), speaker);
        }
    }
    Sound heard;
    for (int block = 0; block < 100; ++block) {
        for (Talker& talker : talkers) talker.Say(mix);
        TakeInto(heard, mix);
    }
    EXPECT_LE(Peak(heard), 1.0F);
    EXPECT_GT(Peak(heard), 0.95F);
}

TEST_F(OutputMixTest, QuietSoundIsLeftAsItIsByTheLimit) {
    OutputMix other;
    other.Route(0, true);
    other.SetSignalVolume(0);
    mix.SetVolume(200);
    Talker talker(0, Tone(1000, 0.15, 1000));
    Talker same(0, Tone(1000, 0.15, 1000));
    const Sound twice = Heard(mix, talker, 50);
    const Sound once = Heard(other, same, 50);
    for (std::size_t index = BlockSamples; index < once.size(); ++index) {
        ASSERT_NEAR(twice[index], 2 * once[index], 1e-5) << index;
    }
}

TEST_F(OutputMixTest, AVolumeThatChangesDoesNotClick) {
    Talker talker(0, Tone(500, 0.15, 1000));
    Heard(mix, talker, 20);
    Sound heard;
    for (int time = 0; time < 20; ++time) {
        mix.SetVolume(time % 2 == 0 ? 0 : 400);
        const Sound part = Heard(mix, talker, 3);
        heard.insert(heard.end(), part.begin(), part.end());
    }
    for (std::size_t index = 2; index < heard.size(); ++index) {
        ASSERT_LT(std::abs(heard[index] - 2 * heard[index - 1] + heard[index - 2]), 0.01) << index;
    }
}

// A talk of 300 ms of near silence and what follows it.
Sound TalkHeard(OutputMix& mix, std::uint32_t speaker) {
    Talker talker(0, Tone(1000, 0.0001, 1000), speaker);
    Sound heard = Heard(mix, talker, 29);
    talker.Say(mix, Talker::Talk::Ends);
    const Sound after = HeardOfNobody(mix, 20);
    heard.insert(heard.end(), after.begin(), after.end());
    return heard;
}

TEST_F(OutputMixTest, TonesTellATalksBeginningAndEnd) {
    mix.SetSignalVolume(100);
    const Sound heard = TalkHeard(mix, 1);
    EXPECT_GT(ToneDecibels(Blocks(heard, 1, 3), BeginningTone), -20);
    EXPECT_LT(ToneDecibels(Blocks(heard, 6, 22), BeginningTone), -60);
    EXPECT_LT(ToneDecibels(Blocks(heard, 0, 29), EndTone), -40);
    EXPECT_GT(ToneDecibels(Blocks(heard, 31, 3), EndTone), -20);
    EXPECT_EQ(Peak(Blocks(heard, 36, 10)), 0);

    mix.SetSignalVolume(50);
    EXPECT_NEAR(ToneAmplitude(Blocks(TalkHeard(mix, 2), 1, 3), BeginningTone),
                ToneAmplitude(Blocks(heard, 1, 3), BeginningTone) / 2, 0.005);
    mix.SetSignalVolume(-5);
    HeardOfNobody(mix, 1);
    EXPECT_LT(Peak(TalkHeard(mix, 3)), 0.001);
}

TEST_F(OutputMixTest, TonesAreHeardWhereTheRoomIsRoutedOnly) {
    mix.SetSignalVolume(100);
    mix.Route(0, false);
    HeardOfNobody(mix, 1);
    EXPECT_EQ(Peak(TalkHeard(mix, 1)), 0);
}

TEST_F(OutputMixTest, TwoWhoTalkTogetherHaveOnePairOfTones) {
    mix.SetSignalVolume(100);
    Talker one(0, Tone(1000, 0.0001, 1000), 1);
    Talker other(0, Tone(1000, 0.0001, 1000), 2);
    Heard(mix, one, 10);
    Sound heard;
    for (int block = 0; block < 10; ++block) {
        other.Say(mix);
        one.Say(mix, block == 9 ? Talker::Talk::Ends : Talker::Talk::GoesOn);
        TakeInto(heard, mix);
    }
    const Sound rest = Heard(mix, other, 20);
    heard.insert(heard.end(), rest.begin(), rest.end());
    EXPECT_LT(Peak(heard), 0.001);
    other.Say(mix, Talker::Talk::Ends);
    EXPECT_GT(Peak(HeardOfNobody(mix, 4)), 0.1);
}

TEST_F(OutputMixTest, SquelchTakesAwayWhatIsQuieterThanItsThreshold) {
    struct Case {
        double Squelch;
        double Amplitude;
        bool IsHeard;
    };
    constexpr double Nan = std::numeric_limits<double>::quiet_NaN();
    constexpr double Infinity = std::numeric_limits<double>::infinity();
    // A sine of amplitude a has 3 dB less than a; the codec adds little at these levels.
    for (const auto& [squelch, amplitude, isHeard] :
         {Case{0, 0.0003, true}, Case{-10, 0.0003, true}, Case{Nan, 0.0003, true}, Case{-Infinity, 0.0003, true},
          Case{50, 0.0003, false}, Case{50, 0.004, true}, Case{100, 0.02, false}, Case{100, 0.1, true},
          Case{1000, 0.02, false}, Case{1000, 0.1, true}, Case{Infinity, 0.1, true}}) {
        mix.SetSquelch(squelch);
        Talker talker(0, Tone(1000, amplitude, 1000), ++speakers);
        Heard(mix, talker, 5);
        const float peak = Peak(Heard(mix, talker, 40));
        EXPECT_EQ(peak > amplitude / 4, isHeard) << squelch << ", " << amplitude << ": " << peak;
        mix.Forget(0);
    }
}

TEST_F(OutputMixTest, SquelchHoldsAVoiceForAWhile) {
    mix.SetSquelch(50);
    Sound word = Tone(1000, 0.2, 200);
    const Sound hiss = Tone(800, 0.0004, 800);
    word.insert(word.end(), hiss.begin(), hiss.end());
    Talker talker(0, word);
    const Sound heard = Heard(mix, talker, 100);
    EXPECT_GT(Peak(Blocks(heard, 2, 3)), 0.1F);
    EXPECT_GT(Peak(Blocks(heard, 35, 3)), 0.0001F);
    EXPECT_EQ(Peak(Blocks(heard, 65, 30)), 0);
}

}  // namespace

}  // namespace orvelle::speech
