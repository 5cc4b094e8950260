#include <gtest/gtest.h>

#include <string>

#include "tests/replay/Replay.h"

namespace orvelle::replay {
namespace {

TEST(DeviceLists, HoldFiveHundredNames) {
    std::string names;
    for (int number = 1; number <= 500; ++number) names += "Wave - Card " + std::to_string(number) + "{10}";
    const Outcome outcome =
        Replay("give VVL.InputDevices = \"" + names + "\"\n" + "give VVL.OutputDevices = \"" + names + "\"\n" +
               "store \"OrvelleCP\" \"VVLHeadset\" \"Wave - Card 500\"\n"
               "only none\n"
               "load\n"
               "pick VVLMicrophone 500\n"
               "pick VVLSpeakers 501\n"
               "pick VVLSpeakers 502\n"
               "show VVLMicrophone VVLHeadset VVLSpeakers\n"
               "show VVLMicrophone.ListIndex VVLHeadset.ListIndex VVLSpeakers.ListIndex\n");
    EXPECT_EQ(outcome.Status, 0);
    const std::string shown =
        "VVLMicrophone.Text = \"Wave - Card 500\"\n"
        "VVLHeadset.Text = \"Wave - Card 500\"\n"
        "VVLSpeakers.Text = \"Wave - Card 500\"\n"
        "VVLMicrophone.ListIndex = 500\n"
        "VVLHeadset.ListIndex = 500\n"
        "VVLSpeakers.ListIndex = 501\n";
    EXPECT_TRUE(outcome.Transcript.ends_with(shown)) << outcome.Transcript;
}

}  // namespace
}  // namespace orvelle::replay
