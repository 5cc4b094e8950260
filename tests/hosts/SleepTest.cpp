// A computer that sleeps: everything on it stands still.
#include <csignal>

#include "tests/hosts/HostsRig.h"

namespace orvelle::hosts {
namespace {

constexpr long long Slept = 20 * Second;

class SleepTest : public HostsTest {
protected:
    PanelThere& watcher = AddPanel(1);
    PanelThere& heir = AddPanel(3);
    PanelThere& sleeper = AddPanel(2);
};

TEST_F(SleepTest, AHolderThatSleepsLosesTheRoleAndWakesWithNothingHeld) {
    BringSimulator();
    ASSERT_TRUE(Until([this] { return HaveLinks(); }));
    const Long held = mqtt::RecordId(2, 1), inherited = mqtt::RecordId(3, 1);
    sleeper.Say(std::string("want ") + Role);
    ASSERT_TRUE(Until([&] { return AllHave(held); }));
    heir.Say(std::string("want ") + Role);
    PressTalkKey();
    ASSERT_TRUE(Until([&] { return sleeper.Holds(TalkKey) && heir.Holds(TalkKey); }));

    const long long begin = Now();
    sleeper.Process.Kill(SIGSTOP);
    ASSERT_TRUE(Until([&] { return watcher.Holders(Role) == std::set{inherited} && heir.HasOwn(Role); }));
    const long long gone = *watcher.Told("removed " + std::to_string(held), begin) - begin;
    Print("the sleeper's record is gone elsewhere", gone);
    EXPECT_LT(gone, 5 * Second);
    Let(begin + Slept / 2 - Now());
    ReleaseTalkKey();
    Let(begin + Slept - Now());

    const long long awake = Now();
    sleeper.Process.Kill(SIGCONT);
    ASSERT_TRUE(Until([&] { return sleeper.HoldsNothing(); }));
    Print("it lets go when it wakes", *sleeper.Told(std::string("up ") + TalkKey, awake) - awake);
    ASSERT_TRUE(Until([&] { return IsAllRight(inherited); }));
    Print("all agree on one holder after it woke", Now() - awake);
    EXPECT_TRUE(sleeper.HoldsNothing());
    PressTalkKey();
    EXPECT_TRUE(Until([&] { return sleeper.Holds(TalkKey) && heir.Holds(TalkKey); }));
    ReleaseTalkKey();
    EXPECT_TRUE(Until([&] { return sleeper.HoldsNothing() && heir.HoldsNothing() && IsAllRight(inherited); }));
}

}  // namespace
}  // namespace orvelle::hosts
