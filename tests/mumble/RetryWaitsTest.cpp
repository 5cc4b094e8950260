// When a lost room tries again.
#include "adapters/mumble/RetryWaits.h"

#include <gtest/gtest.h>

namespace orvelle::mumble {

namespace {

// The wait rounded to its place in the table, in tenths of a second.
Long Tenths(RetryWaits& waits, ConnectionEnd why) { return waits.Next(why) / 100; }

}  // namespace

TEST(RetryWaits, AreShortWhileTheServerRefuses) {
    RetryWaits waits;
    for (int attempt = 0; attempt < 20; ++attempt) {
        const Long wait = waits.Next(ConnectionEnd::Refused);
        EXPECT_GE(wait, 500);
        EXPECT_LE(wait, 900);
    }
}

TEST(RetryWaits, GrowWhereConnectionsEnd) {
    RetryWaits waits;
    waits.NoteJoined();
    EXPECT_LE(Tenths(waits, ConnectionEnd::Closed), 4);
    EXPECT_NEAR(Tenths(waits, ConnectionEnd::Closed), 20, 2);
    // Joined for a moment, which proves nothing.
    waits.NoteJoined();
    EXPECT_NEAR(Tenths(waits, ConnectionEnd::Closed), 100, 20);
    EXPECT_NEAR(Tenths(waits, ConnectionEnd::Silent), 600, 100);
    EXPECT_NEAR(Tenths(waits, ConnectionEnd::Silent), 600, 100);
    // The server was not there, and begins anew.
    EXPECT_LE(Tenths(waits, ConnectionEnd::Refused), 9);
    EXPECT_NEAR(Tenths(waits, ConnectionEnd::Silent), 20, 2);
}

TEST(RetryWaits, StayBoundedWhereNobodyWasReached) {
    RetryWaits waits;
    EXPECT_NEAR(Tenths(waits, ConnectionEnd::Unreachable), 20, 2);
    for (int attempt = 0; attempt < 5; ++attempt) EXPECT_NEAR(Tenths(waits, ConnectionEnd::NoSuchHost), 100, 20);
}

TEST(RetryWaits, Differ) {
    RetryWaits one;
    RetryWaits two;
    int same = 0;
    for (int attempt = 0; attempt < 20; ++attempt)
        same += one.Next(ConnectionEnd::Refused) == two.Next(ConnectionEnd::Refused) ? 1 : 0;
    EXPECT_LT(same, 10);
}

}  // namespace orvelle::mumble
