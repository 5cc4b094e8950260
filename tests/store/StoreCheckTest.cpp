// Values that fail their check are told and come from the last good copy, which is made at each clean start.
#include <gtest/gtest.h>

#include "adapters/store/RowCheck.h"
#include "tests/store/FaultyDisk.h"
#include "tests/store/StoreFolder.h"

namespace orvelle::store {
namespace {

namespace fs = std::filesystem;

constexpr Long TheCopyIsMade = 10000;  // milliseconds of the loop's own clock

TEST(RowCheckTest, EachBitOfARowCounts) {
    const std::string place = "OrvelleCP\\Joy2Key\\7";
    const std::string text = "button 3";
    const Check check = RowCheck(StoredTable::Setting, place, "J2KJoy", text);
    const auto flipped = [](std::string bytes, std::size_t bit) {
        bytes[bit / 8] = static_cast<char>(bytes[bit / 8] ^ (1 << bit % 8));
        return bytes;
    };
    for (std::size_t bit = 0; bit < place.size() * 8; ++bit)
        EXPECT_NE(RowCheck(StoredTable::Setting, flipped(place, bit), "J2KJoy", text), check);
    for (std::size_t bit = 0; bit < text.size() * 8; ++bit)
        EXPECT_NE(RowCheck(StoredTable::Setting, place, "J2KJoy", flipped(text, bit)), check);
    for (int bit = 0; bit < 32; ++bit)
        EXPECT_NE(RowCheck(StoredTable::Setting, place, "Left", static_cast<Long>(7 ^ (1U << bit))),
                  RowCheck(StoredTable::Setting, place, "Left", Long{7}));
    EXPECT_NE(RowCheck(StoredTable::Control, place, "J2KJoy", text), check);
    EXPECT_NE(RowCheck(StoredTable::Setting, place + "J", "2KJoy", text), check);
    EXPECT_NE(RowCheck(StoredTable::Setting, "", "", Long{0}), RowCheck(StoredTable::Setting, "", "", std::string()));
}

class StoreCheckTest : public testing::Test {
protected:
    // A hundred rows and "Left" 7 in the file and its copy; "Top" 3 in the file alone.
    void FillAndCopy() {
        folder.Fill();
        auto store = folder.Open();
        folder.Loop.Run(TheCopyIsMade);
        store.SaveSettingLong("OrvelleCP", "Top", 3);
        store.HandlerEnded();
    }
    void ExpectTold(const std::string& words) {
        ASSERT_EQ(folder.Sentences.size(), 1U);
        EXPECT_NE(folder.Sentences[0].find(words), std::string::npos) << folder.Sentences[0];
    }

    const FaultyDisk disk;
    StoreFolder folder;
};

TEST_F(StoreCheckTest, ACleanStartMakesACopyAndTheNextOneLeavesIt) {
    FillAndCopy();
    const fs::path copy = folder.Path("OrvelleCP.sqlite.copy");
    EXPECT_NE(BytesOf(copy), "");
    const auto first = BytesOf(copy);
    {
        auto store = folder.Open();
        folder.Loop.Run(TheCopyIsMade);
    }
    EXPECT_NE(BytesOf(copy), first);
    const auto time = fs::last_write_time(copy);
    {
        auto store = folder.Open();
        folder.Loop.Run(TheCopyIsMade);
    }
    EXPECT_EQ(fs::last_write_time(copy), time);
    EXPECT_TRUE(folder.Sentences.empty());
}

TEST_F(StoreCheckTest, ADamagedCopyIsMadeAnew) {
    FillAndCopy();
    WriteBytes(folder.Path("OrvelleCP.sqlite.copy"), "damaged");
    auto store = folder.Open();
    folder.Loop.Run(TheCopyIsMade);
    EXPECT_GT(fs::file_size(folder.Path("OrvelleCP.sqlite.copy")), 4096U);
}

TEST_F(StoreCheckTest, AChangedValueComesFromTheCopy) {
    FillAndCopy();
    folder.Run("UPDATE setting SET value = 8 WHERE name = 'Left'");
    {
        auto store = folder.Open();
        EXPECT_EQ(store.GetSettingLong("OrvelleCP", "Left", 1), 7);
        EXPECT_EQ(store.GetSettingLong("OrvelleCP", "Top", 1), 3);
    }
    ExpectTold("is damaged and was kept as");
    ExpectTold("from the last good copy come \"Left\" in \"OrvelleCP\".");
    EXPECT_EQ(folder.Open().GetSettingLong("OrvelleCP", "Left", 1), 7);
    EXPECT_EQ(folder.Sentences.size(), 1U);
}

TEST_F(StoreCheckTest, AMissingValueComesFromTheCopy) {
    FillAndCopy();
    folder.Run("DELETE FROM setting WHERE name = 'Left'");
    EXPECT_EQ(folder.Open().GetSettingLong("OrvelleCP", "Left", 1), 7);
    ExpectTold("from the last good copy come \"Left\" in \"OrvelleCP\".");
}

TEST_F(StoreCheckTest, AValueThatTheCopyDoesNotHaveIsTold) {
    FillAndCopy();
    folder.Run("UPDATE setting SET value = 8 WHERE name = 'Top'");
    auto store = folder.Open();
    EXPECT_EQ(store.GetSettingLong("OrvelleCP", "Left", 1), 7);
    EXPECT_EQ(store.GetSettingLong("OrvelleCP", "Top", 1), 1);
    ExpectTold("the others are not in the last good copy and have their defaults.");
}

TEST_F(StoreCheckTest, AStrangePlaceIsTold) {
    FillAndCopy();
    folder.Run("INSERT INTO setting VALUES (5, 'k', 1, 0)");
    EXPECT_EQ(folder.Open().GetSettingLong("OrvelleCP", "Left", 1), 7);
    ExpectTold("What does not belong there is left out.");
}

TEST_F(StoreCheckTest, WhatWasDeletedSinceTheCopyStaysSoWhereOneValueIsWrong) {
    FillAndCopy();
    folder.Open().DeleteSettingSection("OrvelleCP\\Joy2Key\\3");
    folder.Run("UPDATE setting SET value = 8 WHERE name = 'Left'");
    auto store = folder.Open();
    EXPECT_EQ(store.GetSettingLong("OrvelleCP", "Left", 1), 7);
    EXPECT_EQ(store.GetSettingString("OrvelleCP\\Joy2Key\\3", "J2KJoy", ""), "");
    EXPECT_EQ(folder.Sentences.size(), 1U);
}

TEST_F(StoreCheckTest, AStrangePlaceInAFileWithoutChecksIsTold) {
    folder.MakeWithoutChecks("INSERT INTO setting VALUES ('OrvelleCP', 'Left', 7), (5, 'k', 1)");
    EXPECT_EQ(folder.Open().GetSettingLong("OrvelleCP", "Left", 1), 7);
    ExpectTold("is damaged");
}

TEST_F(StoreCheckTest, WithoutItsStateEveryValueIsKept) {
    FillAndCopy();
    folder.Run("DELETE FROM state");
    auto store = folder.Open();
    EXPECT_EQ(store.GetSettingLong("OrvelleCP", "Top", 1), 3);
    ExpectTold("Every value passes its check and is used.");
}

TEST_F(StoreCheckTest, AFileThatCannotBeReadIsReplacedByTheCopy) {
    FillAndCopy();
    WriteBytes(folder.Path(), "damaged");
    {
        auto store = folder.Open();
        EXPECT_EQ(store.GetSettingLong("OrvelleCP", "Left", 1), 7);
        EXPECT_EQ(store.GetSettingLong("OrvelleCP", "Top", 1), 1);
        store.SaveSettingLong("OrvelleCP", "Top", 4);
    }
    ExpectTold("The settings of the last good copy are used.");
    EXPECT_EQ(folder.Open().GetSettingLong("OrvelleCP", "Top", 1), 4);
}

// A loss of power in between leaves it to the next start to tell.
TEST_F(StoreCheckTest, WhatAStartFoundIsToldBeforeItIsNoted) {
    FillAndCopy();
    WriteBytes(folder.Path(), "damaged");
    const fs::path lock = folder.Path("OrvelleCP.sqlite.lock");
    const std::string noted = BytesOf(lock);
    std::string notedAtTheTelling;
    const SqliteStore store(folder.Loop, folder.Path(), [&](const std::string&) { notedAtTheTelling = BytesOf(lock); });
    EXPECT_EQ(notedAtTheTelling, noted);
    EXPECT_NE(BytesOf(lock), noted);
}

TEST_F(StoreCheckTest, AFileThatIsGoneIsReplacedByTheCopy) {
    FillAndCopy();
    fs::remove(folder.Path());
    EXPECT_EQ(folder.Open().GetSettingLong("OrvelleCP", "Left", 1), 7);
    ExpectTold("is gone. The settings of the last good copy are used.");
}

TEST_F(StoreCheckTest, AFileWithoutChecksIsTakenOverInSilence) {
    folder.MakeWithoutChecks(
        "INSERT INTO setting VALUES ('OrvelleCP', 'Left', 7);"
        "INSERT INTO registry VALUES ('Run', 'OrvelleCP', 'path');"
        "INSERT INTO control VALUES ('', 'Velmarc.Server', 'cockpit')");
    for (int time = 0; time < 2; ++time) {
        auto store = folder.Open();
        EXPECT_EQ(store.GetSettingLong("OrvelleCP", "Left", 1), 7);
        EXPECT_EQ(store.ReadRegistryString(LocalMachine, "Run", "OrvelleCP", ""), "path");
        EXPECT_EQ(store.GetControlValue("Velmarc.Server", ""), "cockpit");
        EXPECT_EQ(folder.Text("PRAGMA user_version"), "2");
        folder.Loop.Run(TheCopyIsMade);
    }
    EXPECT_TRUE(folder.Sentences.empty());
}

}  // namespace
}  // namespace orvelle::store
