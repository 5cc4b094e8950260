// The rig proves itself: two stock clients hear each other over a real voice server and a real sound server.
#include "tests/heard/StockClient.h"

#include <gtest/gtest.h>

#include <iostream>
#include <thread>

#include "tests/heard/Bursts.h"
#include "tests/heard/SoundOfComputers.h"
#include "tests/linux/WaitUntil.h"
#include "tests/mumble/VoiceServerRig.h"
#include "tests/pulse/SoundProbe.h"

namespace orvelle::heard {

using linux::WaitUntil;

namespace {

StockUser UserOf(int computer, const mumble::VoiceServerRig& server) {
    return {.Name = "stock" + std::to_string(computer),
            .Host = server.Host(),
            .Port = server.Port(),
            .Channel = "",
            .Microphone = SoundOfComputers::Microphone(computer),
            .Output = SoundOfComputers::Output(computer)};
}

class StockClientTest : public testing::TestWithParam<int> {
protected:
    SoundOfComputers sounds;
    mumble::VoiceServerRig server;
};

}  // namespace

TEST_P(StockClientTest, HearsAnother) {
    // One after the other: of two that start at once, one may open no output.
    StockClient first(UserOf(0, server));
    ASSERT_TRUE(server.HasLogged("Authenticated", 1)) << first.Said();
    StockClient second(UserOf(1, server));
    ASSERT_TRUE(server.HasLogged("Authenticated", 2)) << second.Said();
    pulse::SoundProbe probe;
    const std::string mouth = SoundOfComputers::Mouth(GetParam());
    const std::string microphone = SoundOfComputers::Microphone(GetParam());
    const std::string ear = SoundOfComputers::Ear(1 - GetParam());
    probe.Record(microphone);
    probe.Record(ear);
    probe.Play(mouth, pulse::Burst(BurstHertz, BurstMilliseconds, BurstPeriod), pulse::Playing::AgainAndAgain);
    ASSERT_TRUE(WaitUntil([&] { return probe.Recorded(ear).Sounds().size() >= 3; }))
        << first.Said() << second.Said() << server.Log();
    probe.Take(ear);
    probe.Take(microphone);
    HeardBursts bursts;
    ASSERT_TRUE(WaitUntil([&] {
        bursts = Compare(probe.Recorded(microphone), probe.Recorded(ear));
        return bursts.Spoken >= 10;
    }));
    std::cout << "stock client to stock client: " << bursts.Text() << '\n';
    EXPECT_TRUE(bursts.MostWereHeard());
    EXPECT_LT(bursts.Median(), 300);
    EXPECT_GT(probe.Recorded(ear).ToneLevel(BurstHertz), probe.Recorded(ear).ToneLevel(1400) + 20);
}

INSTANTIATE_TEST_SUITE_P(Of, StockClientTest, testing::Values(0, 1));

}  // namespace orvelle::heard
