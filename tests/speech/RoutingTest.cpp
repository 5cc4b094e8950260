// Which room is heard at which output, and that a switch is quick and quiet.
#include <gtest/gtest.h>

#include <array>
#include <cmath>

#include "tests/speech/Goertzel.h"
#include "tests/speech/MixRig.h"

namespace orvelle::speech {

namespace {

constexpr std::array<double, Rooms> Frequencies = {700, 1000, 1400};
constexpr std::size_t BlocksOfSwitch = 3;

// Of three rooms to two outputs, a bit each.
bool IsRouted(unsigned setting, unsigned output, Long room) { return (setting >> (output * 3 + room) & 1) != 0; }

class RoutingTable : public testing::Test {
protected:
    RoutingTable() {
        for (Long room = 0; room < Rooms; ++room) talkers.emplace_back(room, Tone(Frequencies[room], 0.25, 1000));
        for (OutputMix& output : outputs) output.SetSignalVolume(0);
    }
    void Check(unsigned setting) {
        for (unsigned output = 0; output < 2; ++output) {
            for (Long room = 0; room < Rooms; ++room) outputs[output].Route(room, IsRouted(setting, output, room));
        }
        std::array<Sound, 2> heard;
        for (std::size_t block = 0; block < BlocksOfSwitch + 10; ++block) {
            for (Talker& talker : talkers) talker.Say(outputs);
            for (unsigned output = 0; output < 2; ++output) TakeInto(heard[output], outputs[output]);
        }
        for (unsigned output = 0; output < 2; ++output) {
            CheckTones(setting, output, Blocks(heard[output], BlocksOfSwitch, 10));
        }
    }

    double quietestRouted = 0;
    double loudestOther = -200;

private:
    void CheckTones(unsigned setting, unsigned output, std::span<const float> heard) {
        for (Long room = 0; room < Rooms; ++room) {
            const double level = ToneDecibels(heard, Frequencies[room]);
            double& worst = IsRouted(setting, output, room) ? quietestRouted : loudestOther;
            worst = IsRouted(setting, output, room) ? std::min(worst, level) : std::max(worst, level);
            EXPECT_EQ(IsRouted(setting, output, room), level > -20) << setting << ": " << room << " at " << output;
        }
        if ((setting >> (output * 3) & 7) == 0) {
            EXPECT_EQ(Peak(heard), 0) << setting << " at " << output;
        }
    }

    std::array<OutputMix, 2> outputs;
    std::vector<Talker> talkers;
};

TEST_F(RoutingTable, All64SettingsGiveExactlyTheirTones) {
    for (unsigned setting = 0; setting < 64; ++setting) Check(setting);
    for (unsigned setting = 64; setting-- > 0;) Check(setting * 29 % 64);  // far from the one before
    std::cout << "routed at least " << quietestRouted << " dB, others at most " << loudestOther << " dB\n";
    EXPECT_LT(loudestOther, quietestRouted - 20);
}

// How much of it is no wave of up to 1 kHz: a jump counts whole.
float LargestJump(std::span<const float> sound) {
    float largest = 0;
    for (std::size_t index = 2; index < sound.size(); ++index) {
        largest = std::max(largest, std::abs(sound[index] - 2 * sound[index - 1] + sound[index - 2]));
    }
    return largest;
}

TEST(RoutingTest, ASwitchIsDoneWithin30MillisecondsAndDoesNotClick) {
    OutputMix mix;
    mix.SetSignalVolume(0);
    Talker talker(0, Tone(500, 0.5, 1000));
    mix.Route(0, true);
    const float withoutSwitch = LargestJump(Blocks(Heard(mix, talker, 100), 20, 80));
    float largest = 0;
    for (int time = 0; time < 40; ++time) {
        const bool on = time % 2 == 1;
        const Sound before = Heard(mix, talker, 5);
        mix.Route(0, on);
        Sound heard = Heard(mix, talker, BlocksOfSwitch);
        EXPECT_EQ(on, Peak(Blocks(heard, BlocksOfSwitch - 1)) > 0.3);
        heard.insert(heard.begin(), before.begin(), before.end());
        largest = std::max(largest, LargestJump(heard));
    }
    std::cout << "largest jump " << 20 * std::log10(largest) << " dB, without a switch "
              << 20 * std::log10(withoutSwitch) << " dB\n";
    EXPECT_LT(largest, 0.01);
}

TEST(RoutingTest, AnotherRoomIsNowhere) {
    OutputMix mix;
    for (const Long room : {-1, Rooms, 1000000}) {
        mix.Route(room, true);
        mix.Put(room, {1, 0, {}, true});
        mix.Forget(room);
        mix.Forget(room, 1);
    }
    EXPECT_EQ(Peak(HeardOfNobody(mix, 3)), 0);
}

TEST(RoutingTest, WhoIsForgottenIsHeardNoMore) {
    OutputMix mix;
    mix.SetSignalVolume(0);
    mix.Route(1, true);
    Talker one(1, Tone(700, 0.3, 1000), 1);
    Talker other(1, Tone(1400, 0.3, 1000), 2);
    for (int block = 0; block < 20; ++block) {
        one.Say(mix);
        Heard(mix, other, 1);
    }
    mix.Forget(1, 1);
    const Sound heard = Heard(mix, other, 10);
    EXPECT_LT(ToneDecibels(heard, 700), -35);
    EXPECT_GT(ToneDecibels(heard, 1400), -20);
    mix.Forget(1);
    EXPECT_EQ(Peak(HeardOfNobody(mix, 3)), 0);
}

}  // namespace

}  // namespace orvelle::speech
