// While another program holds the store's lock no handler waits: what can't be written comes from the loop.
#include <gtest/gtest.h>

#include <chrono>
#include <optional>

#include "tests/store/FaultyDisk.h"
#include "tests/store/LockedStore.h"
#include "tests/store/StoreFolder.h"

namespace orvelle::store {
namespace {

constexpr Long LongEnough = 10000;  // milliseconds of the loop's own clock, for every pause between tries

class StoreBusyTest : public testing::Test {
protected:
    std::string Stored(const std::string& name) const {
        return folder.Text("SELECT value FROM setting WHERE name = '" + name + "'");
    }

    const FaultyDisk disk;
    StoreFolder folder;
};

TEST_F(StoreBusyTest, NoHandlerWaitsForALock) {
    auto store = folder.Open();
    const LockedStore other(folder.Path());
    const auto start = std::chrono::steady_clock::now();
    for (Long value = 1; value <= 50; ++value) {
        store.SaveSettingLong("OrvelleCP", "Left", value);
        store.HandlerEnded();
        folder.Loop.Run(100);
    }
    // Waiting for the lock but once would take a second.
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(900));
    EXPECT_EQ(folder.Sentences.size(), 1U);
    EXPECT_NE(folder.Sentences[0].find("could not be written (database is locked)"), std::string::npos);
}

TEST_F(StoreBusyTest, WhatWaitedIsWrittenFromTheLoop) {
    auto store = folder.Open();
    {
        const LockedStore other(folder.Path());
        store.SaveSettingLong("OrvelleCP", "Left", 1);
        store.HandlerEnded();
        store.SaveSettingLong("OrvelleCP", "Top", 2);
        store.HandlerEnded();
        folder.Loop.Run(LongEnough);
        EXPECT_EQ(Stored("Left"), "");
    }
    folder.Loop.Run(LongEnough);
    EXPECT_EQ(Stored("Left"), "1");
    EXPECT_EQ(Stored("Top"), "2");
    EXPECT_EQ(folder.Sentences.size(), 1U);
    EXPECT_TRUE(folder.Loop.Idle());
}

TEST_F(StoreBusyTest, AFailureAfterASuccessIsToldAnew) {
    auto store = folder.Open();
    for (Long time = 1; time <= 3; ++time) {
        {
            const LockedStore other(folder.Path());
            store.SaveSettingLong("OrvelleCP", "Left", time);
            store.HandlerEnded();
            folder.Loop.Run(LongEnough);
        }
        folder.Loop.Run(LongEnough);
        EXPECT_EQ(Stored("Left"), std::to_string(time));
        EXPECT_EQ(folder.Sentences.size(), static_cast<std::size_t>(time));
    }
}

TEST_F(StoreBusyTest, TheEndTriesOnceMore) {
    auto store = folder.Open();
    {
        const LockedStore other(folder.Path());
        store.SaveSettingLong("OrvelleCP", "Left", 1);
        store.HandlerEnded();
    }
    EXPECT_EQ(store.Close(), "");
    EXPECT_EQ(Stored("Left"), "1");
    EXPECT_EQ(store.Close(), "");
}

TEST_F(StoreBusyTest, WhatIsLostAtTheEndIsToldByName) {
    auto store = folder.Open();
    const LockedStore other(folder.Path());
    store.SaveSettingLong("OrvelleCP", "Left", 1);
    store.SetControlValue("Velmarc.Server", "cockpit");
    store.HandlerEnded();
    EXPECT_EQ(store.Close(), "The settings file \"" + folder.Path().string() +
                                 "\" could not be written (database is locked). Lost are the changes of \"Left\" in "
                                 "\"OrvelleCP\", \"Velmarc.Server\".");
}

TEST_F(StoreBusyTest, AStoreThatGoesTellsWhatIsLost) {
    std::optional<LockedStore> other;
    {
        auto store = folder.Open();
        other.emplace(folder.Path());
        store.SaveSettingLong("OrvelleCP", "Left", 1);
    }
    ASSERT_EQ(folder.Sentences.size(), 1U);
    EXPECT_NE(folder.Sentences[0].find("Lost are the changes of \"Left\""), std::string::npos);
}

}  // namespace
}  // namespace orvelle::store
