#include "adapters/qt/windows/VoiceTestDialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QTimer>

#include "adapters/qt/widgets/Heading.h"
#include "adapters/qt/widgets/LevelMeter.h"
#include "adapters/qt/widgets/SignedSentence.h"
#include "adapters/qt/widgets/SquelchField.h"

namespace orvelle::qt {

namespace {

using Step = SquelchMeasurement::Step;

constexpr Long OpeningLevels = 2000 / SquelchMeasurement::Interval;
constexpr int SentenceLines = 3;
constexpr int LineLength = 66;  // characters
constexpr int ProgressSteps = 1000;

struct Saying {
    Sign Before;
    const char* Sentence;
};

Saying SayingOf(Step step) {
    switch (step) {
        case Step::Ready:
            return {
                Sign::Off,
                "Press \"Begin\" when you are ready. First be quiet for two seconds, so that the noise of the room is "
                "measured; then speak for three seconds as you will on the radio."};
        case Step::Waiting:
            return {Sign::Off, "One moment: the microphone is being opened."};
        case Step::Quiet:
            return {Sign::Off, "Please be quiet for two seconds: the noise of the room is measured."};
        case Step::Speaking:
            return {Sign::Off, "Now speak as you will on the radio, until the line below is full."};
        case Step::Measured:
            return {Sign::Good, "Measured: the input squelch stands between your room and your voice."};
        case Step::TooLoud:
            return {Sign::Waiting,
                    "Measured, but your voice is so loud that it is distorted. Turn the microphone down in the "
                    "desktop's sound settings, and try again."};
        case Step::TooSoft:
            return {
                Sign::Bad,
                "Your voice was hardly louder than what was heard before. Be quiet at first, then speak up, or turn "
                "the microphone up in the desktop's sound settings, and try again."};
        case Step::Silent:
            return {
                Sign::Bad,
                "Nothing comes from the microphone, not even the noise of a room. It may be muted by its own switch "
                "or in the desktop's sound settings. The measurement begins once something comes."};
        case Step::Stopped:
            break;
    }
    return {Sign::Off, "The input squelch is set by hand. The button below measures it."};
}

constexpr Saying NoMicrophone{
    Sign::Bad, "The microphone does not work. See that it is plugged in, or choose another one on the page VATSIM."};
constexpr Saying NoHeadset{
    Sign::Bad, "The headset does not work. See that it is plugged in, or choose another one on the page VATSIM."};

void Say(SignedSentence& sentence, const Saying& saying) { sentence.Say(saying.Before, saying.Sentence); }

SignedSentence* NewSentence(const QString& name, int lines) {
    auto* sentence = new SignedSentence;
    sentence->setObjectName(name);
    sentence->setMinimumHeight(lines * sentence->fontMetrics().lineSpacing());
    return sentence;
}

LevelMeter* NewMeter(const QString& name, const QString& title, const QString& tip) {
    auto* meter = new LevelMeter;
    meter->setObjectName(name);
    meter->setAccessibleName(title);
    meter->setToolTip(tip);
    return meter;
}

void AddWide(QGridLayout& grid, QWidget* widget) { grid.addWidget(widget, grid.rowCount(), 0, 1, 3); }

void AddHeading(QGridLayout& grid, const QString& text) {
    auto* heading = new Heading;
    heading->setText(text);
    AddWide(grid, heading);
}

QLabel* OutputExplanation() {
    auto* text = new QLabel(
        "Voices of others that are weaker than the output squelch are not heard. Here it counts for this test alone; "
        "the engine starts with the one of its settings.");
    text->setObjectName("OutputExplanation");
    text->setWordWrap(true);
    return text;
}

// The meter stands above the slider, so that mark and handle are one.
void AddDevice(QGridLayout& grid, const QString& device, LevelMeter* meter, const QString& squelch,
               const SquelchField& field) {
    AddHeading(grid, device);
    const int row = grid.rowCount();
    grid.addWidget(new QLabel("Level"), row, 0);
    grid.addWidget(meter, row, 1);
    auto* caption = new QLabel(squelch);
    caption->setBuddy(field.Slider());
    grid.addWidget(caption, row + 1, 0);
    grid.addWidget(field.Slider(), row + 1, 1);
    grid.addWidget(field.Number(), row + 1, 2);
}

}  // namespace

bool VoiceTestDialog::Absence::IsLong() const { return Levels >= OpeningLevels; }

VoiceTestDialog::VoiceTestDialog(VoiceTrial& voiceTrial, const Squelch& now, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint),
      trial(voiceTrial),
      sentence(NewSentence("Measurement", SentenceLines)),
      progress(new QProgressBar),
      inputLevel(
          NewMeter("InputLevel", "Microphone level", "How loud the microphone is, and where its squelch stands")),
      outputLevel(NewMeter("OutputLevel", "Headset level", "How loud the headset is, and where its squelch stands")),
      input(new SquelchField("InputSquelch", "Input squelch",
                             "Sounds of the microphone that are weaker than this are not sent",
                             [this] { InputChanged(); })),
      output(new SquelchField("OutputSquelch", "Output squelch",
                              "Voices of others that are weaker than this are not heard",
                              [this] { outputLevel->SetMark(output->Value()); })),
      headset(NewSentence("HeadsetState", SentenceLines - 1)),
      hear(new QCheckBox("&Hear myself")),
      begin(new QPushButton) {
    setObjectName("VoiceTestDialog");
    setWindowTitle("Voice Test and Calibration");
    input->setParent(this);
    output->setParent(this);
    // Its place stays, so that nothing jumps.
    QSizePolicy policy = headset->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    headset->setSizePolicy(policy);
    begin->setObjectName("Begin");
    begin->setText("&Begin");
    begin->setToolTip("Measures the microphone: two seconds of quiet, then three of speech");
    progress->setObjectName("MeasurementProgress");
    progress->setAccessibleName("Measurement");
    progress->setRange(0, ProgressSteps);
    progress->setTextVisible(false);
    progress->setFixedHeight(Unit / 2);
    hear->setObjectName("HearMyself");
    hear->setToolTip("Plays the microphone in the headset, as others hear you; not while it is measured");
    connect(hear, &QCheckBox::toggled, this, [this] { HearAsWished(); });
    Arrange();
    {
        const QScopedValueRollback setting(isSetting, true);
        input->SetValue(now.Input);
        output->SetValue(now.Output);
    }
    Say(*headset, NoHeadset);
    ShowStep();
    auto* clock = new QTimer(this);
    connect(clock, &QTimer::timeout, this, [this] { Take(); });
    clock->start(SquelchMeasurement::Interval);
}

VoiceTestDialog::~VoiceTestDialog() {
    if (isHeard) trial.HearMyself(false);
}

Squelch VoiceTestDialog::Chosen() const {
    return {static_cast<float>(input->Value()), static_cast<float>(output->Value())};
}

void VoiceTestDialog::Arrange() {
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->addButton(begin, QDialogButtonBox::ResetRole);
    for (QAbstractButton* button : buttons->buttons()) button->setIcon({});
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(begin, &QPushButton::clicked, this, [this] { Begin(); });

    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(2 * Unit);
    grid->setVerticalSpacing(Unit);
    grid->setColumnStretch(1, 1);
    AddDevice(*grid, "Microphone", inputLevel, "&Input squelch", *input);
    AddDevice(*grid, "Headset", outputLevel, "O&utput squelch", *output);
    AddWide(*grid, OutputExplanation());
    AddWide(*grid, hear);
    AddWide(*grid, headset);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(2 * Unit, 2 * Unit, 2 * Unit, 2 * Unit);
    column->setSpacing(2 * Unit);
    column->addWidget(sentence);
    column->addWidget(progress);
    column->addLayout(grid);
    column->addWidget(buttons);
    column->addStrut(LineLength * fontMetrics().averageCharWidth());
    column->setSizeConstraint(QLayout::SetFixedSize);
    QWidget* before = hear;
    for (QWidget* button : {static_cast<QWidget*>(begin), static_cast<QWidget*>(buttons->button(QDialogButtonBox::Ok)),
                            static_cast<QWidget*>(buttons->button(QDialogButtonBox::Cancel))}) {
        setTabOrder(before, button);
        before = button;
    }
    accept = buttons->button(QDialogButtonBox::Ok);
    begin->setFocus();
}

void VoiceTestDialog::Take() {
    const bool works = trial.MicrophoneWorks();
    const double level = works ? trial.TakeInputLevel() : 0;
    microphoneAway.Take(works);
    headsetAway.Take(trial.HeadsetWorks());
    inputLevel->SetLevel(level);
    outputLevel->SetLevel(trial.TakeOutputLevel());
    if (measurement.Take(works, level) && measurement.Result()) {
        const QScopedValueRollback setting(isSetting, true);
        input->SetValue(*measurement.Result());
    }
    HearAsWished();
    ShowStep();
}

// From now on Enter takes what was measured.
void VoiceTestDialog::Begin() {
    begin->setText("&Try again");
    begin->setAutoDefault(false);
    accept->setDefault(true);
    measurement.Begin();
    HearAsWished();
    ShowStep();
}

void VoiceTestDialog::InputChanged() {
    inputLevel->SetMark(input->Value());
    if (isSetting) return;
    measurement.Stop();
    HearAsWished();
    ShowStep();
}

void VoiceTestDialog::ShowStep() {
    Say(*sentence, microphoneAway.IsLong() ? NoMicrophone : SayingOf(measurement.Now()));
    progress->setValue(qRound(measurement.Share() * ProgressSteps));
    headset->setVisible(headsetAway.IsLong());
}

void VoiceTestDialog::HearAsWished() {
    const bool wished = hear->isChecked() && !measurement.IsUnderWay();
    if (wished == isHeard) return;
    isHeard = wished;
    trial.HearMyself(wished);
}

}  // namespace orvelle::qt
