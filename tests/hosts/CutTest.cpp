// A computer that is cut off from the others.
#include "tests/hosts/HostsRig.h"

namespace orvelle::hosts {
namespace {

class CutTest : public HostsTest {
protected:
    CutTest() {
        BringSimulator();
        EXPECT_TRUE(Until([this] { return HaveLinks(); }));
        holder.Say(std::string("want ") + Role);
        EXPECT_TRUE(Until([this] { return AllHave(Held); }));
        heir.Say(std::string("want ") + Role);
        PressTalkKey();
        EXPECT_TRUE(Until([this] { return holder.Holds(TalkKey) && heir.Holds(TalkKey); }));
    }

    // What must follow when the holder is cut off in some way.
    void TryCut(const std::function<void()>& cut, const std::function<void()>& heal, long long howLong) {
        const long long begin = Now();
        cut();
        ASSERT_TRUE(Until([&] { return holder.HoldsNothing(); }));
        const long long letGo = *holder.Told(std::string("up ") + TalkKey, begin) - begin;
        Print("the holder's side lets go after the cut", letGo);
        EXPECT_LT(letGo, Second) << "half a second on a machine that is not busy";
        ASSERT_TRUE(Until([&] { return watcher.Holders(Role) == std::set{Inherited} && heir.HasOwn(Role); }));
        const long long gone = *watcher.Told("removed " + std::to_string(Held), begin) - begin;
        const long long taken = *watcher.Told("foreign " + std::to_string(Inherited) + " " + Role, begin) - begin;
        Print("the holder's record is gone elsewhere", gone);
        Print("the role is taken over", taken);
        EXPECT_LT(taken, 5 * Second);
        EXPECT_TRUE(heir.Holds(TalkKey)) << "the others go on";

        Let(begin + howLong - Now());
        const long long healed = Now();
        heal();
        // Who of the two depends on whether the holder has noticed the cut.
        const auto agree = [this] { return Holder(Role, {&watcher, &holder, &heir}); };
        ASSERT_TRUE(Until([&] { return agree() != 0 && HaveLinks() && holder.Holds(TalkKey); }));
        Print("after the healing all agree on one holder", Now() - healed);
        ReleaseTalkKey();
        EXPECT_TRUE(Until([&] { return holder.HoldsNothing() && heir.HoldsNothing() && watcher.HoldsNothing(); }));
        Let(4 * Second);
        EXPECT_NE(holder.HasOwn(Role), heir.HasOwn(Role));
        EXPECT_NE(agree(), 0);
    }

    static constexpr Long Held = mqtt::RecordId(2, 1);
    static constexpr Long Inherited = mqtt::RecordId(3, 1);
    PanelThere& watcher = AddPanel(1);
    PanelThere& holder = AddPanel(2);
    PanelThere& heir = AddPanel(3);
};

TEST_F(CutTest, AHolderWhoseLinkGoesDownLetsGoAndLosesTheRole) {
    TryCut([this] { two.CutLink(); }, [this] { two.HealLink(); }, 0);
}

TEST_F(CutTest, AHolderWhoseCableIsPulledForLongFindsItsRoleHeld) {
    TryCut([this] { two.PullCable(); }, [this] { two.PlugCable(); }, 8 * Second);
    EXPECT_EQ(watcher.Holders(Role), std::set{Inherited}) << "the role moved once";
    EXPECT_EQ(watcher.TimesTold("removed"), 1U);
}

TEST_F(CutTest, TheSimulatorsComputerCutOffHoldsNothingElsewhere) {
    const long long begin = Now();
    one.PullCable();
    ASSERT_TRUE(Until([&] { return holder.HoldsNothing() && heir.HoldsNothing(); }));
    for (const PanelThere* const panel : {&holder, &heir}) {
        const long long letGo = *panel->Told(std::string("up ") + TalkKey, begin) - begin;
        Print("a panel lets go after the cut", letGo);
        EXPECT_LT(letGo, Second);
    }
    EXPECT_TRUE(watcher.Holds(TalkKey));
    ASSERT_TRUE(Until([&] { return holder.HasNoLink() && heir.HasNoLink(); }));
    one.PlugCable();
    const auto agree = [this] { return Holder(Role, {&watcher, &holder, &heir}) != 0; };
    ASSERT_TRUE(Until([&] { return HaveLinks() && holder.Holds(TalkKey) && heir.Holds(TalkKey) && agree(); }));
    ReleaseTalkKey();
    EXPECT_TRUE(Until([&] { return holder.HoldsNothing() && heir.HoldsNothing() && agree(); }));
}

}  // namespace
}  // namespace orvelle::hosts
