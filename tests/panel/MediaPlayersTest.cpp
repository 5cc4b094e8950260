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
    FrmOrvelle panel(Platform{
        .Velmarc = world.Velmarc,
        .Settings = world.Store,
        .Registry = world.Registry,
        .Tessaly = world.Tessaly,
        .VVL = world.VVL,
        .VolumeControl = world.VolumeControl,
        .VolumeControlHP = world.VolumeControlHP,
        .TSRemote = world.TSRemote,
        .MediaPlayers = players,
        .Dialog = world.Dialog,
        .Messages = world.Messages,
        .Keyboard = world.Keyboard,
        .Queue = world.Queue,
        .Windows = world.Windows,
        .Clock = world.Kernel,
        .Processes = world.Kernel,
        .Program = world.App,
        .Tray = world.Tray,
        .Urls = world.Urls,
    });
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
