// What a network loses is restored from what comes after it: lost are frames on either half of the way, as the relay
// counts them; restored by the codec's own repair are those that the listener's engine counts.
#include <iostream>
#include <sstream>

#include "tests/heard/EngineRig.h"
#include "tests/heard/RelayThread.h"
#include "tests/speech/VoicePath.h"

namespace orvelle::heard {

using linux::WaitUntil;
using mumble::VoiceRelay;

namespace {

constexpr int LossPercent = 5;         // each way
constexpr unsigned long EnoughLost = 150;  // a tenth of so many frames, as both halves lose

struct Counts {
    double Played = 0;
    double Restored = 0;
    double Concealed = 0;
};

class LossTest : public EngineRig {
protected:
    unsigned long Lost() {
        return relay.Ask<unsigned long>([](VoiceRelay& at) { return at.Lost; });
    }
    // In the headset.
    static Counts CountOf(Trial& trial) {
        trial.Say("count 0");
        std::istringstream line(trial.Line("counted "));
        std::string word;
        Counts counts;
        line >> word >> counts.Played >> counts.Restored >> counts.Concealed;
        return counts;
    }

    RelayThread relay{server.Port()};
};

}  // namespace

TEST_F(LossTest, MostOfWhatIsLostIsRestored) {
    Trial speaker(0);
    Trial listener(1);
    ASSERT_TRUE(speaker.Join(0, relay.Room("loss"))) << speaker.Told();
    ASSERT_TRUE(listener.Join(0, relay.Room("loss"))) << listener.Told();
    probe.Record(Ear(1));
    probe.Play(Mouth(0), speech::Vowels(1000), pulse::Playing::AgainAndAgain);
    speaker.Say("mute 0 0");
    ASSERT_TRUE(WaitUntil([this] { return IsHeardNow(Ear(1), BurstHertz); }));
    const Counts before = CountOf(listener);
    relay.Ask<void>([](VoiceRelay& at) { at.LossPercent = LossPercent; });
    ASSERT_TRUE(WaitUntil([this] { return Lost() >= EnoughLost; }));
    relay.Ask<void>([](VoiceRelay& at) { at.LossPercent = 0; });
    const double played = CountOf(listener).Played;
    ASSERT_TRUE(WaitUntil([&] { return CountOf(listener).Played > played + 100; }));
    const Counts after = CountOf(listener);
    const double restored = after.Restored - before.Restored;
    const double concealed = after.Concealed - before.Concealed;
    std::cout << LossPercent << " % loss each way: " << Lost() << " packets lost, pings among them; "
              << after.Played - before.Played << " frames played, " << restored << " restored, " << concealed
              << " made up: restored " << 100 * restored / static_cast<double>(Lost()) << " %\n";
    EXPECT_GE(restored, 0.6 * static_cast<double>(Lost()));
    EXPECT_TRUE(IsHeardNow(Ear(1), BurstHertz));
}

}  // namespace orvelle::heard
