// A computer behind a bad stretch of the network.
#include "tests/hosts/HostsRig.h"

namespace orvelle::hosts {
namespace {

constexpr int Strokes = 40;

class LossTest : public HostsTest {
protected:
    PanelThere& watcher = AddPanel(1);
    PanelThere& near = AddPanel(2);
};

TEST_F(LossTest, FivePercentLossAndFiftyMillisecondsDelayLeaveAllRight) {
    ProgramThere relay(three, three.TakeBadWay(LOSES_FRAMES, 5, 50));
    BringPlayedSimulator();
    PanelThere& far = AddPanel(3);
    ASSERT_TRUE(Until([this] { return HaveLinks(); }));
    far.Say(std::string("want ") + Role);
    const Long id = mqtt::RecordId(3, 1);
    ASSERT_TRUE(Until([&] { return AllHave(id); }));
    near.Say(std::string("want ") + Role);

    std::vector<long long> presses, releases;
    for (int stroke = 1; stroke <= Strokes; ++stroke) {
        const std::string value = std::to_string(stroke);
        long long begin = Now();
        played->Say(std::string("press ") + TalkKey);
        ASSERT_TRUE(Until([&] { return far.Holds(TalkKey) && near.Holds(TalkKey); })) << "stroke " << stroke;
        presses.push_back(Now() - begin);
        played->Say("fly ABC" + value + " 118." + value);
        far.Say(std::string("set ") + Role + " 1 " + value);
        near.Say(std::string("set ") + Role + " 2 " + value);
        Let(Second / 10);
        begin = Now();
        played->Say(std::string("release ") + TalkKey);
        ASSERT_TRUE(Until([&] { return far.HoldsNothing() && near.HoldsNothing(); })) << "stroke " << stroke;
        releases.push_back(Now() - begin);
    }
    for (std::vector<long long>* const times : {&presses, &releases}) {
        std::ranges::sort(*times);
        const std::string what = times == &presses ? "a press" : "a release";
        Print(what + " is told, median", (*times)[times->size() / 2]);
        Print(what + " is told, at worst", times->back());
    }
    const std::string last = std::to_string(Strokes);
    EXPECT_TRUE(Until([&] {
        return IsAllRight(id) && watcher.Value(id, 1) == Strokes && near.Value(id, 1) == Strokes &&
               watcher.Value(id, 2) == Strokes && far.Value(id, 2) == Strokes && far.HoldsNothing() &&
               std::ranges::all_of(
                   panels, [&](const PanelThere& each) { return each.Session() == "ABC" + last + " 118." + last; });
    }));
    EXPECT_GE(presses.front(), 50'000) << "the bad way is taken";
}

}  // namespace
}  // namespace orvelle::hosts
