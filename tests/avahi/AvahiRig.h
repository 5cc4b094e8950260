// An Avahi daemon and a message bus of the test's own. The daemon runs in a network namespace of its own, where it
// meets no other one; where the system doesn't let the user make one the tests fail, and say so.
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "adapters/linux/PollEventLoop.h"
#include "tests/linux/ChildProcess.h"

namespace orvelle::avahi {

class AvahiRig : public testing::Test {
public:
    // To be called before anything in the process uses a message bus, where something does before a test is made: from
    // then on the system's bus is the one that a test may start, or none.
    static void UseOwnBus();

protected:
    AvahiRig();
    ~AvahiRig() override;

    void StartBus();
    void StopBus() { bus.reset(); }
    // Returns at once; programs wait for it.
    void StartDaemon();
    void StopDaemon() { daemon.reset(); }
    // As SIGSTOP does, which lets them hang without an end.
    void SignalBus(int signal) { bus->Kill(signal); }
    void SignalDaemon(int signal) { daemon->Kill(signal); }
    // A set-up, or something like it, that another program announces until the object goes.
    static std::unique_ptr<linux::ChildProcess> Announce(const std::string& name, int port,
                                                         std::vector<std::string> texts);

    // Serves the loop until it is so. False where that takes longer than half a minute.
    bool Until(const std::function<bool()>& isSo);
    // Serves the loop for that long; the longest time that one of its turns took, in milliseconds.
    long long LongestTurnIn(std::chrono::milliseconds time);

    linux::PollEventLoop loop;

private:
    std::filesystem::path folder;
    std::unique_ptr<linux::ChildProcess> bus;
    std::unique_ptr<linux::ChildProcess> daemon;
};

}  // namespace orvelle::avahi
