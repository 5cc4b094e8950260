#include "deck/pages/SimulatorPage.h"

#include <QCheckBox>
#include <QVBoxLayout>
#include <algorithm>

#include "adapters/looks/Text.h"
#include "deck/fields/Fields.h"
#include "deck/fields/TimedLog.h"
#include "deck/pages/InputsBox.h"
#include "deck/pages/LinkBox.h"
#include "platform/sides/FarSides.h"
#include "platform/sides/SimulatorSide.h"

namespace orvelle::deck {

SimulatorPage::SimulatorPage(const FarSides& sides)
    : simulator(*sides.Simulator),
      active(NewCheck("SimulatorActive", "The simulator is the &active application",
                      "Keys pressed while it is not start no voice program's push-to-talk",
                      [this](bool on) { simulator.SetSimulatorActive(on); })),
      sounds(new TimedLog("Sounds", "Sounds that the simulator was asked to play")),
      programs(new TimedLog("Programs", "Voice programs that the panel started, or could not start")),
      watch(simulator.Observe([this] { ShowState(); })) {
    setObjectName("SimulatorPage");
    active->setFocusPolicy(Qt::TabFocus);

    Section* link = sides.SimulatorLink ? new LinkBox("Simulator", "Simulator", "&Simulator link", *sides.SimulatorLink)
                                        : new Section("Simulator", "Simulator", 3);
    link->AddRow("Application", {active});

    auto* soundSection = new Section("SoundSection", "Sounds asked for");
    soundSection->AddWide(sounds, 1);
    auto* programSection = new Section("ProgramSection", "Voice programs on this computer");
    programSection->AddWide(programs, 1);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(SectionGap);
    column->addWidget(link);
    column->addWidget(new InputsBox(simulator, sides.ServingEngine, sides.HeldKeys));
    column->addWidget(soundSection, 1);
    column->addWidget(programSection, 1);
    ShowState();
}

void SimulatorPage::TellOfProgram(const QString& sentence) { programs->Add(sentence); }

void SimulatorPage::ShowState() {
    active->setChecked(simulator.SimulatorActive());
    const auto& played = simulator.Sounds();
    const std::size_t fresh = std::min(simulator.SoundsPlayed() - soundsShown, played.size());
    for (std::size_t index = played.size() - fresh; index < played.size(); ++index) sounds->Add(ToQt(played[index]));
    soundsShown = simulator.SoundsPlayed();
}

}  // namespace orvelle::deck
