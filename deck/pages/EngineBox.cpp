#include "deck/pages/EngineBox.h"

#include <QComboBox>
#include <QPushButton>
#include <QSpinBox>

#include "deck/fields/EngineLight.h"
#include "deck/fields/Fields.h"
#include "deck/fields/Readout.h"
#include "platform/sides/VoiceEngineSide.h"

namespace orvelle::deck {

namespace {

// In the order of the entries
constexpr StartOutcome StartOutcomes[] = {StartOutcome::Starts, StartOutcome::Refused, StartOutcome::Dies};

}  // namespace

EngineBox::EngineBox(VoiceEngineSide& playedEngine, VoiceEngineView& servingEngine)
    : Section("Engine", "Voice engine", 3),
      played(playedEngine),
      engine(servingEngine),
      audio(new SignalLight("EngineAudio")),
      squelch(new Readout("EngineSquelch")),
      starts(NewChoice("EngineStart", "How starts of the engine go", {"Succeed", "Are refused", "Stop at once"},
                       [this](int index) { played.SetStartOutcome(StartOutcomes[index]); })),
      watch(servingEngine.Observe([this] { ShowState(); })) {
    AddRow("State", {new EngineLight("EngineState", servingEngine), audio, squelch});
    // A button that its own click disabled would hand the focus on to whatever comes next.
    auto* fail =
        NewButton("EngineFail", "Stop by itself", "The engine, if it runs, stops by itself", [this] { played.Fail(); });
    auto* startDelay = NewDelay("StartDelay", "From the engine's start to its event", played.StartDelay(),
                                [this](int milliseconds) { played.SetStartDelay(milliseconds); });
    auto* joinDelay = NewDelay("JoinDelay", "From a room's join to its outcome", played.JoinDelay(),
                               [this](int milliseconds) { played.SetJoinDelay(milliseconds); });
    AddRow("Starts", {starts, fail, new QWidget});
    AddRow("Start takes", {startDelay, new QWidget});
    AddRow("Join takes", {joinDelay, new QWidget});
    playing = {starts, fail, startDelay, joinDelay};
    ShowState();
}

// What runs is not heard where the devices fail.
void EngineBox::ShowAudio() {
    if (!engine.AudioRuns()) return audio->Show(Sign::Off, "No audio");
    const bool outputFails[] = {engine.Output(0).Failed, engine.Output(1).Failed};
    if (engine.InputFailed() && outputFails[0] && outputFails[1]) return audio->Show(Sign::Bad, "All devices fail");
    if (engine.InputFailed() || outputFails[0] || outputFails[1]) return audio->Show(Sign::Waiting, "A device fails");
    audio->Show(Sign::Good, "Audio runs");
}

void EngineBox::ShowState() {
    ShowAudio();
    squelch->Show(QString("Squelch %1 / %2").arg(engine.InputSquelchValue()).arg(engine.OutputSquelchValue()));
    starts->setCurrentIndex(static_cast<int>(played.Starts()));
    for (QWidget* field : playing) field->setEnabled(played.IsServing());
}

}  // namespace orvelle::deck
