#include "apps/voice/IncomingVoice.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "adapters/speech/VoiceEncoder.h"
#include "tests/shared/HandLoop.h"
#include "tests/speech/Goertzel.h"

namespace orvelle {
namespace {

constexpr double Hertz = 1000;
constexpr std::size_t Blocks = 100;

const mumble::RoomAddress Tower{.Host = "srv", .Channel = "tower"};
const mumble::RoomAddress Ground{.Host = "srv", .Channel = "ground"};

class IncomingVoiceTest : public testing::Test {
protected:
    IncomingVoiceTest() {
        for (Long output : {Headset, Speakers}) incoming.Mix(output).SetSignalVolume(0);
        incoming.AudioStarted = [this](Long room) { events.push_back("started " + std::to_string(room)); };
        incoming.AudioStopped = [this](Long room) { events.push_back("stopped " + std::to_string(room)); };
    }

    // Somebody's tone comes in by these rooms for a second. Its amplitude at both outputs.
    std::array<double, 2> Hear(std::initializer_list<Long> rooms) {
        std::array<std::vector<float>, 2> heard;
        speech::VoiceEncoder encoder;
        for (std::size_t block = 0; block < Blocks; ++block) {
            const auto packet = encoder.Encode(Tone(block));
            for (const Long room : rooms) incoming.Hear(room, {.Speaker = 7, .Sequence = sequence, .Opus = packet});
            ++sequence;
            for (Long output : {Headset, Speakers}) {
                speech::Block taken;
                incoming.Take(output, taken);
                auto& all = heard[static_cast<std::size_t>(output)];
                all.insert(all.end(), taken.begin(), taken.end());
            }
        }
        const std::size_t half = heard[0].size() / 2;
        return {ToneAmplitude(std::span(heard[0]).subspan(half), Hertz),
                ToneAmplitude(std::span(heard[1]).subspan(half), Hertz)};
    }

    static speech::Block Tone(std::size_t block) {
        speech::Block tone;
        for (std::size_t index = 0; index < tone.size(); ++index)
            tone[index] = static_cast<float>(
                0.25 * std::sin(2 * std::numbers::pi * Hertz * static_cast<double>(block * tone.size() + index) /
                                speech::SampleRate));
        return tone;
    }

    HandLoop loop;
    IncomingVoice incoming{loop};
    std::uint64_t sequence = 0;
    std::vector<std::string> events;
};

void ExpectHeard(std::array<double, 2> heard, bool atHeadset, bool atSpeakers) {
    EXPECT_NEAR(heard[0], atHeadset ? 0.25 : 0, 0.03);
    EXPECT_NEAR(heard[1], atSpeakers ? 0.25 : 0, 0.03);
}

TEST_F(IncomingVoiceTest, ARoomIsHeardWhereItIsRoutedWhileItIsJoined) {
    incoming.Route(0, Headset, true);
    ExpectHeard(Hear({0}), false, false);
    EXPECT_TRUE(events.empty());
    incoming.Join(0, Tower);
    ExpectHeard(Hear({0}), true, false);
    incoming.Route(0, Speakers, true);
    incoming.Route(0, Headset, false);
    ExpectHeard(Hear({0}), false, true);
    EXPECT_EQ(events, std::vector<std::string>{"started 0"});
    incoming.Leave(0);
    EXPECT_EQ(events.back(), "stopped 0");
    ExpectHeard(Hear({0}), false, false);
}

TEST_F(IncomingVoiceTest, OneChannelInTwoRoomsIsHeardOnceAtAllOutputsOfBoth) {
    incoming.Join(1, Tower);
    incoming.Join(2, Tower);
    incoming.Route(1, Headset, true);
    incoming.Route(2, Headset, true);
    incoming.Route(2, Speakers, true);
    ExpectHeard(Hear({1, 2}), true, true);
    EXPECT_EQ(events, (std::vector<std::string>{"started 1", "started 2"})) << "each room for itself";
    incoming.Route(1, Headset, false);
    ExpectHeard(Hear({1, 2}), true, true);
    incoming.Route(2, Headset, false);
    ExpectHeard(Hear({1, 2}), false, true);
    incoming.Leave(1);
    ExpectHeard(Hear({2}), false, true);
    incoming.Join(0, Tower);
    ExpectHeard(Hear({0, 2}), false, true);
    incoming.Join(0, Ground);
    incoming.Route(0, Headset, true);
    ExpectHeard(Hear({0, 2}), true, true);
}

TEST_F(IncomingVoiceTest, WhoGoesIsSilentAtOnce) {
    incoming.Join(0, Tower);
    incoming.Route(0, Headset, true);
    ExpectHeard(Hear({0}), true, false);
    incoming.Forget(0, 7);
    EXPECT_EQ(events, (std::vector<std::string>{"started 0", "stopped 0"}));
    std::vector<float> rest;
    for (std::size_t block = 0; block < Blocks; ++block) {
        speech::Block taken;
        incoming.Take(Headset, taken);
        rest.insert(rest.end(), taken.begin(), taken.end());
    }
    EXPECT_LT(ToneAmplitude(rest, Hertz), 0.03);
}

}  // namespace
}  // namespace orvelle
