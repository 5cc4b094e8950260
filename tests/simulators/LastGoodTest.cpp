// A directory of one place, whose texts come while others are read.
#include "simulators/directory/LastGood.h"

#include <gtest/gtest.h>

#include "tests/linux/WithoutThreads.h"
#include "tests/simulators/PlacedDirectories.h"

namespace orvelle::directory {
namespace {

class LastGoodTest : public testing::Test {
protected:
    LastGoodTest() {
        kept.Taken = [this](bool isDirectory) { taken += isDirectory ? "directory " : "none "; };
    }
    bool Until(const std::function<bool()>& isSo) { return linux::ServeUntil(loop, isSo); }
    std::string Name() const { return kept.Now().Content ? kept.Now().Content->Name : ""; }

    linux::PollEventLoop loop;
    LastGood kept{loop, "a.json"};
    std::string taken;
};

TEST_F(LastGoodTest, TheNewestOfSeveralTextsCounts) {
    for (const std::string name : {"A", "B", "C"}) EXPECT_FALSE(kept.Take(DirectoryNamed(name)));
    ASSERT_TRUE(Until([this] { return !kept.IsReading(); }));
    EXPECT_EQ(Name(), "C");
    EXPECT_EQ(taken, "directory ");
    EXPECT_FALSE(kept.Take(DirectoryNamed("D")));
    EXPECT_FALSE(kept.Take("{"));
    ASSERT_TRUE(Until([this] { return !kept.IsReading(); }));
    EXPECT_EQ(Name(), "C");
    EXPECT_EQ(taken, "directory none ");
}

TEST_F(LastGoodTest, OneThatCountsAlreadyIsConfirmed) {
    ASSERT_TRUE(Takes(kept, DirectoryNamed("A"), loop));
    kept.Miss("It can't be read.");
    EXPECT_TRUE(kept.Take(DirectoryNamed("A")));
    EXPECT_EQ(kept.Now().Told.Trouble, "");
    EXPECT_FALSE(kept.Take(DirectoryNamed("B")));
    ASSERT_TRUE(Takes(kept, DirectoryNamed("A"), loop)) << "while another one is read";
    EXPECT_EQ(Name(), "A");
}

TEST_F(LastGoodTest, WhatIsBeingReadCountsNoMoreOnceItIsMissed) {
    EXPECT_FALSE(kept.Take(DirectoryNamed("A")));
    EXPECT_FALSE(kept.Take(DirectoryNamed("B")));
    kept.Miss("It can't be read.");
    EXPECT_FALSE(kept.IsReading());
    ASSERT_TRUE(Takes(kept, DirectoryNamed("C"), loop));
    EXPECT_EQ(Name(), "C");
    EXPECT_EQ(taken, "");
}

TEST_F(LastGoodTest, IsReadAlsoWhereNothingCanBeDoneInTheBackground) {
    const linux::WithoutThreads without;
    EXPECT_FALSE(kept.Take(DirectoryNamed("A")));
    ASSERT_TRUE(Until([this] { return taken == "directory "; }));
    EXPECT_EQ(Name(), "A");
}

}  // namespace
}  // namespace orvelle::directory
