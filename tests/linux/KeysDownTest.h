// What the tests share that kill a panel with keys down: an X server, a second client that sees its keys, and a panel
// with its guard as processes.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tests/linux/ChildProcess.h"
#include "tests/linux/XClient.h"
#include "tests/linux/XServer.h"

namespace orvelle::linux {

class KeysDownTest : public testing::Test {
protected:
    static constexpr int Rounds = 10;

    // Whoever loses its parent becomes this process's child, so that the end of a guard can be waited for.
    KeysDownTest();

    std::unique_ptr<ChildProcess> NewPanel(const std::string& guardFile = KEY_GUARD) const;
    // The guards of a panel, also one that ended and is not buried yet.
    static std::vector<pid_t> GuardsOf(const ChildProcess& panel);
    // The one guard, which is there in the end.
    static pid_t GuardOf(const ChildProcess& panel);
    void HoldThreeKeys(ChildProcess& panel);
    bool AllUpInTheEnd();
    // The panels are gone; once all guards are too, no key is down any more.
    void ExpectAllReleased(const ChildProcess* stillThere = nullptr);

    XServer server;
    XClient client{server.Display()};
};

}  // namespace orvelle::linux
