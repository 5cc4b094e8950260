#include "deck/EngineBox.h"

#include <QComboBox>
#include <QPushButton>
#include <QSpinBox>

#include "deck/Fields.h"
#include "deck/Readout.h"
#include "deck/SignalLight.h"
#include "platform/embedded/VoiceEngine.h"

namespace orvelle::deck {

namespace {

// In the order of the entries
constexpr StartOutcome StartOutcomes[] = {StartOutcome::Starts, StartOutcome::Refused, StartOutcome::Dies};

}  // namespace

EngineBox::EngineBox(EmbeddedVoiceEngine& voiceEngine)
    : Section("Engine", "Voice engine", 3),
      engine(voiceEngine),
      state(new SignalLight("EngineState")),
      audio(new SignalLight("EngineAudio")),
      squelch(new Readout("EngineSquelch")),
      nextStart(NewChoice("EngineStart", "How the next start goes", {"Starts", "Is refused", "Stops at once"},
                          [this](int index) { engine.SetStartOutcome(StartOutcomes[index]); })),
      fail(NewButton("EngineFail", "Stop by itself", "The running engine stops by itself", [this] { engine.Fail(); })),
      watch(engine.Changed.Observe([this] { ShowState(); })) {
    AddRow("State", {state, audio, squelch});
    AddRow("Next start", {nextStart, fail, new QWidget});
    AddRow("Start takes", {NewDelay("StartDelay", "From the engine's start to its event", engine.StartDelay(),
                                    [this](int milliseconds) { engine.SetStartDelay(milliseconds); }),
                           new QWidget});
    AddRow("Join takes", {NewDelay("JoinDelay", "From a room's join to its outcome", engine.JoinDelay(),
                                   [this](int milliseconds) { engine.SetJoinDelay(milliseconds); }),
                          new QWidget});
    ShowState();
}

void EngineBox::ShowState() {
    const bool running = engine.Running();
    state->Show(running ? Signal::On : Signal::Off, running ? "Running" : "Stopped");
    audio->Show(engine.AudioRuns() ? Signal::On : Signal::Off, engine.AudioRuns() ? "Audio runs" : "No audio");
    squelch->Show(QString("Squelch %1 / %2").arg(engine.InputSquelchValue()).arg(engine.OutputSquelchValue()));
    nextStart->setCurrentIndex(static_cast<int>(engine.NextStart()));
    fail->setEnabled(running);
}

}  // namespace orvelle::deck
