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
constexpr double DelayWanted = 150;       // milliseconds, which a busy machine keeps and a backlog does not
constexpr unsigned long FewBytes = 8000;  // of the tunnel in two seconds; voice would be twice as many

class SuspensionTest : public EngineRig {
protected:
    // The server looks every 15 seconds who was silent for more than these five.
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
    static bool Works(Trial& trial) {
        trial.Say("works");
        return trial.Line("works") == "works 1 1 1";
    }
    // The next bursts; once more where a busy machine let them pass late, and whatever works goes on doing so.
    HeardBursts HeardNow(Trial& woken) {
        HeardBursts heard;
        for (int tries = 0; tries < 5 && !IsWell(heard); ++tries) {
            EXPECT_TRUE(WaitUntil([&] { return Works(woken); }));
            probe.Take(Microphone(0));
            probe.Take(Ear(1));
            EXPECT_TRUE(WaitUntil([&] {
                heard = Compare(probe.Recorded(Microphone(0)), probe.Recorded(Ear(1)));
                return heard.Spoken >= 5;
            }));
        }
        EXPECT_TRUE(IsWell(heard) && Works(woken)) << heard.Text();
        return heard;
    }
    static bool IsWell(const HeardBursts& heard) {
        return !heard.Delays.empty() && heard.Lost == 0 && heard.Part(0.25) < DelayWanted;
    }
    static int TimesTold(const Trial& trial, const std::string& line) {
        const std::string told = "\n" + trial.Told();
        int times = 0;
        for (std::size_t at = told.find("\n" + line); at != told.npos; at = told.find("\n" + line, at + 1)) ++times;
        return times;
    }
    // When it woke up.
    static Moment Sleep(Trial& trial) {
        trial.Kill(SIGSTOP);
        std::this_thread::sleep_for(ShortSleep);
        trial.Kill(SIGCONT);
        return std::chrono::steady_clock::now();
    }

    RelayThread relay{server.Port()};
    Trial speaker{0};
    Trial listener{1};
};

}  // namespace

TEST_F(SuspensionTest, NothingOldIsHeardAndNobodyIsThrownOutForGood) {
    ASSERT_NO_FATAL_FAILURE(JoinAndHear());
    for (Trial* const who : {&listener, &speaker}) {
        const Moment woken = Sleep(*who);
        ASSERT_TRUE(WaitUntil([&] { return std::chrono::steady_clock::now() > woken + WantedWithin; }));
        const unsigned long before = Tunnelled();
        const HeardBursts heard = HeardNow(*who);
        std::cout << (who == &listener ? "listener" : "speaker") << " slept three seconds: " << heard.Text() << '\n';
        EXPECT_LT(Tunnelled() - before, FewBytes) << "UDP is not used any more";
        EXPECT_EQ(TimesTold(*who, "left"), 0) << who->Told();
        EXPECT_EQ(TimesTold(*who, "status 0 In "), 1) << who->Told();
    }

    listener.Kill(SIGSTOP);
    ASSERT_TRUE(server.HasLogged("Timeout", 3));
    const Moment woken = std::chrono::steady_clock::now();
    listener.Kill(SIGCONT);
    ASSERT_TRUE(listener.Await("status 0 Reconnecting") && listener.Await("audio 0")) << listener.Told();
    std::cout << "slept until the server gave it up: somebody talks again after "
              << MillisecondsBetween(woken, std::chrono::steady_clock::now()) << " ms, ";
    ASSERT_TRUE(WaitUntil([&] { return std::chrono::steady_clock::now() > woken + WantedWithin; }));
    const HeardBursts heard = HeardNow(listener);
    std::cout << heard.Text() << '\n';
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
