// Our voice engine as it is heard: microphone to ear, over a real voice server and a real sound server.
#include "tests/heard/EngineRig.h"

#include <chrono>
#include <iostream>

#include "tests/heard/StockClient.h"

namespace orvelle::heard {

using linux::WaitUntil;
using pulse::Moment;
using pulse::Playing;
using pulse::Tone;

namespace {

constexpr int ManyMilliseconds = 1000;

class EngineTest : public EngineRig {};

}  // namespace

TEST_F(EngineTest, EveryBurstIsHeard) {
    Trial speaker(0);
    Trial listener(1);
    ASSERT_TRUE(speaker.Join(0, server.Room("122.8"))) << speaker.Told();
    ASSERT_TRUE(listener.Join(0, server.Room("122.8"))) << listener.Told();
    speaker.Say("mute 0 0");
    const HeardBursts heard = Hear(0, 1, 12);
    std::cout << "ours to ours: " << heard.Text() << '\n';
    EXPECT_EQ(heard.Lost, 0);
    EXPECT_LE(heard.OursInTheMedian(), MostOfOurs);
}

TEST_F(EngineTest, PressIsHeardAndReleaseIsSilence) {
    Trial speaker(0);
    Trial listener(1);
    ASSERT_TRUE(speaker.Join(0, server.Room("tower"))) << speaker.Told();
    ASSERT_TRUE(listener.Join(0, server.Room("tower"))) << listener.Told();
    probe.Play(Mouth(0), Tone(BurstHertz, 1000), Playing::AgainAndAgain);
    probe.Record(Ear(1));
    for (int press = 0; press < 5; ++press) {
        // What is spoken while no key is down is not heard.
        EXPECT_LT(probe.Take(Ear(1)).Level(), -60);
        const Moment pressed = std::chrono::steady_clock::now();
        speaker.Say("mute 0 0");
        ASSERT_TRUE(WaitUntil([&] { return !probe.Recorded(Ear(1)).Sounds().empty(); }));
        ASSERT_TRUE(listener.Await("audio 0"));
        const Moment heard = probe.Recorded(Ear(1)).Sounds().front().first;
        const Moment released = std::chrono::steady_clock::now();
        speaker.Say("mute 0 1");
        ASSERT_TRUE(WaitUntil([&] {
            const auto recorded = probe.Recorded(Ear(1));
            return recorded.Sounds().back().second <
                   recorded.At(recorded.Samples().size() - 1) - std::chrono::milliseconds(200);
        }));
        ASSERT_TRUE(listener.Await("quiet 0"));
        const Moment silent = probe.Take(Ear(1)).Sounds().back().second;
        std::cout << "press to sound " << MillisecondsBetween(pressed, heard) << " ms, release to silence "
                  << MillisecondsBetween(released, silent) << " ms\n";
        EXPECT_LT(MillisecondsBetween(pressed, heard), ManyMilliseconds);
        EXPECT_LT(MillisecondsBetween(released, silent), ManyMilliseconds);
    }
}

TEST_F(EngineTest, StockClientHearsUsAndWeHearIt) {
    Trial ours(0);
    ASSERT_TRUE(ours.Join(0, server.Room("unicom"))) << ours.Told();
    StockClient stock({.Name = "stock",
                       .Host = server.Host(),
                       .Port = server.Port(),
                       .Channel = "unicom",
                       .Microphone = Microphone(1),
                       .Output = SoundOfComputers::Output(1)});
    ASSERT_TRUE(server.HasLogged("Moved stock")) << stock.Said();
    const HeardBursts byUs = Hear(1, 0, 5);
    std::cout << "stock client to ours: " << byUs.Text() << '\n';
    ours.Say("mute 0 0");
    const HeardBursts byStock = Hear(0, 1, 5);
    std::cout << "ours to stock client: " << byStock.Text() << '\n';
    EXPECT_EQ(byUs.Lost, 0);
    EXPECT_EQ(byStock.Lost, 0);
}

}  // namespace orvelle::heard
