// A computer that is suspended and wakes up, as its engine has it: stopped in the middle of everything, for moments or
// for longer than the voice server waits for it. Nothing old is played then.
#include <csignal>
#include <iostream>
#include <thread>

#include "tests/heard/EngineRig.h"
#include "tests/heard/RelayThread.h"

namespace orvelle::heard {

using linux::WaitUntil;
using mumble::VoiceRelay;
using pulse::Moment;

namespace {

constexpr std::chrono::seconds ShortSleep{3};
constexpr std::chrono::seconds WantedWithin{2};
constexpr double DelayWanted = 150;  // milliseconds, which a busy machine keeps and a backlog does not
constexpr unsigned long FewBytes = 8000;  // of the tunnel in two seconds; voice would be twice as many

class SuspensionTest : public EngineRig {
protected:
    // The server gives up who is silent for five seconds; it looks every 15.
    SuspensionTest() : EngineRig(2, {.More = "timeout=5\n"}) {}

    void JoinAndHear() {
        ASSERT_TRUE(speaker.Join(0, relay.Room("sleep"))) << speaker.Told();
        for (int room = 0; room < 3; ++room)
            ASSERT_TRUE(listener.Join(room, relay.Room("sleep" + std::string(room, '+')))) << listener.Told();
        speaker.Say("mute 0 0");
        std::cout << "before: " << Hear(0, 1, 4).Text() << '\n';
        probe.Play(Mouth(0), pulse::Burst(BurstHertz, BurstMilliseconds, BurstPeriod), pulse::Playing::AgainAndAgain);
    }
    unsigned long Tunnelled() {
        return relay.Ask<unsigned long>([](VoiceRelay& at) { return at.Tunnelled; });
    }
    // The bursts from two seconds after a moment on: how much later they are heard.
    HeardBursts HeardSoonAfter(Moment woken) {
        HeardBursts heard;
        EXPECT_TRUE(WaitUntil([&] { return std::chrono::steady_clock::now() > woken + WantedWithin; }));
        probe.Take(Microphone(0));
        probe.Take(Ear(1));
        EXPECT_TRUE(WaitUntil([&] {
            heard = Compare(probe.Recorded(Microphone(0)), probe.Recorded(Ear(1)));
            return heard.Spoken >= 5;
        }));
        return heard;
    }
    static int TimesTold(const Trial& trial, const std::string& line) {
        const std::string told = "\n" + trial.Told();
        int times = 0;
        for (std::size_t at = told.find("\n" + line); at != told.npos; at = told.find("\n" + line, at + 1)) ++times;
        return times;
    }
    void Sleep(Trial& trial) {
        trial.Kill(SIGSTOP);
        std::this_thread::sleep_for(ShortSleep);
        trial.Kill(SIGCONT);
    }

    RelayThread relay{server.Port()};
    Trial speaker{0};
    Trial listener{1};
};

}  // namespace

TEST_F(SuspensionTest, AShortSleepIsSoonForgotten) {
    ASSERT_NO_FATAL_FAILURE(JoinAndHear());
    for (Trial* const who : {&listener, &speaker}) {
        Sleep(*who);
        const Moment woken = std::chrono::steady_clock::now();
        ASSERT_TRUE(WaitUntil([&] { return std::chrono::steady_clock::now() > woken + WantedWithin; }));
        const unsigned long before = Tunnelled();
        const HeardBursts heard = HeardSoonAfter(woken);
        std::cout << (who == &listener ? "listener" : "speaker") << " slept three seconds: " << heard.Text() << '\n';
        EXPECT_TRUE(heard.MostWereHeard());
        EXPECT_LT(heard.Part(0.25), DelayWanted);
        EXPECT_LT(Tunnelled() - before, FewBytes) << "UDP is not used any more";
        who->Say("works");
        ASSERT_TRUE(who->Await("works 1 1 1")) << who->Told();
        EXPECT_EQ(TimesTold(*who, "left"), 0) << who->Told();
    }
}

TEST_F(SuspensionTest, ALongSleepThrowsNobodyOutForGood) {
    ASSERT_NO_FATAL_FAILURE(JoinAndHear());
    listener.Kill(SIGSTOP);
    ASSERT_TRUE(server.HasLogged("Timeout", 3));
    listener.Kill(SIGCONT);
    const Moment woken = std::chrono::steady_clock::now();
    ASSERT_TRUE(listener.Await("audio 0")) << listener.Told();
    std::cout << "heard again after " << MillisecondsBetween(woken, std::chrono::steady_clock::now()) << " ms\n";
    const HeardBursts heard = HeardSoonAfter(woken);
    std::cout << "listener slept until the server had given it up: " << heard.Text() << '\n';
    EXPECT_TRUE(heard.MostWereHeard());
    EXPECT_LT(heard.Part(0.25), DelayWanted);
    listener.Say("works");
    ASSERT_TRUE(listener.Await("works 1 1 1")) << listener.Told();
    for (int room = 0; room < 3; ++room) {
        const std::string number = std::to_string(room);
        EXPECT_EQ(TimesTold(listener, "status " + number + " Reconnecting"), 1) << listener.Told();
        EXPECT_EQ(TimesTold(listener, "status " + number + " In "), 2) << listener.Told();
        // Where that took long it was left and joined, else neither.
        EXPECT_EQ(TimesTold(listener, "joined " + number), TimesTold(listener, "left " + number) + 1);
        EXPECT_LE(TimesTold(listener, "left " + number), 1);
    }
}

}  // namespace orvelle::heard
