// A member of the set-up that floods it with messages.
#include <algorithm>

#include "tests/hosts/HostsRig.h"

namespace orvelle::hosts {
namespace {

constexpr int MessagesEachSecond = 10'000;
constexpr int Seconds = 10;

class FloodTest : public HostsTest {
protected:
    PanelThere& panel = AddPanel(2);
};

TEST_F(FloodTest, PushToTalkArrivesWhileAMemberFloods) {
    BringSimulator();
    ASSERT_TRUE(Until([this] { return HaveLinks(); }));
    panel.Say(std::string("want ") + Role);
    ASSERT_TRUE(Until([this] { return panel.HasOwn(Role); }));
    const std::vector<pid_t> processes{panel.Process.Id(), simulator->Id(), BrokerOfSimulator()};
    std::vector<long> before;
    for (const pid_t process : processes) before.push_back(MemoryOf(process));

    ProgramThere flood(three,
                       {FLOODS_BROKER, SetUpFileOf(4), std::to_string(MessagesEachSecond), std::to_string(Seconds)});
    const std::string all = "flooded " + std::to_string(MessagesEachSecond * Seconds);
    ASSERT_TRUE(Until([&] {
        flood.Take();
        return flood.Told("flooding").has_value();
    }));
    const long long begin = *flood.Told("flooding");
    std::vector<long long> delays;
    const auto stroke = [&](const char* move) {
        const long long moved = Now();
        *move == 'd' ? PressTalkKey() : ReleaseTalkKey();
        const std::string told = std::string(move) + " " + TalkKey;
        ASSERT_TRUE(Until([&] { return panel.Told(told, moved).has_value(); })) << told << " under the flood";
        delays.push_back(*panel.Told(told, moved) - moved);
    };
    const auto isOver = [&] {
        flood.Take();
        return flood.Told(all).has_value();
    };
    while (!isOver()) {
        ASSERT_NO_FATAL_FAILURE(stroke("down"));
        Let(Second / 10);
        ASSERT_NO_FATAL_FAILURE(stroke("up"));
        Let(Second / 10);
    }
    Print("the flood took", *flood.Told(all) - begin);
    std::ranges::sort(delays);
    Print("push-to-talk under the flood, median of " + std::to_string(delays.size()), delays[delays.size() / 2]);
    Print("push-to-talk under the flood, at worst", delays.back());
    EXPECT_GT(delays.size(), 20U);
    EXPECT_LT(delays.back(), Second);
    EXPECT_TRUE(panel.HoldsNothing()) << "no simulator that does not serve holds anything";
    const char* const names[] = {"the panel", "orvelle-sim", "the broker"};
    for (std::size_t each = 0; each < processes.size(); ++each)
        ExpectNoMoreMemory(names[each], before[each], MemoryOf(processes[each]));
    flood.Process.Kill(9);
    EXPECT_TRUE(Until([this] { return panel.Holders("flood").empty(); })) << "its records go with it";
    EXPECT_TRUE(HaveLinks() && panel.HasOwn(Role));
}

}  // namespace
}  // namespace orvelle::hosts
