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

EngineBox::EngineBox(VoiceEngineSide& voiceEngine)
    : Section("Engine", "Voice engine", 3),
      engine(voiceEngine),
      audio(new SignalLight("EngineAudio")),
      squelch(new Readout("EngineSquelch")),
      starts(NewChoice("EngineStart", "How starts of the engine go", {"Succeed", "Are refused", "Stop at once"},
                       [this](int index) { engine.SetStartOutcome(StartOutcomes[index]); })),
      watch(engine.Observe([this] { ShowState(); })) {
    AddRow("State", {new EngineLight("EngineState", engine), audio, squelch});
    // A button that its own click disabled would hand the focus on to whatever comes next.
    auto* fail =
        NewButton("EngineFail", "Stop by itself", "The engine, if it runs, stops by itself", [this] { engine.Fail(); });
    AddRow("Starts", {starts, fail, new QWidget});
    AddRow("Start takes", {NewDelay("StartDelay", "From the engine's start to its event", engine.StartDelay(),
                                    [this](int milliseconds) { engine.SetStartDelay(milliseconds); }),
                           new QWidget});
    AddRow("Join takes", {NewDelay("JoinDelay", "From a room's join to its outcome", engine.JoinDelay(),
                                   [this](int milliseconds) { engine.SetJoinDelay(milliseconds); }),
                          new QWidget});
    ShowState();
}

void EngineBox::ShowState() {
    audio->Show(engine.AudioRuns() ? Sign::Good : Sign::Off, engine.AudioRuns() ? "Audio runs" : "No audio");
    squelch->Show(QString("Squelch %1 / %2").arg(engine.InputSquelchValue()).arg(engine.OutputSquelchValue()));
    starts->setCurrentIndex(static_cast<int>(engine.Starts()));
}

}  // namespace orvelle::deck
