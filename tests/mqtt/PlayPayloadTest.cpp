#include <gtest/gtest.h>

#include "adapters/mqtt/Payloads.h"
#include "tests/mqtt/Refusals.h"

namespace orvelle::mqtt {
namespace {

const std::string Play = R"({"to":"c01","sound":"Tessaly\\RADIO_ONCHANNEL.wav"})";

TEST(PlayPayloadTest, NamesTheComputerAndTheSound) {
    const PlayRequest request{1, "Tessaly\\RADIO_ONCHANNEL.wav"};
    EXPECT_EQ(ReadPlay(Play), request);
    EXPECT_EQ(WritePlay(request), Play);
}

TEST(PlayPayloadTest, DropsWhatBreaksARule) {
    ExpectRefusals(ReadPlay, Play,
                   {{"\"to\":\"c01\",", ""},
                    {",\"sound\":\"Tessaly\\\\RADIO_ONCHANNEL.wav\"", ""},
                    {"c01", "c1"},
                    {"c01", "c-1"},
                    {"c01", "c0a"},
                    {"c01", "x01"},
                    {"\"c01\"", "1"},
                    {"\"c01\"", "[\"c01\"]"},
                    {"Tessaly", std::string(1001, 'x')},
                    {"\\\\", "\\"},
                    {"\\\\", "\\x5c"}});
}

}  // namespace
}  // namespace orvelle::mqtt
