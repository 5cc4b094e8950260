// A system without media players starts the panel all the same.
#include <gtest/gtest.h>

#include <sstream>

#include "panel/FrmOrvelle.h"
#include "replay/World.h"

namespace orvelle {
namespace {

class MediaPlayersTest : public testing::TestWithParam<int> {};

TEST_P(MediaPlayersTest, AMissingPlayerChangesNothingInTheOutcome) {
    std::ostringstream out;
    replay::World world{out};
    const int playersThere = GetParam();
    world.Given.Give("WMPCOM1.New", {{playersThere > 0}});
    world.Given.Give("WMPCOM2.New", {{playersThere > 1}});
    FrmOrvelle panel(world.Outside());
    panel.Show();
    EXPECT_TRUE(panel.Visible);
    EXPECT_EQ(panel.WMPCOM1, nullptr);
    EXPECT_EQ(panel.WMPCOM2, nullptr);
    EXPECT_FALSE(panel.Timer1.Enabled);
    EXPECT_EQ(panel.twCategory.Find("ATIS"), nullptr);
}

INSTANTIATE_TEST_SUITE_P(PlayersThere, MediaPlayersTest, testing::Values(0, 1, 2));

}  // namespace
}  // namespace orvelle
