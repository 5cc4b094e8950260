#include "adapters/shared/HostAndPort.h"

#include <gtest/gtest.h>

namespace orvelle {
namespace {

TEST(HostAndPortTest, IsReadAndWritten) {
    for (const auto& [text, place] :
         std::map<std::string, HostAndPort>{{"simpc", {"simpc", 8883}},
                                            {"simpc.local:8884", {"simpc.local", 8884}},
                                            {"192.0.2.7:1", {"192.0.2.7", 1}},
                                            {"2001:db8::7", {"2001:db8::7", 8883}},
                                            {"[2001:db8::7]:65535", {"2001:db8::7", 65535}}}) {
        EXPECT_EQ(ReadHostAndPort(text, 8883), place) << text;
        EXPECT_EQ(WriteHostAndPort(place, 8883), text);
    }
    EXPECT_EQ(ReadHostAndPort(" simpc\n", 8883), (HostAndPort{"simpc", 8883}));
    EXPECT_EQ(ReadHostAndPort("[2001:db8::7]", 8883), (HostAndPort{"2001:db8::7", 8883}));
}

TEST(HostAndPortTest, WhatIsNoPlaceIsRefused) {
    for (const std::string text : {"", " ", ":8883", "simpc:", "simpc:0", "simpc:65536", "simpc:-1", "simpc:88x",
                                   "sim pc", "[2001:db8::7", "[]:1", "[2001:db8::7]8883", "[2001:db8::7]:"})
        EXPECT_EQ(ReadHostAndPort(text, 8883), std::nullopt) << text;
    EXPECT_EQ(ReadHostAndPort(std::string(300, 'a'), 8883), std::nullopt);
}

}  // namespace
}  // namespace orvelle
