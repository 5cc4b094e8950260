#include "apps/SimulatorSetUpPage.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "adapters/looks/Text.h"
#include "adapters/mqtt/SetUpFile.h"
#include "adapters/shared/HostAndPort.h"
#include "apps/ComputersBox.h"
#include "apps/SimulatorLinks.h"
#include "apps/SimulatorProgram.h"
#include "deck/fields/Fields.h"
#include "deck/fields/Readout.h"
#include "deck/fields/SignalLight.h"
#include "deck/fields/TextField.h"
#include "deck/fields/TimedLog.h"

namespace orvelle {

namespace {

QString Joined(const std::vector<std::string>& names) {
    QStringList list;
    for (const std::string& each : names) list << ToQt(each);
    return list.isEmpty() ? "None" : list.join(", ");
}

QVBoxLayout* ColumnOf(std::initializer_list<QWidget*> parts, QWidget* tallest) {
    auto* column = new QVBoxLayout;
    column->setSpacing(deck::SectionGap);
    for (QWidget* part : parts) column->addWidget(part, part == tallest);
    return column;
}

QCheckBox* NewOffer(const QString& objectName, mqtt::OfferedLink& link) {
    return deck::NewCheck(objectName, "Offered", "Whether this computer offers the link to the panels of the set-up",
                          [&link](bool on) { link.SetLink(on ? LinkState::Up : LinkState::Down); });
}

void ShowLink(QCheckBox& offer, deck::SignalLight& light, const SimulatorProgram& program,
              const mqtt::OfferedLink& link) {
    const LinkTold told = TellOfLink(program, link);
    offer.setChecked(link.Link() == LinkState::Up);
    light.Show(told.Shown, told.Words);
}

}  // namespace

SimulatorSetUpPage::SimulatorSetUpPage(SimulatorProgram& simulatorProgram)
    : program(simulatorProgram),
      name(deck::NewEdit("SetUpName", "What the set-up is called; Enter applies it",
                         [this](const std::string& text) { Rename(text); })),
      place(new deck::Readout("SetUpPlace")),
      broker(new deck::SignalLight("Broker")),
      computers(new ComputersBox(program)),
      offersSimulator(NewOffer("OffersSimulator", program.Simulator)),
      offersFramework(NewOffer("OffersFramework", program.Network)),
      simulatorLink(new deck::SignalLight("SimulatorLink")),
      frameworkLink(new deck::SignalLight("FrameworkLink")),
      keys(new deck::Readout("HeldKeys")),
      buttons(new deck::Readout("HeldButtons")),
      joysticks(new deck::Readout("Joysticks")),
      refused(new deck::Readout("Refused")),
      tellings(new deck::TimedLog("Tellings", "What there was to tell, the latest last")) {
    deck::Section* const told = NewTellingsPart();
    auto* columns = new QHBoxLayout(this);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setSpacing(3 * Unit);
    columns->addLayout(ColumnOf({NewSetUpPart(), computers}, computers), 1);
    columns->addLayout(ColumnOf({NewLinksPart(), NewHerePart(), told}, told), 1);
    ShowState();
}

deck::Section* SimulatorSetUpPage::NewSetUpPart() {
    auto* part = new deck::Section("SetUp", "Set-up");
    part->AddRow("&Name", {name});
    part->AddRow("This computer", {place});
    part->AddRow("Broker", {broker});
    return part;
}

deck::Section* SimulatorSetUpPage::NewLinksPart() {
    auto* part = new deck::Section("Links", "Links", 3);
    part->AddRow("&Keys, sounds", {offersSimulator, simulatorLink});
    part->AddRow("&Session", {offersFramework, frameworkLink});
    return part;
}

deck::Section* SimulatorSetUpPage::NewHerePart() {
    auto* part = new deck::Section("Here", "On this computer");
    part->AddRow("Keys held", {keys});
    part->AddRow("Buttons held", {buttons});
    part->AddRow("Joysticks", {joysticks});
    part->AddRow("Refused", {refused});
    return part;
}

deck::Section* SimulatorSetUpPage::NewTellingsPart() {
    auto* part = new deck::Section("Told", "What there was to tell");
    part->AddWide(tellings, 1);
    return part;
}

void SimulatorSetUpPage::Rename(const std::string& text) {
    if (const std::string sentence = program.SetUp.Rename(text); !sentence.empty()) Tell(ToQt(sentence));
    ShowState();
}

void SimulatorSetUpPage::Tell(const QString& sentence) { tellings->Add(sentence); }

void SimulatorSetUpPage::ShowState() {
    const auto& made = program.Made();
    const auto& member = program.Member();
    name->setEnabled(made.has_value());
    name->Show(made ? made->Name : member ? member->Name : "");
    const QString identity = member ? ToQt(mqtt::WriteIdentity(member->Identity)) : QString();
    place->Show(made     ? QString("c01, which made the set-up")
                : member ? identity + ", which has joined it"
                         : QString("In no set-up"));
    const std::string trouble = program.Trouble();
    const bool isThere = program.AtBroker.IsThere();
    const QString at = member ? ToQt(WriteHostAndPort({member->Host, member->Port}, mqtt::UsualPort)) : QString();
    broker->Show(isThere            ? Sign::Good
                 : !trouble.empty() ? Sign::Bad
                 : member           ? Sign::Waiting
                                    : Sign::Off,
                 isThere            ? "Reached at " + at
                 : !trouble.empty() ? ToQt(trouble)
                 : member           ? "Being reached at " + at
                                    : QString("None"));
    computers->ShowState();
    ShowLink(*offersSimulator, *simulatorLink, program, program.Simulator);
    ShowLink(*offersFramework, *frameworkLink, program, program.Network);
    const QString held = ToQt(program.Simulator.HeldSequence());
    keys->Show(held.isEmpty() ? QString("None") : held);
    buttons->Show(Joined(program.Simulator.HeldButtons()));
    joysticks->Show(Joined(program.Devices.Joysticks()));
    refused->Show(QString("%1 messages that broke a rule").arg(program.AtBroker.Refused()));
}

}  // namespace orvelle
