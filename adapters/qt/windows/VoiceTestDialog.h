// "Voice Test and Calibration": the levels of microphone and headset, each with its squelch, which the user sets by
// hand or has measured. It measures once its user begins, and says plainly which device does not work. Run by
// QtVoiceDialogs; accepted, it has the two values.
#pragma once

#include <QDialog>

#include "adapters/qt/services/SquelchMeasurement.h"
#include "platform/VoiceDialogs.h"

class QCheckBox;
class QProgressBar;
class QPushButton;

namespace orvelle::qt {

class LevelMeter;
class SignedSentence;
class SquelchField;

class VoiceTestDialog : public QDialog {
    Q_OBJECT

public:
    // The trial outlives it.
    VoiceTestDialog(VoiceTrial& voiceTrial, const Squelch& now, QWidget* parent);
    ~VoiceTestDialog() override;

    Squelch Chosen() const;

private:
    // How long a device has not worked, since it needs a moment to be opened.
    struct Absence {
        Long Levels = 0;

        void Take(bool works) { Levels = works ? 0 : Levels + 1; }
        bool IsLong() const;
    };

    void Arrange();
    void Take();
    void Begin();
    void InputChanged();
    void ShowStep();
    void HearAsWished();

    VoiceTrial& trial;
    SquelchMeasurement measurement;
    Absence microphoneAway, headsetAway;
    bool isSetting = false;  // the measured value, not the user's
    bool isHeard = false;

    SignedSentence* sentence;
    QProgressBar* progress;
    LevelMeter* inputLevel;
    LevelMeter* outputLevel;
    SquelchField* input;
    SquelchField* output;
    SignedSentence* headset;
    QCheckBox* hear;
    QPushButton* begin;
    QPushButton* accept = nullptr;
};

}  // namespace orvelle::qt
