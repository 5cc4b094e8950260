// Our engine over networks as they are: nothing goes out while no key is down; losses, jitter and a UDP that is
// blocked.
#include <iostream>

#include "tests/heard/EngineRig.h"
#include "tests/heard/RelayThread.h"

namespace orvelle::heard {

using linux::WaitUntil;
using mumble::VoiceRelay;

namespace {

// More packets than pings are in the time of the bursts: one each two seconds and direction.
constexpr unsigned long FewPackets = 60;

class NetworkTest : public EngineRig {
protected:
    void Join() {
        ASSERT_TRUE(speaker.Join(0, relay.Room("far"))) << speaker.Told();
        ASSERT_TRUE(listener.Join(0, relay.Room("far"))) << listener.Told();
    }
    unsigned long Passed() {
        return relay.Ask<unsigned long>([](VoiceRelay& at) { return at.Passed; });
    }

    RelayThread relay{server.Port()};
    Trial speaker{0};
    Trial listener{1};
};

}  // namespace

TEST_F(NetworkTest, NoVoiceLeavesWhileNoKeyIsDown) {
    ASSERT_NO_FATAL_FAILURE(Join());
    probe.Record(Microphone(0));
    probe.Record(Ear(1));
    probe.Play(Mouth(0), pulse::Tone(BurstHertz, 1000), pulse::Playing::AgainAndAgain);
    const unsigned long before = Passed();
    const auto hasSpoken = [this](std::size_t seconds) {
        return WaitUntil([&] { return probe.Recorded(Microphone(0)).Samples().size() > seconds * 48000; });
    };
    ASSERT_TRUE(hasSpoken(3));
    const unsigned long whileClosed = Passed() - before;
    EXPECT_LT(whileClosed, FewPackets);
    EXPECT_TRUE(probe.Recorded(Ear(1)).Sounds().empty());
    speaker.Say("mute 0 0");
    ASSERT_TRUE(hasSpoken(6));
    EXPECT_GT(Passed() - before - whileClosed, 200u);
    // Nobody closes the key of one who is killed: nothing is sent all the same.
    speaker.Kill(SIGKILL);
    ASSERT_TRUE(listener.Await("quiet 0"));
    const unsigned long afterKill = Passed();
    ASSERT_TRUE(hasSpoken(8));
    EXPECT_LT(Passed() - afterKill, FewPackets);
    std::cout << "packets both ways, pings among them: " << whileClosed << " in three seconds with the key up\n";
}

TEST_F(NetworkTest, LossesAreMended) {
    ASSERT_NO_FATAL_FAILURE(Join());
    speaker.Say("mute 0 0");
    ASSERT_TRUE(WaitUntil([this] { return Passed() > 20; }));
    relay.Ask<void>([](VoiceRelay& at) { at.LossPercent = 5; });
    const HeardBursts heard = Hear(0, 1, 12);
    std::cout << "5 % loss each way: " << heard.Text() << '\n';
    EXPECT_EQ(heard.Lost, 0);
    EXPECT_LE(heard.OursInTheMedian(), MostOfOursMended);
}

TEST_F(NetworkTest, JitterLosesNothing) {
    ASSERT_NO_FATAL_FAILURE(Join());
    speaker.Say("mute 0 0");
    relay.Ask<void>([](VoiceRelay& at) { at.MostDelay = 60; });
    const HeardBursts heard = Hear(0, 1, 12);
    std::cout << "60 ms of jitter each way: " << heard.Text() << '\n';
    EXPECT_EQ(heard.Lost, 0);
}

TEST_F(NetworkTest, BlockedUdpIsGoneAroundAndComeBackTo) {
    ASSERT_NO_FATAL_FAILURE(Join());
    speaker.Say("mute 0 0");
    Hear(0, 1, 3);
    const auto tunnelled = [this] { return relay.Ask<unsigned long>([](VoiceRelay& at) { return at.Tunnelled; }); };
    relay.Ask<void>([](VoiceRelay& at) { at.IsBlocked = true; });
    const pulse::Moment blocked = std::chrono::steady_clock::now();
    probe.Play(Mouth(0), pulse::Burst(BurstHertz, BurstMilliseconds, BurstPeriod), pulse::Playing::AgainAndAgain);
    const unsigned long before = tunnelled();
    ASSERT_TRUE(WaitUntil([&] { return tunnelled() > before + 20000; }));
    probe.Take(Ear(1));
    ASSERT_TRUE(WaitUntil([&] { return probe.Recorded(Ear(1)).Sounds().size() >= 3; }));
    std::cout << "UDP blocked: heard through the tunnel after "
              << MillisecondsBetween(blocked, probe.Recorded(Ear(1)).Sounds().front().first) << " ms at most\n";
    relay.Ask<void>([](VoiceRelay& at) { at.IsBlocked = false; });
    const pulse::Moment opened = std::chrono::steady_clock::now();
    const unsigned long passed = Passed();
    ASSERT_TRUE(WaitUntil([&] { return Passed() > passed + 300; }));
    std::cout << "UDP opened: used again after " << MillisecondsBetween(opened, std::chrono::steady_clock::now()) - 1500
              << " ms\n";
}

}  // namespace orvelle::heard
