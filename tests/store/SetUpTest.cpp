#include "adapters/embedded/SetUp.h"

#include <gtest/gtest.h>

#include <optional>

#include "tests/shared/HandLoop.h"
#include "tests/store/FaultyDisk.h"
#include "tests/store/StoreFolder.h"

namespace orvelle::store {
namespace {

class SetUpTest : public testing::Test {
protected:
    void Make() {
        setUp.emplace(loop, folder.Path(), std::vector<std::string>{"cockpit"});
        setUp->Notice = [this](const std::string& sentence) { notices.push_back(sentence); };
    }

    const FaultyDisk disk;
    StoreFolder folder;
    HandLoop loop;
    std::optional<EmbeddedSetUp> setUp;
    std::vector<std::string> notices;
};

TEST_F(SetUpTest, AHealthyStoreGivesNoNotice) {
    Make();
    loop.Run();
    EXPECT_TRUE(notices.empty());
    EXPECT_TRUE(loop.Idle());
}

TEST_F(SetUpTest, NoticesOfOneTurnComeTogether) {
    Make();
    loop.Run();
    setUp->Store.SaveSettingString("OrvelleCP", "Left", "seven");
    setUp->Store.SaveSettingString("OrvelleCP", "Top", "eight");
    setUp->Store.GetSettingLong("OrvelleCP", "Left", 0);
    setUp->Store.GetSettingLong("OrvelleCP", "Top", 0);
    loop.Run();
    EXPECT_EQ(notices, std::vector<std::string>{
                           "The setting \"Left\" in \"OrvelleCP\" is not a number, so its default is used.\n"
                           "The setting \"Top\" in \"OrvelleCP\" is not a number, so its default is used."});
}

TEST_F(SetUpTest, NoticesComeFromTheLoop) {
    WriteBytes(folder.Path(), "damaged");
    Make();
    EXPECT_TRUE(notices.empty());
    loop.Run();
    ASSERT_EQ(notices.size(), 1U);
    EXPECT_NE(notices[0].find("is damaged and was kept as"), std::string::npos);
    setUp->Store.SaveSettingString("OrvelleCP", "Left", "seven");
    setUp->Store.GetSettingLong("OrvelleCP", "Left", 0);
    EXPECT_EQ(notices.size(), 1U);
    loop.Run();
    EXPECT_EQ(notices.size(), 2U);
}

TEST_F(SetUpTest, TheControlsKeepTheirValuesInTheStore) {
    Make();
    setUp->Velmarc.SetServer("cockpit");
    setUp->Tessaly.SetServer("<LOCAL>");
    setUp->Tessaly.Embedded(1);
    setUp->Store.HandlerEnded();
    setUp.reset();
    Make();
    EXPECT_EQ(setUp->Velmarc.GetServer(), "cockpit");
    EXPECT_EQ(setUp->Tessaly.GetServer(), "<LOCAL>");
    EXPECT_TRUE(setUp->Tessaly.Embedded());
}

TEST_F(SetUpTest, KnowsTheNamesOfThisComputer) {
    Make();
    EXPECT_TRUE(setUp->Velmarc.IsLocalAddress("cockpit"));
    EXPECT_TRUE(setUp->Velmarc.IsLocalAddress("localhost"));
}

TEST_F(SetUpTest, NothingIsRaisedOnceThePanelHasEnded) {
    Make();
    int raised = 0;
    const auto count = [&](const auto&...) { ++raised; };
    setUp->Velmarc.Connected = count;
    setUp->Velmarc.Disconnected = count;
    setUp->Velmarc.FSKeyDown = count;
    setUp->Tessaly.Connected = count;
    setUp->Tessaly.SessionOpened = count;
    setUp->Tessaly.InterfaceAppeared = count;
    setUp->VVL.VVL_Started = count;
    setUp->VolumeControl.InputOpened = count;
    setUp->VolumeControlHP.OutputOpened = count;
    setUp->Tessaly.LinkStart();
    setUp->Tessaly.SetLink(LinkState::Up);
    setUp->Tessaly.StartSession();
    setUp->Tessaly.CreateInterface("VOICE", "RWCom1");
    setUp->Velmarc.SetLink(LinkState::Up);
    setUp->Velmarc.PressKey("A");
    setUp->VVL.Start(3);
    setUp->VolumeControl.Open();
    setUp->VolumeControlHP.Open();
    setUp->Stop();
    setUp->Velmarc.SetLink(LinkState::Down);
    setUp->Tessaly.SetLink(LinkState::Down);
    loop.Run(10000);
    EXPECT_EQ(raised, 0);
}

TEST_F(SetUpTest, NothingIsRaisedIntoASetUpThatIsGone) {
    WriteBytes(folder.Path(), "damaged");
    Make();
    setUp->Velmarc.SetLink(LinkState::Up);
    setUp->VVL.SetStartDelay(100);
    setUp->VVL.Start(3);
    setUp->VolumeControl.Open();
    setUp.reset();
    loop.Run(1000);
    EXPECT_TRUE(notices.empty());
}

}  // namespace
}  // namespace orvelle::store
