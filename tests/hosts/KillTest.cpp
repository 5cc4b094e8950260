// Each program of the set-up killed, and stopped for six seconds, while push-to-talk is held.
#include <algorithm>
#include <csignal>

#include "tests/hosts/HostsRig.h"

namespace orvelle::hosts {
namespace {

constexpr long long Stopped = 6 * Second;

class KillTest : public HostsTest {
protected:
    KillTest() {
        BringSimulator();
        EXPECT_TRUE(Until([this] { return HaveLinks(); }));
        holder->Say(std::string("want ") + Role);
        EXPECT_TRUE(Until([this] { return AllHave(Held); }));
        heir.Say(std::string("want ") + Role);
        PressTalkKey();
        EXPECT_TRUE(Until([this] { return HoldsEverywhere(); }));
    }

    bool HoldsEverywhere() { return watcher.Holds(TalkKey) && holder->Holds(TalkKey) && heir.Holds(TalkKey); }
    bool HoldsNowhere() { return watcher.HoldsNothing() && holder->HoldsNothing() && heir.HoldsNothing(); }
    void PrintLettingGo(const PanelThere& panel, long long begin) {
        const auto up = panel.Told(std::string("up ") + TalkKey, begin);
        ASSERT_TRUE(up);
        Print("a panel lets go", *up - begin);
        EXPECT_LT(*up - begin, Second);
    }
    // Pressed and let go once more, at all panels.
    void TryTalkKey() {
        PressTalkKey();
        EXPECT_TRUE(Until([this] { return HoldsEverywhere(); }));
        ReleaseTalkKey();
        EXPECT_TRUE(Until([this] { return HoldsNowhere(); }));
    }
    static constexpr Long Held = mqtt::RecordId(2, 1);
    static constexpr Long Inherited = mqtt::RecordId(3, 1);
    PanelThere& watcher = AddPanel(1);
    PanelThere& heir = AddPanel(3);
    PanelThere* holder = &AddPanel(2);
};

using KillPanelTest = KillTest;
using KillSimulatorTest = KillTest;
using KillBrokerTest = KillTest;

TEST_F(KillPanelTest, AKilledHolderLosesTheRoleAndFindsItHeldWhenItIsBack) {
    const long long begin = Now();
    panels.pop_back();
    ASSERT_TRUE(Until([this] { return AllHave(Inherited); }));
    const long long taken = *watcher.Told("foreign " + std::to_string(Inherited) + " " + Role, begin) - begin;
    Print("the role is taken over", taken);
    EXPECT_LT(taken, Second) << "the broker tells of the end at once";
    holder = &AddPanel(2);
    holder->Say(std::string("want ") + Role);
    ASSERT_TRUE(Until([this] { return IsAllRight(Inherited) && HoldsEverywhere(); }));
    ReleaseTalkKey();
    EXPECT_TRUE(Until([this] { return HoldsNowhere(); }));
    TryTalkKey();
    EXPECT_TRUE(IsAllRight(Inherited));
}

TEST_F(KillPanelTest, AHolderThatIsStoppedLosesTheRoleAndHoldsNothingAfterwards) {
    const long long begin = Now();
    holder->Process.Kill(SIGSTOP);
    ASSERT_TRUE(Until([this] { return watcher.Holders(Role) == std::set{Inherited} && heir.HasOwn(Role); }));
    const long long taken = *watcher.Told("foreign " + std::to_string(Inherited) + " " + Role, begin) - begin;
    Print("the role is taken over", taken);
    EXPECT_LT(taken, 5 * Second);
    ReleaseTalkKey();
    Let(begin + Stopped - Now());
    const long long end = Now();
    holder->Process.Kill(SIGCONT);
    ASSERT_TRUE(Until([this] { return holder->HoldsNothing(); }));
    Print("it lets go when it goes on", *holder->Told(std::string("up ") + TalkKey, end) - end);
    EXPECT_TRUE(Until([this] { return IsAllRight(Inherited) && HoldsNowhere(); }));
    TryTalkKey();
    EXPECT_TRUE(IsAllRight(Inherited));
}

TEST_F(KillSimulatorTest, AKilledSimulatorsProgramHoldsNothingAnywhere) {
    const long long begin = Now();
    simulator->Kill(SIGKILL);
    ASSERT_TRUE(Until([this] { return HoldsNowhere(); }));
    for (const PanelThere& panel : panels) PrintLettingGo(panel, begin);
    simulator->Wait();
    ReleaseTalkKey();
    StartSimulator();
    ASSERT_TRUE(Until([this] { return IsAllRight(Held); }));
    EXPECT_EQ(watcher.TimesTold("removed"), 0U) << "the broker's end moves no role";
    TryTalkKey();
}

TEST_F(KillSimulatorTest, AStoppedSimulatorsProgramHoldsNothingAnywhere) {
    const long long begin = Now();
    simulator->Kill(SIGSTOP);
    ASSERT_TRUE(Until([this] { return HoldsNowhere(); }));
    for (const PanelThere& panel : panels) PrintLettingGo(panel, begin);
    ASSERT_TRUE(Until([this] { return watcher.HasNoLink() && holder->HasNoLink() && heir.HasNoLink(); }));
    Let(begin + Stopped - Now());
    simulator->Kill(SIGCONT);
    EXPECT_TRUE(Until([this] { return IsAllRight(Held) && HoldsEverywhere(); })) << "it is held all the time there";
    ReleaseTalkKey();
    EXPECT_TRUE(Until([this] { return HoldsNowhere(); }));
    TryTalkKey();
}

TEST_F(KillBrokerTest, AKilledBrokerIsStartedAgainAndMovesNoRole) {
    const long long begin = Now();
    const pid_t before = BrokerOfSimulator();
    ASSERT_GT(before, 0);
    kill(before, SIGKILL);
    ASSERT_TRUE(Until([this, begin] {
        return std::ranges::all_of(
            panels, [&](const PanelThere& each) { return each.Told("framework lost", begin).has_value(); });
    }));
    for (const PanelThere& panel : panels) PrintLettingGo(panel, begin);
    ASSERT_TRUE(Until([this] { return IsAllRight(Held) && HoldsEverywhere(); }));
    Print("all is as before", Now() - begin);
    EXPECT_NE(BrokerOfSimulator(), before);
    ReleaseTalkKey();
    EXPECT_TRUE(Until([this] { return HoldsNowhere(); }));
    Let(4 * Second);
    EXPECT_TRUE(IsAllRight(Held)) << "nothing that was known counts as missing later";
    for (const PanelThere& panel : panels) EXPECT_EQ(panel.TimesTold("removed"), 0U);
}

TEST_F(KillBrokerTest, AStoppedBrokerHoldsNothingAnywhere) {
    const long long begin = Now();
    const pid_t stopped = BrokerOfSimulator();
    ASSERT_GT(stopped, 0);
    kill(stopped, SIGSTOP);
    ASSERT_TRUE(Until([this] { return HoldsNowhere(); }));
    for (const PanelThere& panel : panels) PrintLettingGo(panel, begin);
    ReleaseTalkKey();
    Let(begin + Stopped - Now());
    const long long end = Now();
    kill(stopped, SIGCONT);
    const auto isSettled = [this] {
        return HaveLinks() && HoldsNowhere() && Holder(Role, {&watcher, holder, &heir}) != 0;
    };
    ASSERT_TRUE(Until(isSettled));
    Print("all agree when it goes on", Now() - end);
    TryTalkKey();
    Let(4 * Second);
    EXPECT_TRUE(isSettled());
}

}  // namespace
}  // namespace orvelle::hosts
