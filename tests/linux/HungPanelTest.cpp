// A panel that holds keys and does not go on: stopped, or in a handler that never returns.
#include <csignal>

#include "tests/linux/KeysDownTest.h"
#include "tests/linux/WaitUntil.h"

namespace orvelle::linux {
namespace {

class HungPanelTest : public KeysDownTest {
protected:
    // Each holds a key of its own.
    void StartPanels() {
        for (int round = 0; round < Rounds; ++round) {
            panels.push_back(NewPanel());
            panels.back()->Ask("down " + KeyOf(round));
        }
        EXPECT_TRUE(WaitUntil([&] { return client.KeysDown().size() == Rounds; }));
    }

    static std::string KeyOf(int round) { return std::to_string(30 + round); }

    std::vector<std::unique_ptr<ChildProcess>> panels;
};

TEST_F(HungPanelTest, ThatIsStoppedHoldsNothingAfterAWhile) {
    StartPanels();
    for (const auto& panel : panels) panel->Kill(SIGSTOP);
    EXPECT_TRUE(AllUpInTheEnd());

    for (int round = 0; round < Rounds; ++round) {
        ChildProcess& panel = *panels[round];
        panel.Kill(SIGCONT);
        EXPECT_EQ(panel.Ask("holds " + KeyOf(round)), "no");
        // It is as before: a release of what is up does no harm, and a key is guarded again.
        panel.Ask("up " + KeyOf(round));
        panel.Ask("down " + KeyOf(round));
        EXPECT_EQ(panel.Ask("holds " + KeyOf(round)), "yes");
        panel.Kill(SIGKILL);
        panel.Wait();
    }
    ExpectAllReleased();
}

TEST_F(HungPanelTest, ThatIsInAHandlerForEverHoldsNothingAfterAWhile) {
    StartPanels();
    for (const auto& panel : panels) panel->Ask("hang");
    EXPECT_TRUE(AllUpInTheEnd());
}

TEST_F(HungPanelTest, IsNotOneThatSleepsAsTheLogicDoesNorOneThatGoesOn) {
    const std::unique_ptr<ChildProcess> sleeping = NewPanel();
    const std::unique_ptr<ChildProcess> goingOn = NewPanel();
    const std::unique_ptr<ChildProcess> stopped = NewPanel();
    for (const auto& [panel, line] : {std::pair(goingOn.get(), "down 30"), {stopped.get(), "down 31"}})
        panel->Ask(line);
    stopped->Kill(SIGSTOP);
    sleeping->Ask("down 32");
    sleeping->Ask("sleep 2000");
    sleeping->Ask("sleep 2000");
    // The stopped one tells when the patience is over.
    const std::vector<int> others{38, 40};
    EXPECT_TRUE(WaitUntil([&] { return client.KeysDown() == others; }));
    EXPECT_EQ(sleeping->Ask("holds 32"), "yes");
    EXPECT_EQ(goingOn->Ask("holds 30"), "yes");
}

}  // namespace
}  // namespace orvelle::linux
