// The whole panel with a sound server beside it, with one that comes later and goes again, and without one.
#include <QSlider>
#include <QTabWidget>
#include <csignal>
#include <optional>

#include "tests/endtoend/PanelTest.h"
#include "tests/pulse/ServerHand.h"
#include "tests/pulse/SoundServers.h"

namespace orvelle {

namespace {

constexpr auto Sink = pulse::DeviceKind::Sink;
constexpr auto Source = pulse::DeviceKind::Source;

// Stands before the panel, which looks for the server when it is made.
class SoundRoom {
protected:
    void StartServer() {
        server.Start();
        hand.emplace();
        hand->AddSink("headset", "Pilot's headset");
        hand->AddSink("loudspeakers", "Loudspeakers");
        hand->AddSource(pulse::PulseAudioServer::Microphone, "microphone", "Pilot's microphone");
        hand->SetDefault(Sink, "headset");
        hand->SetDefault(Source, "microphone");
        hand->SetPercent(Sink, "headset", 60);
    }
    void KillServer() {
        hand.reset();
        server.Kill();
    }

    pulse::SoundFolder soundFolder;
    pulse::PulseAudioServer server;
    std::optional<pulse::ServerHand> hand;
};

class RunningServer : protected SoundRoom {
protected:
    RunningServer() { StartServer(); }
};

// As the program opens it.
void OpenWithSound(PanelProgram& house, const std::function<void()>& open) {
    bool isKnown = false;
    house.Outside.WhenSoundIsKnown([&] { isKnown = true; });
    ASSERT_TRUE(ComesTrue([&] { return isKnown; }));
    open();
}

class SoundTest : protected RunningServer, public PanelTest {
protected:
    void OpenPanel() {
        ASSERT_NO_FATAL_FAILURE(OpenWithSound(house, [this] { Open(); }));
        ASSERT_TRUE(ComesTrue([this] { return panel.WaveOut.Visible() && panel.WaveIn.Visible(); }));
    }
};

class NoSoundTest : protected SoundRoom, public PanelTest {};

TEST_F(SoundTest, ASliderOfThePanelMovesTheServersVolumeAndBack) {
    ASSERT_NO_FATAL_FAILURE(OpenPanel());
    ShowPage("Volumes");
    auto& slider = dynamic_cast<QSlider&>(OfPanel("WaveOut"));
    ASSERT_TRUE(ComesTrue([&] { return slider.isVisible(); }));
    EXPECT_EQ(slider.value(), 60);
    EXPECT_FALSE(OfPanel("WaveOutWave").isVisible());
    user.Click(slider);
    user.Do({"key", "Home"});
    EXPECT_TRUE(ComesTrue([this] { return hand->Percent(Sink, "headset") == 0; }));
    user.Do({"key", "Right", "Right", "Right"});
    EXPECT_TRUE(ComesTrue([this] { return hand->Percent(Sink, "headset") == 3; }));
    EXPECT_EQ(slider.value(), 3);

    pulse::Pactl({"set-sink-volume", "headset", "21%"});
    EXPECT_TRUE(ComesTrue([&] { return slider.value() == 21; }));
    pulse::Pactl({"set-source-volume", "microphone", "43%"});
    EXPECT_TRUE(ComesTrue([this] { return dynamic_cast<QSlider&>(OfPanel("WaveIn")).value() == 43; }));
    house.Desktop.Window().grab().save(PICTURES "/volumes-with-server.png");
}

TEST_F(SoundTest, TheServersDevicesAreListedAndTheChosenOneIsFollowed) {
    ASSERT_NO_FATAL_FAILURE(OpenPanel());
    EXPECT_GE(panel.VVLMicrophone.IndexOf("Pilot's microphone"), 0);
    EXPECT_GE(panel.VVLHeadset.IndexOf("Pilot's headset"), 0);
    const Long loudspeakers = panel.VVLSpeakers.IndexOf("Loudspeakers");
    ASSERT_GE(loudspeakers, 0);
    EXPECT_LT(panel.VVLHeadset.IndexOf("DirectSound - Headset"), 0);
    EXPECT_FALSE(panel.WaveOutHP.Visible());
    panel.VVLSpeakers.Select(loudspeakers);
    ASSERT_TRUE(ComesTrue([this] { return panel.WaveOutHP.Visible() && !panel.WaveOutWaveHP.Visible(); }));
    hand->SetPercent(Sink, "loudspeakers", 17);
    EXPECT_TRUE(ComesTrue([this] { return panel.WaveOutHP.Value == 17; }));
    panel.WaveOutHP.UserScroll(71);
    EXPECT_TRUE(ComesTrue([this] { return hand->Percent(Sink, "loudspeakers") == 71; }));
    EXPECT_EQ(hand->Percent(Sink, "headset"), 60);
}

TEST_F(SoundTest, TheDeckSaysThatTheServerServes) {
    ASSERT_NO_FATAL_FAILURE(OpenPanel());
    dynamic_cast<QTabWidget&>(OfDeck("DeckPages")).setCurrentIndex(2);
    EXPECT_TRUE(OfDeck("RealMixersServe").isVisible());
    EXPECT_FALSE(OfDeck("HeadsetMasterLevel").isVisible());
    house.Deck->grab().save(PICTURES "/deck-with-server.png");
}

TEST_F(SoundTest, AServerThatHangsKeepsNoPanelFromOpening) {
    hand.reset();
    server.Signal(SIGSTOP);
    ASSERT_NO_FATAL_FAILURE(OpenWithSound(house, [this] { Open(); }));
    EXPECT_TRUE(ComesTrue([this] { return panel.WaveOut.Visible(); })) << "the practising mixer";
    server.Signal(SIGCONT);
    EXPECT_TRUE(ComesTrue([this] { return !house.Outside.Practice.VolumeControl.IsServing(); }));
    EXPECT_TRUE(ComesTrue([this] { return panel.WaveOut.Value == 60; }));
}

TEST_F(NoSoundTest, PractisingWorksWithoutAServerAndALaterOneTakesOver) {
    ASSERT_NO_FATAL_FAILURE(OpenWithSound(house, [this] { Open(); }));
    ASSERT_TRUE(ComesTrue([this] { return panel.WaveOut.Visible() && panel.WaveOutWave.Visible(); }));
    EXPECT_GE(panel.VVLHeadset.IndexOf("DirectSound - Headset"), 0);
    panel.WaveOut.UserScroll(33);
    EXPECT_EQ(house.Outside.Practice.VolumeControl.MasterVolume(), 33);
    EXPECT_FALSE(OfDeck("RealMixersServe").isVisibleTo(house.Deck.get()));

    StartServer();
    ASSERT_TRUE(ComesTrue([this] { return panel.WaveOut.Value == 60 && !panel.WaveOutWave.Visible(); }));
    panel.WaveOut.UserScroll(12);
    EXPECT_TRUE(ComesTrue([this] { return hand->Percent(Sink, "headset") == 12; }));
    EXPECT_EQ(house.Outside.Practice.VolumeControl.MasterVolume(), 33);

    KillServer();
    ASSERT_TRUE(ComesTrue([this] { return !panel.WaveOut.Visible() && !panel.WaveIn.Visible(); }));
    StartServer();
    EXPECT_TRUE(ComesTrue([this] { return panel.WaveOut.Visible() && panel.WaveOut.Value == 60; }));
}

}  // namespace

}  // namespace orvelle
