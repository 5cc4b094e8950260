#include "adapters/store/SqliteStore.h"

#include <gtest/gtest.h>

#include <limits>
#include <map>
#include <optional>
#include <random>

#include "tests/store/FaultyDisk.h"
#include "tests/store/StoreFolder.h"

namespace orvelle::store {
namespace {

using Texts = std::vector<std::string>;
using namespace std::string_literals;

Texts List(SqliteStore& store, const std::string& section) {
    Texts names;
    store.OpenSettingList(section);
    std::string name;
    for (Long index = 0; store.SettingListItem(index, name); ++index) names.push_back(name);
    EXPECT_EQ(store.SettingListCount(), static_cast<Long>(names.size()));
    store.CloseSettingList();
    return names;
}

class StoreTest : public testing::Test {
protected:
    void TearDown() override { EXPECT_EQ(folder.Sentences, Texts{}); }

    const FaultyDisk disk;
    StoreFolder folder;
};

TEST_F(StoreTest, AFreshStoreGivesDefaults) {
    auto store = folder.Open();
    EXPECT_EQ(store.GetSettingLong("OrvelleCP", "Topmost", 7), 7);
    EXPECT_EQ(store.GetSettingString("OrvelleCP", "RWPath", "none"), "none");
    EXPECT_EQ(store.ReadRegistryLong(LocalMachine, "SOFTWARE\\Orvelle", "Number", -3), -3);
    EXPECT_EQ(store.ReadRegistryString(LocalMachine, "SOFTWARE\\Orvelle", "Text", "d"), "d");
    EXPECT_EQ(store.ReadRegistryDefault("SOFTWARE\\Orvelle", "", "d"), "d");
    EXPECT_EQ(store.GetControlValue("Velmarc.Server", "AUTOMATIC"), "AUTOMATIC");
    EXPECT_EQ(List(store, "OrvelleCP\\Joy2Key"), Texts{});
}

TEST_F(StoreTest, MakesTheFoldersOfItsFile) {
    {
        auto store = folder.Open("new/folder/OrvelleCP.sqlite");
        store.SaveSettingLong("OrvelleCP", "Left", 1);
    }
    EXPECT_EQ(folder.Open("new/folder/OrvelleCP.sqlite").GetSettingLong("OrvelleCP", "Left", 0), 1);
}

TEST_F(StoreTest, KeepsWhatWasWrittenFromRunToRun) {
    {
        auto store = folder.Open();
        store.SaveSettingLong("OrvelleCP", "Left", std::numeric_limits<Long>::min());
        store.SaveSettingLong("OrvelleCP", "Top", std::numeric_limits<Long>::max());
        store.SaveSettingString("OrvelleCP", "RWPath", "");
        store.WriteRegistryLong(LocalMachine, "SOFTWARE\\Orvelle", "Number", 1);
        store.WriteRegistryString(LocalMachine, "SOFTWARE\\Orvelle", "", "text");
        store.SetControlValue("Velmarc.Server", "cockpit");
        store.HandlerEnded();
    }
    auto store = folder.Open();
    EXPECT_EQ(store.GetSettingLong("OrvelleCP", "Left", 0), std::numeric_limits<Long>::min());
    EXPECT_EQ(store.GetSettingLong("OrvelleCP", "Top", 0), std::numeric_limits<Long>::max());
    EXPECT_EQ(store.GetSettingString("OrvelleCP", "RWPath", "none"), "");
    EXPECT_EQ(store.ReadRegistryLong(LocalMachine, "SOFTWARE\\Orvelle", "Number", 0), 1);
    EXPECT_EQ(store.ReadRegistryDefault("SOFTWARE\\Orvelle", "", ""), "text");
    EXPECT_EQ(store.GetControlValue("Velmarc.Server", "AUTOMATIC"), "cockpit");
}

TEST_F(StoreTest, DeletedRegistryValuesStayDeleted) {
    {
        auto store = folder.Open();
        store.WriteRegistryString(LocalMachine, "Run", "OrvelleCP", "path");
        store.HandlerEnded();
        store.DeleteRegistryValue(LocalMachine, "Run", "OrvelleCP");
        store.DeleteRegistryValue(LocalMachine, "Run", "OrvelleCP");
        store.DeleteRegistryValue(LocalMachine, "None", "OrvelleCP");
        EXPECT_EQ(store.ReadRegistryString(LocalMachine, "Run", "OrvelleCP", "gone"), "gone");
    }
    EXPECT_EQ(folder.Open().ReadRegistryString(LocalMachine, "Run", "OrvelleCP", "gone"), "gone");
}

TEST_F(StoreTest, TheWritesOfAHandlerReachTheFileTogetherAtItsEnd) {
    auto store = folder.Open();
    store.SaveSettingLong("OrvelleCP", "Left", 1);
    store.SaveSettingLong("OrvelleCP", "Top", 2);
    EXPECT_EQ(store.GetSettingLong("OrvelleCP", "Left", 0), 1);
    EXPECT_EQ(folder.Text("SELECT count(*) FROM setting"), "0");
    store.HandlerEnded();
    EXPECT_EQ(folder.Text("SELECT count(*) FROM setting"), "2");
    EXPECT_EQ(folder.Text("SELECT value FROM setting WHERE place = 'OrvelleCP' AND name = 'Top'"), "2");
}

TEST_F(StoreTest, WhatWaitsAtTheEndIsWritten) {
    folder.Open().SaveSettingLong("OrvelleCP", "Left", 1);
    EXPECT_EQ(folder.Open().GetSettingLong("OrvelleCP", "Left", 0), 1);
}

TEST_F(StoreTest, AValueThatStandsIsNotWrittenAgain) {
    folder.Open().SaveSettingString("OrvelleCP", "RWPath", "roger");
    const std::string before = BytesOf(folder.Path());
    {
        auto store = folder.Open();
        store.SaveSettingString("OrvelleCP", "RWPath", "roger");
        store.DeleteSettingSection("OrvelleCP");
        store.SaveSettingString("OrvelleCP", "RWPath", "roger");
        store.SaveSettingLong("OrvelleCP", "Left", 1);
        store.DeleteSettingSection("OrvelleCP");
        store.SaveSettingString("OrvelleCP", "RWPath", "roger");
        store.HandlerEnded();
        EXPECT_EQ(BytesOf(folder.Path("OrvelleCP.sqlite-wal")), "");
    }
    EXPECT_EQ(BytesOf(folder.Path()), before);
}

TEST_F(StoreTest, SurvivesPowerLossAfterEachHandlerByItsJournalMode) {
    const auto store = folder.Open();
    EXPECT_EQ(folder.Text("PRAGMA journal_mode"), "wal");
}

TEST_F(StoreTest, TextsAreBytesOfAnyValue) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
    const Texts texts{all, "\0"s, "a\0b"s, "\xFC", "\xC3\xBC", "\xFF\xFE", "O'Hare \"x\"", std::string(100000, '\xE4')};
    {
        auto store = folder.Open();
        for (const std::string& text : texts) {
            store.SaveSettingString("section " + text, "key " + text, text);
            store.WriteRegistryString(LocalMachine, text, text, text);
            store.SetControlValue(text, text);
        }
    }
    auto store = folder.Open();
    for (const std::string& text : texts) {
        EXPECT_EQ(store.GetSettingString("section " + text, "key " + text, "none"), text);
        EXPECT_EQ(store.ReadRegistryString(LocalMachine, text, text, "none"), text);
        EXPECT_EQ(store.GetControlValue(text, "none"), text);
    }
}

TEST_F(StoreTest, ASectionIsDeletedWithItsSubSectionsAndNoOther) {
    const Texts deleted{"A",      "A\\",    "A\\1",        "A\\1\\2", "A\\\xFF\xFF",
                        "A\\\0"s, "A\\zzz", "A\\1\xE4\\x", "A\\]",    "A\\\\"};
    const Texts kept{"A2", "A]", "A ", "A[", "a", "a\\1", "", "\\A", "B", "A\0"s, "A\xE4", "A\xE4\\1", "AA\\1"};
    {
        auto store = folder.Open();
        for (const Texts& sections : {deleted, kept})
            for (const std::string& section : sections) store.SaveSettingLong(section, "k", 1);
        store.HandlerEnded();
        store.DeleteSettingSection("A");
        for (const std::string& section : deleted) EXPECT_EQ(store.GetSettingLong(section, "k", 0), 0) << section;
        for (const std::string& section : kept) EXPECT_EQ(store.GetSettingLong(section, "k", 0), 1) << section;
    }
    auto store = folder.Open();
    for (const std::string& section : deleted) EXPECT_EQ(store.GetSettingLong(section, "k", 0), 0) << section;
    for (const std::string& section : kept) EXPECT_EQ(store.GetSettingLong(section, "k", 0), 1) << section;
    store.DeleteSettingSection("A\xE4");
    store.HandlerEnded();
    EXPECT_EQ(store.GetSettingLong("A\xE4\\1", "k", 0), 0);
    EXPECT_EQ(folder.Text("SELECT count(*) FROM setting"), std::to_string(kept.size() - 2));
}

TEST_F(StoreTest, DeletingAndWritingInOneHandlerKeepsTheirOrder) {
    {
        auto store = folder.Open();
        store.SaveSettingLong("Rows\\1", "k", 1);
        store.SaveSettingLong("Rows\\2", "k", 1);
        store.HandlerEnded();
        store.DeleteSettingSection("Rows");
        store.SaveSettingLong("Rows\\1", "k", 1);
    }
    auto store = folder.Open();
    EXPECT_EQ(store.GetSettingLong("Rows\\1", "k", 0), 1);
    EXPECT_EQ(store.GetSettingLong("Rows\\2", "k", 0), 0);
}

// Any order of writes and deletions, over handlers and runs, against a plain map.
TEST_F(StoreTest, RemembersWhatAMapRemembers) {
    std::mt19937 random(3);
    const Texts sections{"A", "A\\1", "A\\1\\x", "A\\2", "A2", "B"};
    const Texts keys{"k", "m"};
    std::map<std::pair<std::string, std::string>, Long> expected;
    std::optional<SqliteStore> store;
    for (int step = 0; step < 5000; ++step) {
        if (!store || random() % 50 == 0) {
            store.reset();
            store.emplace(folder.Loop, folder.Path(), [](const std::string& sentence) { FAIL() << sentence; });
            for (const std::string& section : sections)
                for (const std::string& key : keys) {
                    const auto found = expected.find({section, key});
                    ASSERT_EQ(store->GetSettingLong(section, key, -1), found == expected.end() ? -1 : found->second)
                        << section << " " << key << " before step " << step;
                }
        }
        const std::string& section = sections[random() % sections.size()];
        const std::string& key = keys[random() % keys.size()];
        if (random() % 4 == 0) {
            store->DeleteSettingSection(section);
            std::erase_if(expected, [&](const auto& entry) {
                return entry.first.first == section || entry.first.first.starts_with(section + "\\");
            });
        } else {
            const auto value = static_cast<Long>(random() % 3);
            store->SaveSettingLong(section, key, value);
            expected[{section, key}] = value;
        }
        if (random() % 5 == 0) store->HandlerEnded();
    }
}

TEST_F(StoreTest, ListsDirectSubSectionsInNumericOrder) {
    auto store = folder.Open();
    for (const char* name : {"10", "9", "2", "100", "x", "1\\deep", "02", "-1", "2\\deep", "18446744073709551617", ""})
        store.SaveSettingLong(std::string("Rows\\") + name, "k", 1);
    store.SaveSettingLong("Rows", "k", 1);
    store.SaveSettingLong("Rows2\\1", "k", 1);
    EXPECT_EQ(List(store, "Rows"), (Texts{"1", "02", "2", "9", "10", "100", "18446744073709551617", "", "-1", "x"}));
}

TEST_F(StoreTest, AListingIsOpenUntilItIsClosed) {
    auto store = folder.Open();
    store.SaveSettingLong("Rows\\1", "k", 1);
    std::string name = "unchanged";
    EXPECT_EQ(store.SettingListCount(), 0);
    EXPECT_FALSE(store.SettingListItem(0, name));
    EXPECT_EQ(name, "");
    store.OpenSettingList("Rows");
    EXPECT_FALSE(store.SettingListItem(-1, name));
    EXPECT_TRUE(store.SettingListItem(0, name));
    EXPECT_EQ(name, "1");
    store.CloseSettingList();
    EXPECT_EQ(store.SettingListCount(), 0);
    EXPECT_FALSE(store.SettingListItem(0, name));
}

TEST(StoreTypesTest, AValueOfTheWrongTypeReadsAsTheDefaultAndIsToldOnce) {
    const FaultyDisk disk;
    StoreFolder folder;
    folder.MakeWithoutChecks(
        "INSERT OR REPLACE INTO setting VALUES ('OrvelleCP', 'Left', 'seven'), ('OrvelleCP', 'Top', 2147483648),"
        "('OrvelleCP', 'Topmost', 1.5), ('OrvelleCP', 'RWPath', 5), ('OrvelleCP', 'TSPath', NULL);"
        "INSERT INTO registry VALUES ('Run', 'OrvelleCP', 1)");
    auto store = folder.Open();
    EXPECT_EQ(folder.Sentences, Texts{});
    for (int time = 0; time < 2; ++time) {
        EXPECT_EQ(store.GetSettingLong("OrvelleCP", "Left", 1), 1);
        EXPECT_EQ(store.GetSettingLong("OrvelleCP", "Top", 2), 2);
        EXPECT_EQ(store.GetSettingLong("OrvelleCP", "Topmost", 3), 3);
        EXPECT_EQ(store.GetSettingString("OrvelleCP", "RWPath", "path"), "path");
        EXPECT_EQ(store.GetSettingString("OrvelleCP", "TSPath", "path"), "path");
        EXPECT_EQ(store.ReadRegistryString(LocalMachine, "Run", "OrvelleCP", "text"), "text");
        EXPECT_EQ(folder.Sentences.size(), 6U);
    }
    EXPECT_EQ(folder.Sentences[0], "The setting \"Left\" in \"OrvelleCP\" is not a number, so its default is used.");
    EXPECT_EQ(folder.Sentences[3], "The setting \"RWPath\" in \"OrvelleCP\" is not a text, so its default is used.");
    store.SaveSettingLong("OrvelleCP", "Left", 9);
    EXPECT_EQ(store.GetSettingLong("OrvelleCP", "Left", 1), 9);
}

}  // namespace
}  // namespace orvelle::store
