// The voice engine's page: the engine, its rooms, its devices and the calibration dialogue.
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <algorithm>
#include <optional>

#include "adapters/ends/VoiceEngineEnd.h"
#include "deck/fields/SelectableText.h"
#include "deck/fields/SignalLight.h"
#include "tests/deck/DeckRig.h"
#include "tests/qt/shell/WidgetInput.h"

namespace orvelle {
namespace {

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
            parent = dialog->parentWidget();
            shownMicrophone = dialog->findChild<QLabel*>("CalibratedMicrophone")->text();
            shownHeadset = dialog->findChild<QLabel*>("CalibratedHeadset")->text();
            EXPECT_TRUE(dialog->windowFlags().testFlag(Qt::CustomizeWindowHint));
            EXPECT_FALSE(dialog->windowFlags() & Qt::WindowMinMaxButtonsHint);
            EXPECT_GT(dialog->width(), dialog->fontMetrics().horizontalAdvance(dialog->windowTitle()));
            shownInput = dialog->findChild<QDoubleSpinBox*>("InputSquelch")->value();
            dialog->findChild<QDoubleSpinBox*>("InputSquelch")->setValue(input);
            dialog->findChild<QDoubleSpinBox*>("OutputSquelch")->setValue(output);
            ClickMouse(dialog->findChild<QDialogButtonBox*>()->button(answer), Qt::LeftButton);
        });
    }

    double shownInput = 0;
    QString shownMicrophone;
    QString shownHeadset;
    QWidget* parent = nullptr;
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

TEST_F(DeckVoice, StartsAreRefusedOrDie) {
    Pick("EngineStart", 1);
    EXPECT_FALSE(setUp.VVL.Start(3));
    Pick("EngineStart", 2);
    EXPECT_TRUE(setUp.VVL.Start(3));
    Settle();
    EXPECT_EQ(TakeEvents(), Events({"engine stopped"}));
    Pick("EngineStart", 0);
    EXPECT_TRUE(setUp.VVL.Start(3));
    Settle();
    EXPECT_EQ(TakeEvents(), Events({"engine started"}));
}

TEST_F(DeckVoice, ARunningEngineStopsByItself) {
    StartEngine();
    Click("EngineFail");
    EXPECT_EQ(TakeEvents(), Events({"engine stopped"}));
    EXPECT_EQ(TextOf("EngineStateText"), "Stopped");
    EXPECT_TRUE(At<QWidget>("EngineFail").hasFocus());
    ClickKey(&At<QWidget>("EngineFail"), Qt::Key_Space);
    Settle();
    EXPECT_EQ(TakeEvents(), Events({}));
    EXPECT_FALSE(At<QCheckBox>("MicrophoneFails").isChecked());
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

TEST_F(DeckVoice, AStoppedEngineHasNothingToTellOfItsRooms) {
    StartEngine();
    Join(1);
    setUp.VVL.ChannelOutput(1, 0, true);
    setUp.VVL.Stop();
    Settle();
    for (const char* text : {"Room1Client", "Room1Address", "Room1MicrophoneText", "Room1HeadsetText",
                             "Room1SpeakersText", "Room1AudioText"})
        EXPECT_EQ(TextOf(text), "") << text;
    EXPECT_EQ(TextOf("Room1StateText"), "Out");
}

TEST_F(DeckVoice, AStartUnderWayIsTold) {
    setUp.VVL.SetStartDelay(60'000);
    setUp.VVL.Start(3);
    Settle();
    EXPECT_EQ(TextOf("EngineStateText"), "Starting");
    EXPECT_EQ(At<deck::SignalLight>("EngineState").Shown(), Sign::Waiting);
    EXPECT_EQ(TextOf("FlightEngineText"), "Starting");
}

TEST_F(DeckVoice, TheFlightShowsWhereTheUserTalks) {
    StartEngine();
    EXPECT_EQ(TextOf("FlightEngineText"), "Running");
    setUp.VVL.RoomMute(0, false);
    Settle();
    EXPECT_EQ(TextOf("TalksCOM1Text"), "COM1 silent") << "nobody is there to hear";
    Join(0);
    EXPECT_EQ(TextOf("TalksCOM1Text"), "COM1 talks");
    EXPECT_EQ(TextOf("TalksCOM2Text"), "COM2 silent");
    EXPECT_EQ(TextOf("TalksPrivateText"), "Private silent");
    setUp.VVL.RoomMute(0, true);
    Settle();
    EXPECT_EQ(TextOf("TalksCOM1Text"), "COM1 silent");
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
    EXPECT_EQ(TakeEvents(), Events({"room audio started 0", "room audio stopped 0"}));
}

TEST_F(DeckVoice, ThePanelIsKicked) {
    StartEngine();
    Join(1);
    Join(2);
    TakeEvents();
    Click("Room1Kick");
    EXPECT_EQ(TakeEvents(), Events({"room status changed 1", "kicked 1"}));
    EXPECT_EQ(TextOf("Room1StateText"), "Out");
    EXPECT_TRUE(At<QWidget>("Room1Kick").hasFocus());
    ClickKey(&At<QWidget>("Room1Kick"), Qt::Key_Space);
    Settle();
    EXPECT_EQ(TakeEvents(), Events({}));
    EXPECT_EQ(TextOf("Room2StateText"), "In");
}

TEST_F(DeckVoice, JoinsAreRefusedOrFail) {
    StartEngine();
    Pick("Room0Joins", 1);
    Pick("Room1Joins", 2);
    EXPECT_FALSE(setUp.VVL.RoomJoin(0, "ORV123", "a/b"));
    Join(1);
    const std::vector<std::string> told = TakeEvents();
    EXPECT_NE(std::find(told.begin(), told.end(), "join failed 1"), told.end());
}

TEST_F(DeckVoice, AStatusTextIsTold) {
    StartEngine();
    Join(0);
    TakeEvents();
    Type("Room0Status", "Two pilots");
    EXPECT_EQ(setUp.VVL.RoomStatus(0), "Two pilots");
    EXPECT_EQ(TakeEvents(), Events({"room status changed 0"}));
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
    setUp.VVL.InputDevice(0);
    setUp.VVL.OutputDevice(0, 7);
    setUp.VVL.OutputDevice(1, 0);
    setUp.VVL.OutputVolume(1, 150);
    setUp.VVL.SignalVolume(1, 30);
    setUp.VVL.OutputFilter(1, true);
    Settle();
    EXPECT_EQ(TextOf("MicrophoneDevice"), "DirectSound - Microphone");
    EXPECT_EQ(TextOf("HeadsetDevice"), "Device 7");
    EXPECT_EQ(TextOf("SpeakersDevice"), "DirectSound - Loudspeakers");
    EXPECT_EQ(TextOf("SpeakersLevels"), "Volume 150, signal 30, filtered");
    setUp.VVL.OutputDevice(0, -1);
    Settle();
    EXPECT_EQ(TextOf("HeadsetDevice"), "Default device");
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

TEST_F(DeckVoice, CalibrationNamesTheDevices) {
    float value = 0;
    AnswerCalibration(QDialogButtonBox::Ok, 1, 2);
    setUp.VVL.Calibrate(1, -1, value, value);
    EXPECT_EQ(shownMicrophone, "Wave - Headset Microphone");
    EXPECT_EQ(shownHeadset, "Default device");
}

TEST_F(DeckVoice, WhatWasAcceptedIsOfferedNextALevelOfNothingToo) {
    float value = 0;
    AnswerCalibration(QDialogButtonBox::Ok, 0, 17);
    setUp.VVL.Calibrate(-1, -1, value, value);
    AnswerCalibration(QDialogButtonBox::Cancel, 99, 99);
    setUp.VVL.Calibrate(-1, -1, value, value);
    EXPECT_EQ(shownInput, 0);
    Settle();
    EXPECT_EQ(TextOf("EngineSquelch"), "Squelch 0 / 17");
}

TEST_F(DeckVoice, CalibrationBelongsToTheWindowThatAskedForIt) {
    QWidget panel;
    panel.show();
    panel.activateWindow();
    ASSERT_TRUE(WaitForWindowActive(&panel));
    float value = 0;
    AnswerCalibration(QDialogButtonBox::Ok, 1, 2);
    setUp.VVL.Calibrate(-1, -1, value, value);
    EXPECT_EQ(parent, &panel);
}

TEST_F(DeckVoice, ACancelledCalibrationGivesNone) {
    float input = 1;
    float output = 2;
    AnswerCalibration(QDialogButtonBox::Cancel, 42.5, 17);
    EXPECT_FALSE(setUp.VVL.Calibrate(-1, 0, input, output));
    EXPECT_FLOAT_EQ(input, 1);
    EXPECT_FLOAT_EQ(output, 2);
}

TEST_F(DeckVoice, ACalibrationWithTheDeckMinimisedIsAskedToo) {
    CloseByHand();
    float input = 0;
    float output = 0;
    AnswerCalibration(QDialogButtonBox::Ok, 1, 2);
    EXPECT_TRUE(setUp.VVL.Calibrate(-1, -1, input, output));
}

// The deck where an engine that is heard may serve, in whose place another one stands here: what it does is shown, what
// only the played one can be made to do is greyed.
class DeckHeardVoice : public DeckVoice {
protected:
    DeckHeardVoice() {
        heardDeck.resize(heardDeck.UsualSize());
        heardDeck.show();
        TurnToVoice(heardDeck);
    }
    FarSides HeardSides() {
        FarSides sides = Sides();
        sides.ServingEngine = &engine;
        return sides;
    }
    static void TurnToVoice(const DeckWindow& deck) { deck.findChild<QTabWidget*>("DeckPages")->setCurrentIndex(1); }
    QString Text(const char* name) { return heardDeck.findChild<QLabel*>(name)->text(); }
    bool IsEnabled(const char* name) { return heardDeck.findChild<QWidget*>(name)->isEnabled(); }
    bool AreAll(bool enabled) {
        for (const char* name : {"EngineStart", "EngineFail", "StartDelay", "JoinDelay", "Room0Kick", "Room1Joins",
                                 "MicrophoneFails", "HeadsetFails", "SpeakersFails"})
            if (IsEnabled(name) != enabled) return false;
        return true;
    }

    void Start() {
        engine.Start(EngineMode);
        Settle();
    }

    embedded::VoiceEngine heard{loop, setUp.Devices};
    bool isSoundThere = true;
    ends::VoiceEngineEnd engine{loop, ends::ServingEngine::Of(setUp.VVL), [this] {
                                    isSoundThere ? setUp.VVL.StandBack() : setUp.VVL.StepForward();
                                    return ends::ServingEngine::Of(isSoundThere ? heard : setUp.VVL);
                                }};
    DeckWindow heardDeck{HeardSides()};
};

TEST_F(DeckHeardVoice, DevicesThatFailAreNoAudioThatRuns) {
    Start();
    heard.RoomJoin(0, "ORV123 (pilot)", "voice.example.net/tower");
    Settle();
    EXPECT_EQ(Text("EngineAudioText"), "Audio runs");
    heard.FailInput(true);
    Settle();
    EXPECT_EQ(Text("EngineAudioText"), "A device fails");
    for (const Long output : {Headset, Speakers}) heard.FailOutput(output, true);
    Settle();
    EXPECT_EQ(Text("EngineAudioText"), "All devices fail");
    EXPECT_EQ(heardDeck.findChild<deck::SignalLight*>("EngineAudio")->Shown(), Sign::Bad);
    heard.RoomLeave(0);
    Settle();
    EXPECT_EQ(Text("EngineAudioText"), "No audio");
}

TEST_F(DeckHeardVoice, ALongStatusHasTheWidthOfItsBoxAndIsSelectedByTheMouse) {
    Start();
    heard.RoomJoin(0, "ORV123 (pilot)", "voice.example.net/tower");
    Settle();
    const std::string sentence =
        "voice.example.net is not the server that it was. If its operator says that its certificate is new, remove its "
        "line from /home/pilot/.local/share/OrvelleCP/voice/known-servers.";
    heard.SetRoomStatus(0, sentence);
    Settle();
    auto* status = heardDeck.findChild<deck::SelectableText*>("Room0RealStatus");
    EXPECT_EQ(status->toPlainText().toStdString(), sentence);
    EXPECT_GT(status->width(), heardDeck.findChild<QWidget*>("Rooms")->width() / 2);
    EXPECT_GE(status->height(), status->document()->size().height()) << "its last line is cut off";
    EXPECT_LT(status->height(), 6 * status->fontMetrics().lineSpacing());
    PressMouse(status->viewport(), Qt::LeftButton, {}, {1, 5});
    MoveMouse(status->viewport(), {150, 5});
    ReleaseMouse(status->viewport(), Qt::LeftButton, {}, {150, 5});
    EXPECT_TRUE(status->textCursor().selectedText().startsWith("voice.ex"));
    status->selectAll();
    status->copy();
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(), sentence);
    QDir().mkpath(PICTURES);
    EXPECT_TRUE(heardDeck.grab().save(PICTURES "/deck-long-status.png"));
}

TEST_F(DeckHeardVoice, IsShownAndNotPlayed) {
    setUp.VVL.SetStartOutcome(StartOutcome::Dies);
    setUp.VVL.SetJoinOutcome(1, JoinOutcome::Fails);
    Start();
    heard.RoomJoin(1, "ORV123 (pilot)", "voice.example.net/tower");
    heard.RoomMute(1, false);
    heard.InputSquelch(37.5);
    heard.FailOutput(Speakers, true);
    Settle();
    heard.SetRoomAudio(1, true);
    Settle();
    EXPECT_EQ(Text("EngineStateText"), "Running");
    EXPECT_EQ(Text("EngineAudioText"), "A device fails");
    EXPECT_EQ(Text("EngineSquelch"), "Squelch 37.5 / 50");
    EXPECT_EQ(Text("Room1StateText"), "In");
    EXPECT_EQ(Text("Room1MicrophoneText"), "Open");
    EXPECT_EQ(Text("Room1AudioText"), "On the air");
    EXPECT_EQ(Text("FlightEngineText"), "Running");
    EXPECT_EQ(Text("TalksCOM2Text"), "COM2 talks");
    EXPECT_TRUE(heardDeck.findChild<QCheckBox*>("SpeakersFails")->isChecked());
    EXPECT_EQ(heardDeck.findChild<deck::SelectableText*>("Room1RealStatus")->toPlainText(),
              "In voice.example.net/tower");
    EXPECT_FALSE(heardDeck.findChild<QWidget*>("Room1Status")->isVisible());
    EXPECT_EQ(heardDeck.findChild<QComboBox*>("EngineStart")->currentIndex(), 2);
    EXPECT_EQ(heardDeck.findChild<QComboBox*>("Room1Joins")->currentIndex(), 2);
    EXPECT_TRUE(AreAll(false));
    EXPECT_FALSE(IsEnabled("Room1CarriesAudio"));
    EXPECT_EQ(Text("RealEngineServes"),
              "The voice engine that is heard serves: what happens in it is real, and can't be played here.");
    EXPECT_TRUE(heardDeck.findChild<QLabel*>("RealEngineServes")->isVisible());
    QDir().mkpath(PICTURES);
    EXPECT_TRUE(heardDeck.grab().save(PICTURES "/deck-heard-engine.png"));
}

TEST_F(DeckHeardVoice, BeginsAndEndsWithTheChoice) {
    EXPECT_TRUE(AreAll(true));
    Start();
    EXPECT_TRUE(AreAll(false));
    EXPECT_TRUE(heardDeck.findChild<QLabel*>("RealEngineServes")->isVisible());
    engine.Stop();
    isSoundThere = false;
    Start();
    EXPECT_TRUE(AreAll(true));
    EXPECT_FALSE(heardDeck.findChild<QLabel*>("RealEngineServes")->isVisible());
}

}  // namespace
}  // namespace orvelle
