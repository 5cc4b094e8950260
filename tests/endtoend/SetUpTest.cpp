// A whole panel that has joined a set-up, whose simulator's computer is played by a shell script.
#include <csignal>
#include <memory>

#include "tests/endtoend/PanelTest.h"
#include "tests/linux/ChildProcess.h"
#include "tests/mqtt/broker/BrokerProcess.h"

namespace orvelle {

namespace {

const std::string Session =
    R"({"handle":3,"status":1,"callsign":"ABC123","receive":"1","transmit":"1","radios":[)"
    R"({"frequency":"118.300","software":1,"server":"srv1","channel":"ops","login":"","password":""},)"
    R"({"frequency":"121.500","software":0,"server":"","channel":"","login":"","password":""}]})";

class SetUpTest : public PanelTest {
protected:
    SetUpTest() {
        store::SqliteStore& store = house.Settings.Store;
        store.SaveSettingLong("OrvelleCP", "RWEnable", 1);
        store.SaveSettingString("OrvelleCP", "RWFSKey", "F8");
        store.HandlerEnded();
    }

    void Join() {
        const std::string file = folder.filePath("setup.json").toStdString();
        EXPECT_EQ(mqtt::WriteSetUpFile(file, broker.SetUpOf(2)), "");
    }
    void Leave() { EXPECT_EQ(mqtt::RemoveSetUpFile(folder.filePath("setup.json").toStdString()), ""); }
    void PlaySimulator() {
        simulator = std::make_unique<linux::ChildProcess>(std::vector<std::string>{
            PLAYS_SIMULATOR, std::to_string(broker.Port()), mqtt::WriteKey(broker.SetUpOf(1).Key), Session});
    }
    bool IsConnected() {
        return ComesTrue([this] { return panel.Panels(4).Enabled && panel.Variables().SessionHandle == 3; });
    }

    mqtt::BrokerProcess broker;
    std::unique_ptr<linux::ChildProcess> simulator;
};

TEST_F(SetUpTest, AKeyOverThereHoldsTheTalkKeyHere) {
    Join();
    PlaySimulator();
    house.Open();
    ASSERT_TRUE(IsConnected());
    ASSERT_TRUE(ComesTrue([this] { return panel.Variables().ActiveVoiceSoftware == RogerWilco; }));
    EXPECT_FALSE(house.Deck);
    simulator->WriteLine(R"(["F8"] [])");
    EXPECT_TRUE(ComesTrue([this] { return user.SeesDown(TalkKey); }));
    simulator->WriteLine("[] []");
    EXPECT_TRUE(ComesTrue([this] { return !user.SeesDown(TalkKey); }));
}

TEST_F(SetUpTest, ASimulatorsComputerThatIsKilledHoldsNothingHere) {
    Join();
    PlaySimulator();
    house.Open();
    ASSERT_TRUE(IsConnected());
    ASSERT_TRUE(ComesTrue([this] { return panel.Variables().ActiveVoiceSoftware == RogerWilco; }));
    simulator->WriteLine(R"(["F8"] [])");
    ASSERT_TRUE(ComesTrue([this] { return user.SeesDown(TalkKey); }));
    // With all that it has started.
    kill(-simulator->Id(), SIGKILL);
    EXPECT_TRUE(ComesTrue([this] { return !user.SeesDown(TalkKey); }));
    EXPECT_TRUE(ComesTrue([this] { return !panel.Panels(4).Enabled; }));
}

TEST_F(SetUpTest, JoiningAndLeavingTakeEffectWhileThePanelRuns) {
    ASSERT_NO_FATAL_FAILURE(Open());
    Join();
    PlaySimulator();
    EXPECT_TRUE(ComesTrue([this] { return house.Deck == nullptr; }));
    EXPECT_TRUE(IsConnected());
    Leave();
    EXPECT_TRUE(ComesTrue([this] { return house.Deck && house.Deck->isVisible(); }));
    EXPECT_TRUE(ComesTrue([this] { return panel.Variables().SessionHandle == 0; }));
}

}  // namespace

}  // namespace orvelle
