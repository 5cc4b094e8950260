// All directories of a computer together, from sources that a test plays.
#include "simulators/directory/Directories.h"

#include <gtest/gtest.h>

#include "tests/simulators/PlacedDirectories.h"

namespace orvelle::directory {
namespace {

class PlayedSource : public DirectorySource {
public:
    const std::vector<Found>& Directories() const override { return found; }
    void Set(std::vector<Found> all) {
        found = std::move(all);
        Changed();
    }

private:
    std::vector<Found> found;
};

class DirectoriesTest : public testing::Test {
protected:
    DirectoriesTest() {
        all.Changed = [this] { ++changes; };
    }
    bool Takes(LastGood& kept, const std::string& text) { return directory::Takes(kept, text, loop); }
    DirectorySource::Found Good(const std::string& source, const std::string& name) {
        LastGood good(loop, source);
        EXPECT_TRUE(Takes(good, DirectoryNamed(name)));
        return good.Now();
    }
    DirectorySource::Found Empty(const std::string& source) { return LastGood(loop, source).Now(); }
    std::string Names() const {
        std::string names;
        for (std::size_t number = 0; const Directory* each = all.Index().Find(number); ++number) names += each->Name;
        return names;
    }

    linux::PollEventLoop loop;
    LastGood good{loop, "a.json"};
    PlayedSource files, addresses;
    Directories all{{&files, &addresses}};
    int changes = 0;
};

TEST_F(DirectoriesTest, AreInTheOrderOfTheirSources) {
    addresses.Set({Good("https://c", "C"), Good("https://d", "D")});
    EXPECT_EQ(Names(), "CD");
    files.Set({Good("a.json", "A"), Empty("b.json")});
    EXPECT_EQ(Names(), "ACD");
    const auto told = all.Told();
    ASSERT_EQ(told.size(), 4U);
    EXPECT_EQ(told[0].Source, "a.json");
    EXPECT_EQ(told[0].Name, "A");
    EXPECT_EQ(told[1].Source, "b.json");
    EXPECT_EQ(told[3].Source, "https://d");
    files.Set({});
    EXPECT_EQ(Names(), "CD");
    EXPECT_EQ(changes, 3);
}

TEST_F(DirectoriesTest, WhatIsAsItWasIsNoChange) {
    ASSERT_TRUE(Takes(good, DirectoryNamed("A")));
    files.Set({good.Now()});
    const Directory* const first = all.Index().Find(0);
    EXPECT_EQ(changes, 1);
    files.Set({good.Now()});
    EXPECT_TRUE(Takes(good, DirectoryNamed("A")));
    files.Set({good.Now()});
    EXPECT_EQ(changes, 1);
    good.Miss("It can't be read.");
    files.Set({good.Now()});
    EXPECT_EQ(changes, 2) << "its trouble is one";
    EXPECT_EQ(all.Index().Find(0), first);
    EXPECT_FALSE(Takes(good, "{"));
    files.Set({good.Now()});
    EXPECT_EQ(changes, 3);
    EXPECT_EQ(all.Index().Find(0), first);
    EXPECT_TRUE(Takes(good, DirectoryNamed("B")));
    files.Set({good.Now()});
    EXPECT_EQ(changes, 4);
    EXPECT_EQ(Names(), "B");
}

TEST_F(DirectoriesTest, TheirAgesCountFromWhenTheyWereReadOrConfirmed) {
    ASSERT_TRUE(Takes(good, DirectoryNamed("A")));
    good.Date(180);
    files.Set({good.Now(), Empty("b.json")});
    EXPECT_GE(all.Told()[0].Age, 180);
    EXPECT_LT(all.Told()[0].Age, 240);
    EXPECT_EQ(all.Told()[1].Age, -1);
    good.Miss("It can't be read.");
    files.Set({good.Now()});
    EXPECT_GE(all.Told()[0].Age, 180);
    EXPECT_TRUE(all.Told()[0].IsCopy);
    good.Confirm();
    files.Set({good.Now()});
    EXPECT_LT(all.Told()[0].Age, 60);
}

TEST_F(DirectoriesTest, TheirFaultsAreTold) {
    EXPECT_TRUE(Takes(good, DirectoryWith(ClubServer, "{}")));
    files.Set({good.Now()});
    EXPECT_EQ(all.Told()[0].Name, "Club");
    EXPECT_EQ(all.Told()[0].Trouble, "");
    ASSERT_FALSE(all.Told()[0].Faults.empty());
    EXPECT_EQ(all.Told()[0].Faults[0].Line, 3U);
    EXPECT_EQ(all.Told()[0].FaultCount, all.Told()[0].Faults.size());
}

}  // namespace
}  // namespace orvelle::directory
