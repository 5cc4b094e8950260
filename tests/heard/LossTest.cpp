// What a network loses is restored from what comes after it: lost are frames on either half of the way, as the relay
// counts them; restored by the codec's own repair are those that the listener's engine counts.
#include <iostream>
#include <sstream>

#include "tests/heard/EngineRig.h"
#include "tests/heard/RelayThread.h"
#include "tests/heard/Speech.h"

namespace orvelle::heard {

using linux::WaitUntil;
using mumble::VoiceRelay;

namespace {

constexpr int LossPercent = 5;             // each way
constexpr unsigned long EnoughLost = 100;  // about a tenth of the frames, as both halves lose
constexpr unsigned long ManyLost = 400;
constexpr double WantedShare = 0.6;

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
    const std::vector<float> speech = Speech();
    ASSERT_FALSE(speech.empty());
    probe.Play(Mouth(0), speech, pulse::Playing::AgainAndAgain);
    speaker.Say("mute 0 0");
    ASSERT_TRUE(WaitUntil([this] { return !probe.Recorded(Ear(1)).Sounds().empty(); }));
    const Counts before = CountOf(listener);
    relay.Ask<void>([](VoiceRelay& at) { at.LossPercent = LossPercent; });
    // Chance has its say: what does not yet suffice may with more of it.
    double restored = 0;
    const auto suffices = [&] {
        restored = CountOf(listener).Restored - before.Restored;
        return restored >= WantedShare * static_cast<double>(Lost());
    };
    EXPECT_TRUE(WaitUntil([&] { return Lost() >= EnoughLost && (suffices() || Lost() >= ManyLost); }) && suffices());
    const Counts after = CountOf(listener);
    std::cout << LossPercent << " % loss each way: " << Lost() << " packets lost, pings among them; "
              << after.Played - before.Played << " frames played, " << restored << " restored, "
              << after.Concealed - before.Concealed << " made up: restored "
              << 100 * restored / static_cast<double>(Lost()) << " %\n";
}

}  // namespace orvelle::heard
