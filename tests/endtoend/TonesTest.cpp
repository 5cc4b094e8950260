// What a whole panel makes heard, through a sound server of the test's own.
#include <QListWidget>
#include <algorithm>

#include "tests/endtoend/PanelTest.h"
#include "tests/endtoend/UsersSoundServer.h"

namespace orvelle {

namespace {

constexpr const char* OnChannel = "Tessaly\\RADIO_ONCHANNEL.wav";
constexpr double Loud = 4000;    // less than half of the tones' own amplitude
constexpr double Silent = 1000;  // what a tone's swelling leaves beside its own frequency

class TonesTest : protected UsersSoundServer, public PanelTest {
protected:
    TonesTest() {
        store::SqliteStore& store = house.Settings.Store;
        store.SaveSettingLong("OrvelleCP", "RWEnable", 1);
        store.SaveSettingLong("OrvelleCP", "VoiceTuningSound", 1);
        store.HandlerEnded();
    }

    bool IsHeard(double frequency) {
        return ComesTrue([&] { return LoudnessOf(frequency) > Loud; });
    }
    // How often the deck tells that a sound was asked for.
    int Asked(const QString& sound) {
        const auto& sounds = dynamic_cast<QListWidget&>(OfDeck("Sounds"));
        int count = 0;
        for (int row = 0; row < sounds.count(); ++row) count += sounds.item(row)->text().contains(sound);
        return count;
    }
};

TEST_F(TonesTest, APanelThatPractisesMakesTuningHeard) {
    ASSERT_NO_FATAL_FAILURE(Open());
    ASSERT_NO_FATAL_FAILURE(Connect());
    EXPECT_LT(LoudnessOf(660), Silent);
    embedded::NetworkLink& network = house.Outside.Practice.NetworkLink;
    network.SetVoice(0, {RogerWilco, "srv1", "ops", "", ""});
    EXPECT_TRUE(IsHeard(660));
    EXPECT_TRUE(IsHeard(880));
    EXPECT_LT(LoudnessOf(440), Silent);
    network.SetVoice(0, {});
    EXPECT_TRUE(IsHeard(440));
    EXPECT_LT(LoudnessOf(550), Silent);
    EXPECT_EQ(Asked(OnChannel), 1);
}

TEST_F(TonesTest, CopiesDoNotPileUpAndWhatCanNotBePlayedPassesInSilence) {
    ASSERT_NO_FATAL_FAILURE(Open());
    ASSERT_NO_FATAL_FAILURE(Connect());
    for (const char* const sound : {"Tessaly\\NONE.wav", "..\\panel.html", ""}) house.Outside.Velmarc.PlaySound(sound);
    EXPECT_TRUE(ComesTrue([this] { return Asked("NONE.wav") == 1; }));
    for (int request = 0; request < 100; ++request) house.Outside.Velmarc.PlaySound(OnChannel);
    EXPECT_TRUE(IsHeard(660));
    EXPECT_TRUE(IsHeard(880));
    EXPECT_LE(std::ranges::max(server.Heard()), 9500);  // copies would add up
    EXPECT_EQ(Asked(OnChannel), 100);
}

TEST_F(TonesTest, InASetUpThePanelItselfIsSilent) {
    ASSERT_NO_FATAL_FAILURE(Open());
    ASSERT_NO_FATAL_FAILURE(Connect());
    const std::size_t asked = house.Outside.Practice.SimulatorLink.SoundsPlayed();
    house.Outside.Join({.Name = "elsewhere", .Host = "127.0.0.1", .Port = 1, .Identity = 2});
    ASSERT_TRUE(ComesTrue([this] { return !house.Outside.Velmarc.LinkUp(); }));
    house.Outside.Velmarc.PlaySound(OnChannel);
    house.Outside.Practise();
    ASSERT_TRUE(ComesTrue([this] { return house.Outside.Velmarc.LinkUp(); }));
    house.Outside.Velmarc.PlaySound("Tessaly\\RADIO_NOCHANNEL.wav");
    EXPECT_TRUE(IsHeard(440));
    EXPECT_LT(LoudnessOf(880), Silent);
    EXPECT_EQ(house.Outside.Practice.SimulatorLink.SoundsPlayed(), asked + 1);
}

}  // namespace

}  // namespace orvelle
