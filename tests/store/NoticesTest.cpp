// What the store has to say to the user.
#include <gtest/gtest.h>

#include <optional>

#include "adapters/shared/NoticeBoard.h"
#include "adapters/store/SqliteStore.h"
#include "tests/shared/HandLoop.h"
#include "tests/store/FaultyDisk.h"
#include "tests/store/StoreFolder.h"

namespace orvelle::store {
namespace {

class NoticesTest : public testing::Test {
protected:
    NoticesTest() {
        board->Told = [this](const std::string& message) { messages.push_back(message); };
    }
    void OpenStore() {
        store.emplace(loop, folder.Path(), [this](const std::string& sentence) { board->Tell(sentence); });
    }

    const FaultyDisk disk;
    StoreFolder folder;
    HandLoop loop;
    std::optional<NoticeBoard> board{std::in_place, loop};
    std::optional<SqliteStore> store;
    std::vector<std::string> messages;
};

TEST_F(NoticesTest, AHealthyStoreGivesNone) {
    OpenStore();
    loop.Run(60000);
    EXPECT_TRUE(messages.empty());
    EXPECT_TRUE(loop.Idle());
}

TEST_F(NoticesTest, ThoseOfOneTurnComeTogether) {
    OpenStore();
    loop.Run();
    store->SaveSettingString("OrvelleCP", "Left", "seven");
    store->SaveSettingString("OrvelleCP", "Top", "eight");
    store->GetSettingLong("OrvelleCP", "Left", 0);
    store->GetSettingLong("OrvelleCP", "Top", 0);
    loop.Run();
    EXPECT_EQ(messages, std::vector<std::string>{
                            "The setting \"Left\" in \"OrvelleCP\" is not a number, so its default is used.\n"
                            "The setting \"Top\" in \"OrvelleCP\" is not a number, so its default is used."});
}

TEST_F(NoticesTest, TheyComeFromTheLoop) {
    WriteBytes(folder.Path(), "damaged");
    OpenStore();
    EXPECT_TRUE(messages.empty());
    loop.Run();
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_NE(messages[0].find("is damaged and was kept as"), std::string::npos);
    store->SaveSettingString("OrvelleCP", "Left", "seven");
    store->GetSettingLong("OrvelleCP", "Left", 0);
    EXPECT_EQ(messages.size(), 1U);
    loop.Run();
    EXPECT_EQ(messages.size(), 2U);
}

TEST_F(NoticesTest, NoneIsToldOnceTheBoardIsGone) {
    WriteBytes(folder.Path(), "damaged");
    OpenStore();
    board.reset();
    loop.Run();
    EXPECT_TRUE(messages.empty());
}

TEST_F(NoticesTest, TheControlsKeepTheirValuesInTheStore) {
    OpenStore();
    EXPECT_EQ(store->GetControlValue("Velmarc.Server", "AUTOMATIC"), "AUTOMATIC");
    store->SetControlValue("Velmarc.Server", "cockpit");
    store->HandlerEnded();
    store.reset();
    OpenStore();
    EXPECT_EQ(store->GetControlValue("Velmarc.Server", "AUTOMATIC"), "cockpit");
}

}  // namespace
}  // namespace orvelle::store
