// Panels that want one role.
#include "tests/hosts/HostsRig.h"

namespace orvelle::hosts {
namespace {

constexpr int Claims = 100;

class ClaimTest : public HostsTest {
protected:
    PanelThere& watcher = AddPanel(1);
    PanelThere& lower = AddPanel(2);
    PanelThere& higher = AddPanel(3);
};

TEST_F(ClaimTest, OfTwoPanelsThatWantARoleAtOneMomentOneHoldsIt) {
    BringPlayedSimulator();
    ASSERT_TRUE(Until([this] { return HaveLinks(); }));
    long long worst = 0;
    int won = 0;
    std::size_t gaveWay = 0;
    for (int claim = 1; claim <= Claims; ++claim) {
        const long long begin = Now();
        for (PanelThere* const panel : {&higher, &lower}) panel->Say(std::string("want ") + Role);
        ASSERT_TRUE(Until([this] { return Holder(Role, {&watcher, &lower, &higher}) != 0; })) << "claim " << claim;
        worst = std::max(worst, Now() - begin);
        EXPECT_NE(lower.HasOwn(Role), higher.HasOwn(Role));
        won += lower.HasOwn(Role) ? 1 : 0;
        gaveWay = higher.TimesTold("own ");
        for (PanelThere* const panel : {&higher, &lower}) panel->Say(std::string("leave ") + Role);
        ASSERT_TRUE(Until([this] {
            return watcher.Holders(Role).empty() && lower.Holders(Role).empty() && higher.Holders(Role).empty();
        })) << "after claim "
            << claim;
    }
    Print("the worst of " + std::to_string(Claims) + " claims took", worst);
    std::cout << "    the lower identity held the role " << won << " times, the higher one claimed it " << gaveWay
              << " times\n";
    EXPECT_LT(worst, 5 * Second);
}

}  // namespace
}  // namespace orvelle::hosts
