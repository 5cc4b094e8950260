// Another computer, as a network namespace of its own that a pair of interfaces joins to this one: here 192.0.2.1,
// there 192.0.2.2. Needs a namespace in which the test may do so (tests/in-namespaces).
#pragma once

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <unistd.h>

#include <cstdlib>
#include <functional>
#include <string>

#include "adapters/shared/FileDescriptor.h"

namespace orvelle::simulators {

class OtherHost {
public:
    OtherHost() : here(open("/proc/self/ns/net", O_RDONLY | O_CLOEXEC)) {
        EXPECT_EQ(unshare(CLONE_NEWNET), 0);
        there = FileDescriptor(open("/proc/self/ns/net", O_RDONLY | O_CLOEXEC));
        EXPECT_EQ(setns(here.Number(), CLONE_NEWNET), 0);
        const std::string file = "/proc/" + std::to_string(getpid()) + "/fd/" + std::to_string(there.Number());
        Run("ip link add here type veth peer name there netns " + file);
        Do([] {
            Run("ip addr add 192.0.2.2/24 dev there");
            Run("ip link set there up");
        });
    }
    ~OtherHost() { Run("ip link del here"); }
    OtherHost(const OtherHost&) = delete;
    OtherHost& operator=(const OtherHost&) = delete;

    // Plugs the cable in on this side.
    static void Join() {
        Run("ip addr add 192.0.2.1/24 dev here");
        Run("ip link set here up");
    }
    static void Leave() { Run("ip addr del 192.0.2.1/24 dev here"); }
    // Sockets that are made inside are that computer's.
    void Do(const std::function<void()>& what) const {
        EXPECT_EQ(setns(there.Number(), CLONE_NEWNET), 0);
        what();
        EXPECT_EQ(setns(here.Number(), CLONE_NEWNET), 0);
    }

private:
    static void Run(const std::string& command) { EXPECT_EQ(std::system(command.c_str()), 0) << command; }

    FileDescriptor here, there;
};

}  // namespace orvelle::simulators
