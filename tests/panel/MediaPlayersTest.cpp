// A system without media players starts the panel all the same.
#include <gtest/gtest.h>

#include <sstream>

#include "panel/FrmOrvelle.h"
#include "replay/World.h"

namespace orvelle {
namespace {

constexpr int CannotCreateObject = 429;

// Has one player at most.
class FewMediaPlayers : public MediaPlayerFactory {
public:
    FewMediaPlayers(replay::World& outside, int playerCount) : world(outside), count(playerCount) {}

    std::unique_ptr<MediaPlayer> New(Long radio) override {
        if (radio >= count) throw RuntimeError(CannotCreateObject);
        return world.Players.New(radio);
    }

private:
    replay::World& world;
    const int count;
};

class MediaPlayersTest : public testing::TestWithParam<int> {};

TEST_P(MediaPlayersTest, AMissingPlayerChangesNothingInTheOutcome) {
    std::ostringstream out;
    replay::World world{out};
    FewMediaPlayers players(world, GetParam());
    FrmOrvelle panel({world.Velmarc, world.Store, world.Registry, world.Tessaly, world.VVL, world.VolumeControl,
                      world.VolumeControlHP, world.TSRemote, players, world.Dialog, world.Messages, world.Keyboard,
                      world.Queue, world.Windows, world.Kernel, world.Kernel, world.App, world.Tray, world.Urls});
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
