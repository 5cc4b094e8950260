// Directories as the broker tells of them.
#include "simulators/directory/DirectoryTopics.h"

#include <gtest/gtest.h>

#include "adapters/mqtt/Bounds.h"
#include "tests/simulators/PlacedDirectories.h"

namespace orvelle::directory {
namespace {

static_assert(mqtt::bounds::Directory == LongestDirectory);

TEST(DirectoryTopicsTest, AreInTheOrderOfTheirNamesThenOfTheirHolders) {
    DirectoryTopics topics;
    int changes = 0;
    topics.Changed = [&changes] { ++changes; };
    topics.Hear("c03", "club", DirectoryNamed("C"));
    topics.Hear("c02", "club", DirectoryNamed("B"));
    topics.Hear("c99", "air", DirectoryNamed("A"));
    EXPECT_EQ(NamesIn(topics.Directories()), "A|B|C");
    EXPECT_EQ(topics.Directories()[0].Told.Source, "topic air of c99");
    topics.Hear("c02", "club", DirectoryNamed("D"));
    EXPECT_EQ(NamesIn(topics.Directories()), "A|D|C");
    topics.Hear("c99", "air", "");
    topics.Hear("c98", "never heard of", "");
    EXPECT_EQ(NamesIn(topics.Directories()), "D|C");
    topics.Forget();
    EXPECT_TRUE(topics.Directories().empty());
    EXPECT_EQ(changes, 7);
}

TEST(DirectoryTopicsTest, ADamagedOneLeavesTheLastGoodOne) {
    DirectoryTopics topics;
    topics.Hear("c03", "club", "no directory");
    ASSERT_EQ(topics.Directories().size(), 1U);
    EXPECT_EQ(topics.Directories()[0].Content, nullptr);
    topics.Hear("c03", "club", DirectoryNamed("Club"));
    topics.Hear("c03", "club", "{");
    EXPECT_EQ(NamesIn(topics.Directories()), "Club");
    EXPECT_TRUE(topics.Directories()[0].Told.IsCopy);
    EXPECT_TRUE(topics.Directories()[0].Told.Trouble.starts_with("It is no directory: line 1"));
}

}  // namespace
}  // namespace orvelle::directory
