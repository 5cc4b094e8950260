// Directories as the broker tells of them.
#include "simulators/directory/DirectoryTopics.h"

#include <gtest/gtest.h>

#include "adapters/mqtt/Bounds.h"
#include "tests/simulators/PlacedDirectories.h"

namespace orvelle::directory {
namespace {

static_assert(mqtt::bounds::Directory == LongestDirectory);

class DirectoryTopicsTest : public testing::Test {
protected:
    bool Shows(const std::string& names) {
        return linux::ServeUntil(loop, [&] { return NamesIn(topics.Directories()) == names; });
    }

    linux::PollEventLoop loop;
    DirectoryTopics topics{loop};
};

TEST_F(DirectoryTopicsTest, AreInTheOrderOfTheirNamesThenOfTheirHolders) {
    int changes = 0;
    topics.Changed = [&changes] { ++changes; };
    topics.Hear("c03", "club", DirectoryNamed("C"));
    topics.Hear("c02", "club", DirectoryNamed("B"));
    topics.Hear("c99", "air", DirectoryNamed("A"));
    EXPECT_TRUE(Shows("A|B|C"));
    EXPECT_EQ(topics.Directories()[0].Told.Source, "topic air of c99");
    topics.Hear("c02", "club", DirectoryNamed("D"));
    EXPECT_TRUE(Shows("A|D|C"));
    topics.Hear("c99", "air", "");
    topics.Hear("c98", "never heard of", "");
    EXPECT_EQ(NamesIn(topics.Directories()), "D|C");
    topics.Forget();
    EXPECT_TRUE(topics.Directories().empty());
    EXPECT_EQ(changes, 7);
}

TEST_F(DirectoryTopicsTest, ADamagedOneLeavesTheLastGoodOne) {
    topics.Hear("c03", "club", "no directory");
    ASSERT_TRUE(linux::ServeUntil(loop, [this] { return topics.Directories().size() == 1; }));
    EXPECT_EQ(topics.Directories()[0].Content, nullptr);
    topics.Hear("c03", "club", DirectoryNamed("Club"));
    ASSERT_TRUE(Shows("Club"));
    topics.Hear("c03", "club", "{");
    ASSERT_TRUE(linux::ServeUntil(loop, [this] { return topics.Directories()[0].Told.IsCopy; }));
    EXPECT_EQ(NamesIn(topics.Directories()), "Club");
    EXPECT_TRUE(topics.Directories()[0].Told.Trouble.starts_with("It is no directory: line 1"));
}

TEST_F(DirectoryTopicsTest, OnesThatGoWhileTheyAreReadAreGone) {
    topics.Hear("c03", "club", DirectoryNamed("Taken away"));
    topics.Hear("c03", "club", "");
    topics.Hear("c04", "club", DirectoryNamed("Of another broker"));
    topics.Forget();
    topics.Hear("c02", "club", DirectoryNamed("Club"));
    EXPECT_TRUE(Shows("Club"));
    topics.Hear("c02", "club", DirectoryNamed("Old"));
    topics.Hear("c02", "club", DirectoryNamed("New"));
    std::string shown;
    topics.Changed = [&] { shown += NamesIn(topics.Directories()) + " "; };
    ASSERT_TRUE(Shows("New"));
    EXPECT_EQ(shown, "New ");
}

}  // namespace
}  // namespace orvelle::directory
