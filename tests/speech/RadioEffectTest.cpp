// What a voice by radio sounds like.
#include "adapters/speech/RadioEffect.h"

#include <gtest/gtest.h>

#include "tests/speech/Goertzel.h"
#include "tests/speech/MixRig.h"

namespace orvelle::speech {

namespace {

enum class Room { Silent, Talks };

Sound ByRadio(const Sound& sound, Room room = Room::Silent, RadioEffect radio = {}) {
    radio.Switch(true);
    Sound heard;
    for (std::size_t first = 0; first + BlockSamples <= sound.size(); first += BlockSamples) {
        Block block;
        std::copy_n(sound.begin() + first, BlockSamples, block.begin());
        radio.Run(block, room == Room::Talks);
        heard.insert(heard.end(), block.begin(), block.end());
    }
    return heard;
}

double Kept(double frequency) {
    return ToneDecibels(Blocks(ByRadio(Tone(frequency, 0.1, 500)), 10, 40), frequency) + 20;
}

TEST(RadioEffectTest, KeepsTheBandOfARadio) {
    for (const double frequency : {100.0, 200.0, 300.0, 1000.0, 3000.0, 3400.0, 6000.0, 10000.0}) {
        std::cout << frequency << " Hz: " << Kept(frequency) << " dB\n";
    }
    for (const double frequency : {500.0, 1000.0, 2000.0, 3000.0}) EXPECT_NEAR(Kept(frequency), 0, 2) << frequency;
    for (const double frequency : {300.0, 3400.0}) EXPECT_NEAR(Kept(frequency), -3, 1) << frequency;
    for (const double frequency : {50.0, 100.0, 6000.0, 10000.0}) EXPECT_LT(Kept(frequency), -20) << frequency;
}

TEST(RadioEffectTest, RoundsOffLoudPartsAndKeepsTheirHarmonicsInTheBand) {
    const Sound loud = ByRadio(Tone(1000, 1, 500));
    EXPECT_LT(Peak(Blocks(loud, 1, 49)), 0.6F);
    EXPECT_GT(ToneDecibels(Blocks(loud, 10, 40), 3000), -30);
    EXPECT_LT(ToneDecibels(Blocks(loud, 10, 40), 7000), -50);
    EXPECT_LT(ToneDecibels(Blocks(ByRadio(Tone(1000, 0.03, 500)), 10, 40), 3000), -60);
}

TEST(RadioEffectTest, HissesALittleWhileSomebodyTalks) {
    const double hiss = PowerDecibels(Blocks(ByRadio(Sound(48000), Room::Talks), 10, 80));
    std::cout << "hiss " << hiss << " dB\n";
    EXPECT_NEAR(hiss, -55, 6);
    EXPECT_LT(Peak(ByRadio(Sound(48000))), 1e-9F);
}

TEST(RadioEffectTest, SwitchesWithoutAClickAndIsNothingWhenOff) {
    OutputMix mix;
    mix.SetSignalVolume(0);
    mix.Route(0, true);
    Talker talker(0, Tone(500, 0.3, 1000));
    Heard(mix, talker, 20);
    Sound heard;
    for (int time = 0; time < 20; ++time) {
        mix.SetFilter(time % 2 == 0);
        const Sound part = Heard(mix, talker, 3);
        heard.insert(heard.end(), part.begin(), part.end());
    }
    for (std::size_t index = 2; index < heard.size(); ++index) {
        ASSERT_LT(std::abs(heard[index] - 2 * heard[index - 1] + heard[index - 2]), 0.01) << index;
    }
    RadioEffect radio;
    EXPECT_FALSE(radio.IsHeard());
}

TEST(RadioEffectTest, IsHeardThroughTheMix) {
    OutputMix mix;
    mix.SetSignalVolume(0);
    mix.Route(0, true);
    Talker talker(0, Tone(120, 0.3, 1000));
    const double plain = ToneDecibels(Blocks(Heard(mix, talker, 50), 10, 40), 120);
    mix.SetFilter(true);
    EXPECT_LT(ToneDecibels(Blocks(Heard(mix, talker, 50), 10, 40), 120), plain - 20);
    talker.Say(mix, Talker::Talk::Ends);
    EXPECT_LT(Peak(Blocks(HeardOfNobody(mix, 60), 40, 20)), 1e-6F) << "no hiss where nobody talks";
}

}  // namespace

}  // namespace orvelle::speech
