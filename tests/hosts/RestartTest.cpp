// A broker that ends again and again.
#include <csignal>

#include "tests/hosts/HostsRig.h"

namespace orvelle::hosts {
namespace {

constexpr int Restarts = 100;
constexpr const char* OtherRole = "RWCom1";

class RestartTest : public HostsTest {
protected:
    RestartTest() {
        BringPlayedSimulator();
        EXPECT_TRUE(Until([this] { return HaveLinks(); }));
        two.Say(std::string("want ") + Role);
        three.Say(std::string("want ") + OtherRole);
        EXPECT_TRUE(Until([this] { return AllHave(Id) && AllHave(OtherId, OtherRole); }));
        three.Say(std::string("want ") + Role);
        two.Say(std::string("want ") + OtherRole);
    }

    // Each panel writes to its own record, and one to that of the other.
    void Write(int value) {
        const std::string text = std::to_string(value);
        two.Say(std::string("set ") + Role + " 1 " + text);
        three.Say(std::string("set ") + OtherRole + " 1 " + text);
        played->Say((value % 2 == 0 ? "press " : "release ") + std::string(TalkKey));
        played->Say("fly ABC" + text + " 118.300");
    }
    bool HaveValue(int value) {
        return watcher.Value(Id, 1) == value && three.Value(Id, 1) == value && watcher.Value(OtherId, 1) == value &&
               two.Value(OtherId, 1) == value;
    }

    static constexpr Long Id = mqtt::RecordId(2, 1);
    static constexpr Long OtherId = mqtt::RecordId(3, 1);
    PanelThere& watcher = AddPanel(1);
    PanelThere& two = AddPanel(2);
    PanelThere& three = AddPanel(3);
};

TEST_F(RestartTest, AHundredRestartsUnderTrafficLeaveEveryRecordRight) {
    int value = 0;
    long long worst = 0;
    const long long first = Now();
    for (int restart = 1; restart <= Restarts; ++restart) {
        const long long begin = Now();
        broker->Kill(restart % 2 == 0 ? SIGKILL : SIGTERM);
        for (int turn = 0; turn < 4; ++turn) Write(++value);
        broker->Wait();
        StartBroker();
        while (!HaveLinks() || !watcher.Told("framework up", begin) || !two.Told("framework up", begin) ||
               !three.Told("framework up", begin)) {
            Write(++value);
            Let(Second / 50);
            ASSERT_LT(Now() - begin, 30 * Second) << "restart " << restart;
        }
        worst = std::max(worst, Now() - begin);
    }
    Print("a restart, on average", (Now() - first) / Restarts);
    Print("a restart, at worst", worst);
    two.Say(std::string("set ") + OtherRole + " 2 77");
    value += 2 - value % 2;
    Write(value);
    EXPECT_TRUE(Until([&] {
        return HaveValue(value) && three.TimesTold("value " + std::to_string(OtherId) + " 2 77") == 1 &&
               IsAllRight(Id) && AllHave(OtherId, OtherRole) &&
               std::ranges::all_of(panels, [&](const PanelThere& each) {
                   return each.Holds(TalkKey) && each.Session() == "ABC" + std::to_string(value) + " 118.300";
               });
    }));
    played->Say(std::string("release ") + TalkKey);
    EXPECT_TRUE(Until(
        [this] { return std::ranges::all_of(panels, [](const PanelThere& each) { return each.HoldsNothing(); }); }));
    Let(4 * Second);
    EXPECT_TRUE(IsAllRight(Id) && AllHave(OtherId, OtherRole) && HaveValue(value));
    for (const PanelThere& panel : panels)
        EXPECT_EQ(panel.TimesTold("removed"), 0U) << "no record was ever counted as gone, so no role moved";
}

}  // namespace
}  // namespace orvelle::hosts
