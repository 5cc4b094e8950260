#include "adapters/pulse/ServerSocket.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace orvelle::pulse {
namespace {

class ServerSocketTest : public testing::Test {
protected:
    ServerSocketTest() {
        for (const char* const name : {"PULSE_SERVER", "PULSE_RUNTIME_PATH", "XDG_RUNTIME_DIR"}) unsetenv(name);
    }
};

TEST_F(ServerSocketTest, AnAddressNamesItOrAnotherComputer) {
    EXPECT_EQ(ServerSocket("unix:/run/sound"), "/run/sound");
    EXPECT_EQ(ServerSocket("/run/sound"), "/run/sound");
    EXPECT_EQ(ServerSocket("{0123abcd}unix:/run/sound"), "/run/sound");
    for (const char* const other : {"tcp:host:4713", "host", "{0123abcd}", "{unix:", "unix:", "unix:here"})
        EXPECT_EQ(ServerSocket(other), "") << other;
}

TEST_F(ServerSocketTest, TheEnvironmentNamesTheUsersOwn) {
    EXPECT_EQ(ServerSocket(""), "");
    setenv("XDG_RUNTIME_DIR", "/run/user/1", 1);
    EXPECT_EQ(ServerSocket(""), "/run/user/1/pulse/native");
    setenv("PULSE_RUNTIME_PATH", "/run/other", 1);
    EXPECT_EQ(ServerSocket(""), "/run/other/native");
    setenv("PULSE_SERVER", "unix:/run/third", 1);
    EXPECT_EQ(ServerSocket(""), "/run/third");
    setenv("PULSE_SERVER", "host", 1);
    EXPECT_EQ(ServerSocket(""), "");
}

}  // namespace
}  // namespace orvelle::pulse
