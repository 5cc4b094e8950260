#include "apps/SimulatorWindow.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "adapters/looks/Text.h"
#include "adapters/looks/Theme.h"
#include "adapters/mqtt/Topics.h"
#include "apps/SimulatorProgram.h"
#include "deck/fields/Fields.h"
#include "deck/fields/Section.h"
#include "deck/pages/RadioBox.h"
#include "deck/pages/SessionBox.h"

namespace orvelle {

namespace {

QLabel* NewText() {
    auto* label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return label;
}

QString Joined(const std::vector<std::string>& names, const QString& separator) {
    QStringList list;
    for (const std::string& each : names) list << ToQt(each);
    return list.isEmpty() ? "none" : list.join(separator);
}

}  // namespace

SimulatorWindow::SimulatorWindow(SimulatorProgram& simulatorProgram)
    : program(simulatorProgram),
      name(NewText()),
      computers(new QListWidget),
      remove(deck::NewButton("RemoveComputer", "&Remove",
                             "Takes the selected computer out of the set-up and cuts it off",
                             [this] { RemoveComputer(); })),
      code(NewText()),
      held(NewText()),
      joysticks(NewText()),
      refused(NewText()) {
    setObjectName("SimulatorWindow");
    code->setObjectName("Code");
    computers->setObjectName("Computers");
    setWindowTitle("OrvelleCP Simulator's Computer");
    auto* columns = new QHBoxLayout(this);
    columns->setContentsMargins(2 * Unit, 2 * Unit, 2 * Unit, 2 * Unit);
    columns->setSpacing(3 * Unit);
    columns->addWidget(NewSetUpPart(), 1);
    auto* session = new QVBoxLayout;
    session->setSpacing(deck::SectionGap);
    session->addWidget(new deck::SessionBox(program.Network));
    session->addWidget(new deck::RadioBox(program.Network));
    session->addStretch(1);
    columns->addLayout(session, 1);
    computers->setToolTip("The computers of the set-up, with their names while they are there");
    connect(computers, &QListWidget::currentRowChanged, this, [this] { remove->setEnabled(SelectedComputer() > 1); });
    program.ComputersChanged = [this] { ShowAll(); };
    program.DevicesChanged = [this] { ShowAll(); };
    watch = program.AtBroker.Observe([this] { ShowAll(); });
    ShowAll();
}

QWidget* SimulatorWindow::NewSetUpPart() {
    auto* part = new deck::Section("SetUp", "Set-up", 2);
    part->AddRow("Name", {name, nullptr});
    part->AddWide(computers, 1);
    part->AddRow("", {deck::NewButton("AddComputer", "&Add a computer",
                                      "Makes a key for the next computer and shows the code to type there",
                                      [this] { AddComputer(); }),
                      remove});
    part->AddRow("Code", {code, nullptr});
    part->AddRow("Held here", {held, nullptr});
    part->AddRow("Joysticks", {joysticks, nullptr});
    part->AddRow("Refused", {refused, nullptr});
    return part;
}

void SimulatorWindow::AddComputer() {
    const auto added = program.SetUp.Add();
    code->setText(added.Code ? ToQt(mqtt::WriteJoinCode(*added.Code)) : ToQt(added.Sentence));
}

void SimulatorWindow::RemoveComputer() {
    const int identity = SelectedComputer();
    const QString question = "Take " + computers->currentItem()->text() + " out of the set-up? It is cut off at once.";
    if (QMessageBox::question(this, windowTitle(), question) != QMessageBox::Yes) return;
    if (const std::string sentence = program.SetUp.Remove(identity); !sentence.empty()) code->setText(ToQt(sentence));
}

int SimulatorWindow::SelectedComputer() const {
    const QListWidgetItem* const item = computers->currentItem();
    return item ? item->data(Qt::UserRole).toInt() : 0;
}

void SimulatorWindow::ShowAll() {
    ShowComputers();
    const QString keys = ToQt(program.Simulator.HeldSequence());
    held->setText("keys " + (keys.isEmpty() ? "none" : keys) + ", buttons " +
                  Joined(program.Simulator.HeldButtons(), ", "));
    joysticks->setText(Joined(program.Devices.Joysticks(), ", "));
    refused->setText(QString::number(program.AtBroker.Refused()) + " messages");
}

void SimulatorWindow::ShowComputers() {
    const auto& setting = program.Setting();
    name->setText(setting ? ToQt(setting->Name) : "none");
    const int selected = SelectedComputer();
    computers->clear();
    if (!setting) return;
    for (const auto& [identity, key] : setting->Keys) {
        QString text = ToQt(mqtt::WriteIdentity(identity));
        const auto* const panel = program.AtBroker.Others().Find({identity, mqtt::Program::Panel});
        if (identity == program.AtBroker.Identity()) text += "  this computer";
        if (panel) text += "  " + ToQt(panel->Name) + ", its panel is there";
        auto* item = new QListWidgetItem(text, computers);
        item->setData(Qt::UserRole, identity);
        if (identity == selected) computers->setCurrentItem(item);
    }
    remove->setEnabled(SelectedComputer() > 1);
}

// Hidden it could not be brought back.
void SimulatorWindow::closeEvent(QCloseEvent* event) {
    if (!event->spontaneous()) return;
    event->ignore();
    showMinimized();
}

}  // namespace orvelle
