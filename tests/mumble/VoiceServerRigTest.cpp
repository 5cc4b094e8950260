// The real voice server that the tests of the rooms stand on.
#include "tests/mumble/VoiceServerRig.h"

#include <gtest/gtest.h>

#include "apps/FreePort.h"

namespace orvelle::mumble {

TEST(VoiceServerRig, IsThereAndGoneAndThereAgain) {
    VoiceServerRig server;
    EXPECT_TRUE(IsListenedTo(server.Port()));
    server.Kill();
    EXPECT_FALSE(IsListenedTo(server.Port()));
    server.Start();
    EXPECT_TRUE(IsListenedTo(server.Port()));
}

}  // namespace orvelle::mumble
