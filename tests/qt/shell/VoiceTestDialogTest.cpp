// "Voice Test and Calibration" as its user works it, with devices as a script has them.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QCheckBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <cmath>

#include "adapters/looks/Theme.h"
#include "adapters/looks/reach/Reach.h"
#include "adapters/qt/services/QtVoiceDialogs.h"
#include "adapters/qt/widgets/LevelMeter.h"
#include "adapters/qt/widgets/SignedSentence.h"
#include "adapters/qt/windows/VoiceTestDialog.h"
#include "tests/qt/shell/Answerer.h"
#include "tests/qt/shell/ScriptedTrial.h"
#include "tests/qt/shell/Waiting.h"

namespace orvelle::qt {
namespace {

class VoiceTestDialogTest : public testing::Test {
protected:
    // What the dialogue gives when its user does `answer`.
    // Begun: its user has pressed the button.
    enum class First { Begun, Unbegun };
    std::optional<Squelch> Run(std::function<void(VoiceTestDialog&)> answer, Squelch now = {50, 50},
                               First first = First::Begun) {
        Answerer<VoiceTestDialog> answerer([answer = std::move(answer), first](VoiceTestDialog& shown) {
            MakeQuick(shown);
            EXPECT_TRUE(WaitForWindowActive(&shown));
            if (first == First::Begun) shown.findChild<QPushButton*>("Begin")->click();
            answer(shown);
        });
        const auto given = dialogs.Calibrate(trial, now);
        trial.Input = [] { return 0; };  // it may have looked at the dialogue
        return given;
    }

    // A room of level 10 and a voice of 70, as soon as it is asked for.
    void SpeakWhenAsked(const VoiceTestDialog& shown) {
        trial.Input = [sentence = SentenceOf(shown)] { return sentence->text().startsWith("Now speak") ? 70 : 10; };
    }

    // What its user sees in this step, in both palettes.
    static void Picture(VoiceTestDialog& shown, const QString& step) {
        QDir().mkpath(PICTURES);
        for (const Scheme scheme : {Scheme::Dark, Scheme::Light}) {
            shown.setPalette(CalmPalette(scheme));
            const QString file =
                QString(PICTURES "/voice-test-%1-%2.png").arg(step, scheme == Scheme::Dark ? "dark" : "light");
            EXPECT_TRUE(shown.grab().save(file));
        }
    }

    static SignedSentence* SentenceOf(const VoiceTestDialog& shown) {
        return shown.findChild<SignedSentence*>("Measurement");
    }
    static bool ComesToSay(const VoiceTestDialog& shown, const QString& beginning) {
        return ComesTrue([&] { return SentenceOf(shown)->text().startsWith(beginning); });
    }
    static double InputOf(const VoiceTestDialog& shown) {
        return shown.findChild<QDoubleSpinBox*>("InputSquelch")->value();
    }

    ScriptedTrial trial;
    QtVoiceDialogs dialogs{[] { return nullptr; }};
};

TEST_F(VoiceTestDialogTest, TheSquelchComesBetweenSilenceAndSpeech) {
    const auto given = Run([this](VoiceTestDialog& shown) {
        SpeakWhenAsked(shown);
        EXPECT_TRUE(ComesToSay(shown, "Please be quiet"));
        EXPECT_TRUE(ComesToSay(shown, "Measured: "));
        EXPECT_EQ(SentenceOf(shown)->ShownSign(), Sign::Good);
        EXPECT_EQ(shown.findChild<QSlider*>("InputSquelchSlider")->value(), 30);
        ClickKey(shown.focusWidget(), Qt::Key_Return);
    });
    ASSERT_TRUE(given);
    EXPECT_FLOAT_EQ(given->Input, 30);
    EXPECT_FLOAT_EQ(given->Output, 50);
}

TEST_F(VoiceTestDialogTest, NothingIsMeasuredUntilItsUserBegins) {
    Run(
        [this](VoiceTestDialog& shown) {
            auto* begin = shown.findChild<QPushButton*>("Begin");
            EXPECT_TRUE(SentenceOf(shown)->text().startsWith("Press \"Begin\""));
            EXPECT_EQ(SentenceOf(shown)->ShownSign(), Sign::Off);
            EXPECT_EQ(begin->text(), "&Begin");
            EXPECT_EQ(shown.focusWidget(), begin);
            trial.Input = [] { return 30; };
            EXPECT_TRUE(ComesTrue([&] { return shown.findChild<LevelMeter*>("InputLevel")->Level() == 30; }));
            EXPECT_TRUE(SentenceOf(shown)->text().startsWith("Press"));
            Picture(shown, "ready");
            SpeakWhenAsked(shown);
            ClickKey(begin, Qt::Key_Return);
            EXPECT_TRUE(ComesToSay(shown, "Please be quiet"));
            EXPECT_EQ(SentenceOf(shown)->ShownSign(), Sign::Off);
            EXPECT_EQ(begin->text(), "&Try again");
            Picture(shown, "quiet");
            EXPECT_TRUE(ComesToSay(shown, "Now speak"));
            EXPECT_EQ(SentenceOf(shown)->ShownSign(), Sign::Off);
            Picture(shown, "speaking");
            EXPECT_TRUE(ComesToSay(shown, "Measured: "));
            Picture(shown, "measured");
            ClickKey(begin, Qt::Key_Return);
            EXPECT_FALSE(shown.isVisible());
        },
        {50, 50}, First::Unbegun);
}

TEST_F(VoiceTestDialogTest, AMicrophoneThatWasMutedIsMeasuredOnceItGivesSomething) {
    const auto given = Run([this](VoiceTestDialog& shown) {
        trial.Input = [] { return 0; };
        EXPECT_TRUE(ComesToSay(shown, "Nothing comes from the microphone"));
        EXPECT_EQ(SentenceOf(shown)->ShownSign(), Sign::Bad);
        Picture(shown, "silent");
        SpeakWhenAsked(shown);
        EXPECT_TRUE(ComesToSay(shown, "Measured: "));
        ClickKey(shown.focusWidget(), Qt::Key_Return);
    });
    ASSERT_TRUE(given);
    EXPECT_FLOAT_EQ(given->Input, 30);
}

TEST_F(VoiceTestDialogTest, ACancelGivesNoneInWhicheverStep) {
    EXPECT_FALSE(Run([](VoiceTestDialog& shown) { ClickKey(&shown, Qt::Key_Escape); }));
    EXPECT_FALSE(Run([this](VoiceTestDialog& shown) {
        SpeakWhenAsked(shown);
        EXPECT_TRUE(ComesToSay(shown, "Now speak"));
        CloseFromTheFrame(&shown);
    }));
    EXPECT_FALSE(Run([this](VoiceTestDialog& shown) {
        SpeakWhenAsked(shown);
        EXPECT_TRUE(ComesToSay(shown, "Measured"));
        ClickKey(&shown, Qt::Key_Escape);
    }));
}

TEST_F(VoiceTestDialogTest, AValueSetByHandEndsTheMeasurement) {
    const auto given = Run([this](VoiceTestDialog& shown) {
        SpeakWhenAsked(shown);
        EXPECT_TRUE(ComesToSay(shown, "Please be quiet"));
        auto* slider = shown.findChild<QSlider*>("InputSquelchSlider");
        slider->setFocus();
        ClickKey(slider, Qt::Key_Right);
        EXPECT_TRUE(ComesToSay(shown, "The input squelch is set by hand"));
        EXPECT_EQ(InputOf(shown), 51);
        auto* number = shown.findChild<QDoubleSpinBox*>("OutputSquelch");
        number->setFocus();
        number->selectAll();
        TypeText(number, "7.5");
        ClickKey(number, Qt::Key_Return);
    });
    ASSERT_TRUE(given);
    EXPECT_FLOAT_EQ(given->Input, 51);
    EXPECT_FLOAT_EQ(given->Output, 7.5);
}

TEST_F(VoiceTestDialogTest, TheKeyboardAloneDoesAll) {
    const auto given = Run([this](VoiceTestDialog& shown) {
        SpeakWhenAsked(shown);
        EXPECT_TRUE(ComesToSay(shown, "Measured"));
        EXPECT_EQ(shown.focusWidget()->objectName(), "Begin");
        trial.Input = [sentence = SentenceOf(shown)] { return sentence->text().startsWith("Now speak") ? 80 : 20; };
        ClickKey(shown.focusWidget(), Qt::Key_Space);
        EXPECT_TRUE(ComesToSay(shown, "Please be quiet"));
        EXPECT_TRUE(ComesToSay(shown, "Measured"));
        // Everything that can be worked is reached by Tab.
        QStringList reached;
        for (int step = 0; step < 8; ++step) {
            ClickKey(shown.focusWidget(), Qt::Key_Tab);
            QString name = shown.focusWidget()->objectName();
            if (auto* button = qobject_cast<QPushButton*>(shown.focusWidget())) name = button->text().remove('&');
            reached.append(name);
        }
        for (const char* name : {"InputSquelchSlider", "InputSquelch", "OutputSquelchSlider", "OutputSquelch",
                                 "HearMyself", "OK", "Cancel", "Try again"})
            EXPECT_TRUE(reached.contains(name)) << name << " is not among " << reached.join(", ").toStdString();
        ClickKey(&shown, Qt::Key_I, Qt::AltModifier);
        EXPECT_EQ(shown.focusWidget()->objectName(), "InputSquelchSlider");
        ClickKey(&shown, Qt::Key_U, Qt::AltModifier);
        EXPECT_EQ(shown.focusWidget()->objectName(), "OutputSquelchSlider");
        ClickKey(&shown, Qt::Key_H, Qt::AltModifier);
        EXPECT_TRUE(ComesTrue([&] { return shown.findChild<QCheckBox*>("HearMyself")->isChecked(); }));
        ClickKey(&shown, Qt::Key_Return);
    });
    ASSERT_TRUE(given);
    EXPECT_FLOAT_EQ(given->Input, 40);
    EXPECT_EQ(trial.Heard, (std::vector<bool>{true, false}));
}

TEST_F(VoiceTestDialogTest, OneHearsOneselfWhileNothingIsMeasured) {
    Run([this](VoiceTestDialog& shown) {
        SpeakWhenAsked(shown);
        auto* hear = shown.findChild<QCheckBox*>("HearMyself");
        hear->click();
        EXPECT_TRUE(ComesToSay(shown, "Now speak"));
        EXPECT_TRUE(trial.Heard.empty());
        EXPECT_TRUE(ComesToSay(shown, "Measured"));
        EXPECT_TRUE(ComesTrue([&] { return trial.Heard == std::vector<bool>{true}; }));
        shown.findChild<QPushButton*>("Begin")->click();
        EXPECT_EQ(trial.Heard, (std::vector<bool>{true, false}));
        EXPECT_TRUE(ComesToSay(shown, "Measured"));
        EXPECT_TRUE(ComesTrue([&] { return trial.Heard.size() == 3; }));
        ClickKey(&shown, Qt::Key_Escape);
    });
    EXPECT_EQ(trial.Heard, (std::vector<bool>{true, false, true, false}));
}

TEST_F(VoiceTestDialogTest, DevicesThatDoNotWorkAreTold) {
    trial.Microphone = trial.Headset = false;
    Run([this](VoiceTestDialog& shown) {
        const auto* headset = shown.findChild<SignedSentence*>("HeadsetState");
        EXPECT_FALSE(headset->isVisible());
        EXPECT_TRUE(ComesToSay(shown, "The microphone does not work."));
        EXPECT_TRUE(headset->text().startsWith("The headset does not work."));
        EXPECT_TRUE(ComesTrue([&] { return headset->isVisible(); }));
        EXPECT_EQ(headset->ShownSign(), Sign::Bad);
        EXPECT_EQ(SentenceOf(shown)->ShownSign(), Sign::Bad);
        SpeakWhenAsked(shown);
        trial.Microphone = trial.Headset = true;
        EXPECT_TRUE(ComesToSay(shown, "Measured: "));
        EXPECT_FALSE(headset->isVisible());
        // Pulled afterwards, it is told, and what was measured stays.
        trial.Microphone = false;
        EXPECT_TRUE(ComesToSay(shown, "The microphone does not work."));
        EXPECT_NEAR(InputOf(shown), 30, 0.1);
        ClickKey(&shown, Qt::Key_Escape);
    });
}

TEST_F(VoiceTestDialogTest, EachTroubleOfAMicrophoneHasItsSentence) {
    Run([this](VoiceTestDialog& shown) {
        EXPECT_TRUE(ComesToSay(shown, "Nothing comes from the microphone"));
        trial.Input = [] { return 40; };  // it goes on by itself, and may be begun anew
        shown.findChild<QPushButton*>("Begin")->click();
        EXPECT_TRUE(ComesToSay(shown, "Your voice was hardly louder"));
        EXPECT_EQ(InputOf(shown), 50);
        trial.Input = [sentence = SentenceOf(shown)] { return sentence->text().startsWith("Now speak") ? 100 : 10; };
        shown.findChild<QPushButton*>("Begin")->click();
        EXPECT_TRUE(ComesToSay(shown, "Measured, but your voice is so loud"));
        EXPECT_NEAR(InputOf(shown), 40, 0.1);
        ClickKey(&shown, Qt::Key_Escape);
    });
}

TEST_F(VoiceTestDialogTest, OddLevelsAndValuesAreTheNearerEnd) {
    for (const double level : {std::nan(""), 0.0, 100.0, -1e9, 1e9}) {
        trial.Input = [level] { return level; };
        trial.Output = level;
        const auto given = Run(
            [level](VoiceTestDialog& shown) {
                const auto* meter = shown.findChild<LevelMeter*>("OutputLevel");
                const double wanted = level > 0 ? 100 : 0;
                EXPECT_TRUE(ComesToSay(shown, "Now speak"));
                EXPECT_EQ(meter->Level(), wanted);
                ClickKey(&shown, Qt::Key_Return);
            },
            {std::nanf(""), 1e9F});
        ASSERT_TRUE(given);
        EXPECT_EQ(given->Input, 0);
        EXPECT_EQ(given->Output, 100);
    }
}

TEST_F(VoiceTestDialogTest, ASecondOneIsCancelledAtOnce) {
    bool wasAsked = false;
    const auto given = Run([&](VoiceTestDialog& shown) {
        EXPECT_FALSE(dialogs.Calibrate(trial, {1, 2}));
        wasAsked = true;
        ClickKey(&shown, Qt::Key_Return);
    });
    EXPECT_TRUE(given && wasAsked);
    // And once it is closed there may be another one.
    EXPECT_TRUE(Run([](VoiceTestDialog& shown) { ClickKey(&shown, Qt::Key_Return); }));
}

TEST_F(VoiceTestDialogTest, TheProgramIsServedMeanwhile) {
    bool wasServed = false;
    Run([&](VoiceTestDialog& shown) {
        QTimer::singleShot(0, [&] { wasServed = true; });
        EXPECT_TRUE(ComesTrue([&] { return wasServed; }));
        ClickKey(&shown, Qt::Key_Escape);
    });
    EXPECT_TRUE(wasServed);
}

TEST_F(VoiceTestDialogTest, AssistiveProgramsFindEverythingByNameAndRole) {
    InstallReach();
    trial.Input = [] { return 55; };
    Run([](VoiceTestDialog& shown) {
        const auto nameOf = [&](const char* object) {
            return QAccessible::queryAccessibleInterface(shown.findChild<QWidget*>(object))->text(QAccessible::Name);
        };
        const auto roleOf = [&](const char* object) {
            return QAccessible::queryAccessibleInterface(shown.findChild<QWidget*>(object))->role();
        };
        EXPECT_TRUE(ComesToSay(shown, "Now speak"));
        EXPECT_TRUE(nameOf("Measurement").startsWith("Now speak"));
        EXPECT_EQ(nameOf("InputLevel"), "Microphone level: 55, passes");
        EXPECT_EQ(nameOf("OutputLevel"), "Headset level: 0, is cut off");
        for (const char* slider : {"InputSquelchSlider", "OutputSquelchSlider"})
            EXPECT_EQ(roleOf(slider), QAccessible::Slider);
        for (const char* number : {"InputSquelch", "OutputSquelch"}) EXPECT_EQ(roleOf(number), QAccessible::SpinBox);
        EXPECT_EQ(nameOf("InputSquelchSlider"), "Input squelch");
        EXPECT_EQ(nameOf("OutputSquelch"), "Output squelch");
        EXPECT_EQ(roleOf("HearMyself"), QAccessible::CheckBox);
        EXPECT_EQ(nameOf("HearMyself"), "Hear myself");
        EXPECT_EQ(nameOf("Begin"), "Try again");
        EXPECT_EQ(nameOf("MeasurementProgress"), "Measurement");
        for (const char* name : {"InputLevel", "OutputLevel", "InputSquelch", "OutputSquelch", "HearMyself", "Begin"})
            EXPECT_NE(shown.findChild<QWidget*>(name)->toolTip(), "") << name;
        ClickKey(&shown, Qt::Key_Escape);
    });
}

}  // namespace
}  // namespace orvelle::qt
