#include "tests/linux/KeysDownTest.h"

#include <sys/prctl.h>
#include <sys/wait.h>

#include <fstream>
#include <iterator>

#include "tests/linux/WaitUntil.h"

namespace orvelle::linux {

namespace {

std::vector<pid_t> ChildrenOf(pid_t process) {
    const std::string id = std::to_string(process);
    std::ifstream file("/proc/" + id + "/task/" + id + "/children");
    EXPECT_TRUE(file.is_open());
    return {std::istream_iterator<pid_t>(file), std::istream_iterator<pid_t>()};
}

}  // namespace

KeysDownTest::KeysDownTest() { prctl(PR_SET_CHILD_SUBREAPER, 1); }

std::unique_ptr<ChildProcess> KeysDownTest::NewPanel(const std::string& guardFile) const {
    return std::make_unique<ChildProcess>(
        std::vector<std::string>{PANEL_STAND_IN, server.Display(), guardFile, testing::TempDir()});
}

std::vector<pid_t> KeysDownTest::GuardsOf(const ChildProcess& panel) { return ChildrenOf(panel.Id()); }

pid_t KeysDownTest::GuardOf(const ChildProcess& panel) {
    EXPECT_TRUE(WaitUntil([&] { return GuardsOf(panel).size() == 1; }));
    // Never a number that stands for several processes, since it is to be sent signals.
    return GuardsOf(panel).at(0);
}

void KeysDownTest::HoldThreeKeys(ChildProcess& panel) {
    EXPECT_EQ(panel.Ask("down 29"), "done");
    EXPECT_EQ(panel.Ask("down 285"), "done");
    EXPECT_EQ(panel.Ask("down 46"), "done");
    EXPECT_TRUE(WaitUntil([&] { return client.KeysDown() == std::vector<int>({37, 54, 105}); }));
}

bool KeysDownTest::AllUpInTheEnd() {
    return WaitUntil([&] { return client.KeysDown().empty(); });
}

void KeysDownTest::ExpectAllReleased(const ChildProcess* stillThere) {
    for (const pid_t child : ChildrenOf(getpid()))
        if (child != server.Id() && (!stillThere || child != stillThere->Id())) waitpid(child, nullptr, 0);
    EXPECT_TRUE(client.KeysDown().empty());
}

}  // namespace orvelle::linux
