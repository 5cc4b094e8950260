// The keyboard's own connection to the X server is cut while keys are down.
#include <csignal>
#include <filesystem>

#include "tests/linux/KeysDownTest.h"
#include "tests/linux/WaitUntil.h"

namespace orvelle::linux {
namespace {

class LostConnectionTest : public KeysDownTest {
protected:
    const std::unique_ptr<ChildProcess> owned = NewPanel();
    ChildProcess& panel = *owned;
};

TEST_F(LostConnectionTest, IsMadeAgainForTheRelease) {
    panel.Ask("begin");
    for (int round = 0; round < Rounds; ++round) {
        HoldThreeKeys(panel);
        EXPECT_EQ(panel.Ask("cut"), "1");
        for (const char* line : {"up 46", "up 29", "up 285"}) EXPECT_EQ(panel.Ask(line), "done");
        EXPECT_TRUE(client.KeysDown().empty());
    }
    EXPECT_EQ(panel.Errors(), "");
}

TEST_F(LostConnectionTest, IsMadeAgainForTheNextKey) {
    for (int round = 0; round < Rounds; ++round) {
        panel.Ask("down 1");
        panel.Ask("up 1");
        EXPECT_EQ(panel.Ask("cut"), "1");
    }
    EXPECT_EQ(client.NextStrokes(2 * Rounds).size(), std::size_t{2 * Rounds});
}

TEST_F(LostConnectionTest, IsMadeAgainAtTheEnd) {
    for (int round = 0; round < Rounds; ++round) {
        const std::unique_ptr<ChildProcess> ended = NewPanel();
        HoldThreeKeys(*ended);
        // Its own release is looked at, not that of its guard, which comes after it.
        const pid_t guard = GuardOf(*ended);
        kill(guard, SIGSTOP);
        EXPECT_EQ(ended->Ask("cut"), "1");
        ended->Kill(SIGTERM);
        ended->Wait();
        EXPECT_TRUE(client.KeysDown().empty());
        kill(guard, SIGCONT);
        ExpectAllReleased(&panel);
    }
}

// The way to the server is taken away too, so that the release has to wait. A server that can be reached by its file
// alone is not seen by others that look for a free number, so its number is one that none of them comes to.
TEST(UnreachableServerTest, GetsTheReleaseWhenItCanBeReachedAgain) {
    XServer server({":" + std::to_string(1000 + getpid() % 30000), "-nolisten", "local"});
    XClient client(server.Display());
    const std::filesystem::path socket = "/tmp/.X11-unix/X" + server.Display().substr(1);
    const std::filesystem::path aside = socket.string() + ".aside";
    ChildProcess panel({PANEL_STAND_IN, server.Display(), KEY_GUARD, testing::TempDir()});
    panel.Ask("down 29");
    EXPECT_TRUE(WaitUntil([&] { return client.KeysDown() == std::vector<int>{37}; }));

    std::filesystem::rename(socket, aside);
    EXPECT_EQ(panel.Ask("cut"), "1");
    panel.Ask("up 29");
    EXPECT_EQ(panel.Ask("holds 29"), "yes");
    EXPECT_EQ(client.KeysDown(), std::vector<int>{37});
    EXPECT_EQ(panel.Errors(), "There is no X server to reach, so no key can be pressed on this computer.\n");

    std::filesystem::rename(aside, socket);
    EXPECT_TRUE(WaitUntil([&] { return client.KeysDown().empty(); }));
    EXPECT_TRUE(WaitUntil([&] { return panel.Ask("holds 29") == "no"; }));
}

}  // namespace
}  // namespace orvelle::linux
