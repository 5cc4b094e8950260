// A computer that is cut off from the others.
#include "tests/hosts/HostsTest.h"

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
    void TryCut(const std::function<void()>& cut, const std::function<void()>& heal) {
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

        const long long healed = Now();
        heal();
        ASSERT_TRUE(Until([&] { return IsAllRight(Inherited) && holder.Holds(TalkKey); }));
        Print("after the healing all agree on one holder", Now() - healed);
        ReleaseTalkKey();
        EXPECT_TRUE(Until([&] { return holder.HoldsNothing() && heir.HoldsNothing() && watcher.HoldsNothing(); }));
        EXPECT_TRUE(IsAllRight(Inherited));
    }

    static constexpr Long Held = mqtt::RecordId(2, 1);
    static constexpr Long Inherited = mqtt::RecordId(3, 1);
    PanelThere& watcher = AddPanel(1);
    PanelThere& holder = AddPanel(2);
    PanelThere& heir = AddPanel(3);
};

TEST_F(CutTest, AHolderWhoseLinkGoesDownLetsGoAndLosesTheRole) {
    TryCut([this] { two.CutLink(); }, [this] { two.HealLink(); });
}

TEST_F(CutTest, AHolderWhoseCableIsPulledLetsGoAndLosesTheRole) {
    TryCut([this] { two.PullCable(); }, [this] { two.PlugCable(); });
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
