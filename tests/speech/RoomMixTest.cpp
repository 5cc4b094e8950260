// Who is kept of a room's speakers, whatever a server says.
#include "adapters/speech/RoomMix.h"

#include <gtest/gtest.h>

#include <random>

#include "tests/speech/Goertzel.h"
#include "tests/speech/MixRig.h"

namespace orvelle::speech {

namespace {

constexpr double EveryVoice = -1000;

class RoomMixTest : public testing::Test {
protected:
    RoomMixTest() { room.Route(true); }
    void Say(std::uint32_t speaker, std::uint64_t sequence, bool isLast = false) {
        room.Put({speaker, sequence, tone[sequence % tone.size()].Opus, isLast});
    }
    Sound Take(std::size_t blocks = 1) {
        Sound heard;
        for (std::size_t block = 0; block < blocks; ++block) {
            Block voices = Silence;
            Block tones = Silence;
            room.AddTo(voices, tones, EveryVoice);
            heard.insert(heard.end(), voices.begin(), voices.end());
        }
        return heard;
    }

    const std::vector<SentPacket> tone = Encode(Tone(1000, 0.3, 1000));
    RoomMix room;
};

TEST_F(RoomMixTest, WhoIsSilentForASecondIsPutAway) {
    Say(1, 0);
    Say(1, 1, true);
    Take(2);
    EXPECT_FALSE(Take(99).empty());
    EXPECT_EQ(room.Speakers(), 1);
    Take(1);
    EXPECT_EQ(room.Speakers(), 0);
}

TEST_F(RoomMixTest, OneMoreTakesThePlaceOfWhoIsSilentLongest) {
    for (std::uint32_t speaker = 0; speaker < MostSpeakers; ++speaker) {
        Say(speaker, 0, speaker == 5 || speaker == 7);
        Take();
    }
    for (std::uint64_t sequence = 1; sequence < 20; ++sequence) {
        for (std::uint32_t speaker = 0; speaker < MostSpeakers; ++speaker) {
            if (speaker != 5 && (speaker != 7 || sequence < 10)) Say(speaker, sequence, speaker == 7 && sequence == 9);
        }
        Take();
    }
    Say(100, 0);
    EXPECT_EQ(room.Speakers(), MostSpeakers);
    for (std::uint32_t speaker = 0; speaker < MostSpeakers; ++speaker) room.Forget(speaker == 5 ? 0 : speaker);
    EXPECT_EQ(room.Speakers(), 1) << "speaker 5 was put away, speaker 100 is left";
}

TEST_F(RoomMixTest, AnyNumberOfSpeakersTakesBoundedRoom) {
    for (std::uint32_t speaker = 0; speaker < 3000; ++speaker) {
        Say(speaker * 1431655765U, speaker);
        if (speaker % 100 == 0) Take();
        ASSERT_LE(room.Speakers(), MostSpeakers);
    }
    Take(120);
    EXPECT_EQ(room.Speakers(), 0);
}

TEST_F(RoomMixTest, OneIsHeardWhileGarbageComesFromOthers) {
    std::mt19937 dice(3);
    Sound heard;
    for (std::uint64_t sequence = 0; sequence < 200; ++sequence) {
        Say(1, sequence);
        for (std::uint32_t speaker = 2; speaker < 10; ++speaker) {
            std::vector<std::uint8_t> data(dice() % 3 == 0 ? 0 : 1, 0xff);
            room.Put({speaker, dice(), data, dice() % 2 == 0});
        }
        const Sound block = Take();
        heard.insert(heard.end(), block.begin(), block.end());
    }
    EXPECT_GT(ToneAmplitude(Blocks(heard, 50, 150), 1000), 0.2);
}

}  // namespace

}  // namespace orvelle::speech
