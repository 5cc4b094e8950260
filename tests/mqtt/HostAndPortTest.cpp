#include "adapters/mqtt/HostAndPort.h"

#include <gtest/gtest.h>

namespace orvelle::mqtt {
namespace {

TEST(HostAndPortTest, IsReadAndWritten) {
    for (const auto& [text, place] :
         std::map<std::string, HostAndPort>{{"simpc", {"simpc", 8883}},
                                            {"simpc.local:8884", {"simpc.local", 8884}},
                                            {"192.0.2.7:1", {"192.0.2.7", 1}},
                                            {"2001:db8::7", {"2001:db8::7", 8883}},
                                            {"[2001:db8::7]:65535", {"2001:db8::7", 65535}}}) {
        EXPECT_EQ(ReadHostAndPort(text), place) << text;
        EXPECT_EQ(WriteHostAndPort(place), text);
    }
    EXPECT_EQ(ReadHostAndPort(" simpc\n"), (HostAndPort{"simpc", 8883}));
    EXPECT_EQ(ReadHostAndPort("[2001:db8::7]"), (HostAndPort{"2001:db8::7", 8883}));
}

TEST(HostAndPortTest, WhatIsNoPlaceIsRefused) {
    for (const std::string text : {"", " ", ":8883", "simpc:", "simpc:0", "simpc:65536", "simpc:-1", "simpc:88x",
                                   "sim pc", "[2001:db8::7", "[]:1", "[2001:db8::7]8883", "[2001:db8::7]:"})
        EXPECT_EQ(ReadHostAndPort(text), std::nullopt) << text;
    EXPECT_EQ(ReadHostAndPort(std::string(300, 'a')), std::nullopt);
}

}  // namespace
}  // namespace orvelle::mqtt
