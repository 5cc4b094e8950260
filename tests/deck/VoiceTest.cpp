// The voice engine's page: the engine, its rooms, its devices and the calibration dialogue.
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QPushButton>
#include <optional>

#include "tests/deck/DeckRig.h"

namespace orvelle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DeckVoice : public DeckRig {
protected:
    void StartEngine() {
        setUp.VVL.Start(3);
        Settle();
        events.clear();
    }
    void Join(Long room) {
        setUp.VVL.RoomJoin(room, "ORV123 (pilot)", "voice.example.net/tower");
        Settle();
    }
    // Answers the dialogue from the loop, while the engine waits in it.
    void AnswerCalibration(QDialogButtonBox::StandardButton answer, double input, double output) {
        loop.Post([this, answer, input, output] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            shownInput = dialog->findChild<QDoubleSpinBox*>("InputSquelch")->value();
            dialog->findChild<QDoubleSpinBox*>("InputSquelch")->setValue(input);
            dialog->findChild<QDoubleSpinBox*>("OutputSquelch")->setValue(output);
            QTest::mouseClick(dialog->findChild<QDialogButtonBox*>()->button(answer), Qt::LeftButton);
        });
    }

    double shownInput = 0;
};

TEST_F(DeckVoice, TheEnginesStateIsShown) {
    EXPECT_EQ(TextOf("EngineStateText"), "Stopped");
    StartEngine();
    setUp.VVL.InputSquelch(37.5);
    setUp.VVL.OutputSquelch(50);
    Join(0);
    EXPECT_EQ(TextOf("EngineStateText"), "Running");
    EXPECT_EQ(TextOf("EngineAudioText"), "Audio runs");
    EXPECT_EQ(TextOf("EngineSquelch"), "Squelch 37.5 / 50");
}

TEST_F(DeckVoice, TheNextStartIsRefusedOrDies) {
    Pick("EngineStart", 1);
    EXPECT_FALSE(setUp.VVL.Start(3));
    Pick("EngineStart", 2);
    EXPECT_TRUE(setUp.VVL.Start(3));
    Settle();
    EXPECT_THAT(TakeEvents(), ElementsAre("engine stopped"));
    Pick("EngineStart", 0);
    EXPECT_TRUE(setUp.VVL.Start(3));
    Settle();
    EXPECT_THAT(TakeEvents(), ElementsAre("engine started"));
}

TEST_F(DeckVoice, ARunningEngineStopsByItself) {
    EXPECT_FALSE(At<QWidget>("EngineFail").isEnabled());
    StartEngine();
    Click("EngineFail");
    EXPECT_THAT(TakeEvents(), ElementsAre("engine stopped"));
    EXPECT_EQ(TextOf("EngineStateText"), "Stopped");
}

TEST_F(DeckVoice, ARoomIsShown) {
    StartEngine();
    Join(1);
    setUp.VVL.ChannelOutput(1, 0, true);
    setUp.VVL.RoomMute(1, false);
    Settle();
    EXPECT_EQ(TextOf("Room1StateText"), "In");
    EXPECT_EQ(TextOf("Room1Client"), "ORV123 (pilot)");
    EXPECT_EQ(TextOf("Room1Address"), "voice.example.net/tower");
    EXPECT_EQ(TextOf("Room1HeadsetText"), "Heard");
    EXPECT_EQ(TextOf("Room1SpeakersText"), "Silent");
    EXPECT_EQ(TextOf("Room1MicrophoneText"), "Open");
    EXPECT_EQ(TextOf("Room0StateText"), "Out");
}

TEST_F(DeckVoice, AudioComesAndGoes) {
    StartEngine();
    EXPECT_FALSE(At<QWidget>("Room0CarriesAudio").isEnabled());
    Join(0);
    TakeEvents();
    Click("Room0CarriesAudio");
    EXPECT_EQ(TextOf("Room0AudioText"), "On the air");
    Click("Room0CarriesAudio");
    EXPECT_EQ(TextOf("Room0AudioText"), "Quiet");
    EXPECT_THAT(TakeEvents(), ElementsAre("room audio started 0", "room audio stopped 0"));
}

TEST_F(DeckVoice, ThePanelIsKicked) {
    StartEngine();
    EXPECT_FALSE(At<QWidget>("Room2Kick").isEnabled());
    Join(2);
    TakeEvents();
    Click("Room2Kick");
    EXPECT_THAT(TakeEvents(), ElementsAre("room status changed 2", "kicked 2"));
    EXPECT_EQ(TextOf("Room2StateText"), "Out");
}

TEST_F(DeckVoice, JoinsAreRefusedOrFail) {
    StartEngine();
    Pick("Room0NextJoin", 1);
    Pick("Room1NextJoin", 2);
    EXPECT_FALSE(setUp.VVL.RoomJoin(0, "ORV123", "a/b"));
    Join(1);
    EXPECT_THAT(TakeEvents(), testing::Contains("join failed 1"));
}

TEST_F(DeckVoice, AStatusTextIsTold) {
    StartEngine();
    Join(0);
    TakeEvents();
    Type("Room0Status", "Two pilots");
    EXPECT_EQ(setUp.VVL.RoomStatus(0), "Two pilots");
    EXPECT_THAT(TakeEvents(), ElementsAre("room status changed 0"));
}

TEST_F(DeckVoice, DevicesFail) {
    StartEngine();
    Click("MicrophoneFails");
    Click("SpeakersFails");
    EXPECT_FALSE(setUp.VVL.InputStatus());
    EXPECT_TRUE(setUp.VVL.OutputStatus(0));
    EXPECT_FALSE(setUp.VVL.OutputStatus(1));
    Click("MicrophoneFails");
    EXPECT_TRUE(setUp.VVL.InputStatus());
}

TEST_F(DeckVoice, TheDevicesTellWhatThePanelSet) {
    setUp.VVL.InputDevice(2);
    setUp.VVL.OutputDevice(1, 0);
    setUp.VVL.OutputVolume(1, 150);
    setUp.VVL.SignalVolume(1, 30);
    setUp.VVL.OutputFilter(1, true);
    Settle();
    EXPECT_EQ(TextOf("MicrophoneDevice"), "Device 2");
    EXPECT_EQ(TextOf("SpeakersDevice"), "Device 0, volume 150, signal 30, filtered");
}

TEST_F(DeckVoice, CalibrationGivesTheTwoValues) {
    float input = 0;
    float output = 0;
    AnswerCalibration(QDialogButtonBox::Ok, 42.5, 17);
    EXPECT_TRUE(setUp.VVL.Calibrate(-1, 0, input, output));
    EXPECT_EQ(shownInput, 50);
    EXPECT_FLOAT_EQ(input, 42.5);
    EXPECT_FLOAT_EQ(output, 17);
}

TEST_F(DeckVoice, ACancelledCalibrationGivesNone) {
    float input = 1;
    float output = 2;
    AnswerCalibration(QDialogButtonBox::Cancel, 42.5, 17);
    EXPECT_FALSE(setUp.VVL.Calibrate(-1, 0, input, output));
    EXPECT_FLOAT_EQ(input, 1);
    EXPECT_FLOAT_EQ(output, 2);
}

TEST_F(DeckVoice, ACalibrationWithTheDeckClosedIsAskedToo) {
    window.close();
    float input = 0;
    float output = 0;
    AnswerCalibration(QDialogButtonBox::Ok, 1, 2);
    EXPECT_TRUE(setUp.VVL.Calibrate(-1, -1, input, output));
}

}  // namespace
}  // namespace orvelle
