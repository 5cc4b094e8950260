#include "apps/ComputersBox.h"

#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <set>

#include "adapters/looks/Text.h"
#include "adapters/mqtt/Topics.h"
#include "apps/SimulatorLinks.h"
#include "apps/SimulatorProgram.h"
#include "deck/fields/Fields.h"
#include "deck/fields/Tables.h"

namespace orvelle {

namespace {

enum Column { Computer, Name, Programs, Holds, Serves };

constexpr int AnswerLines = 2;

// Those of the set-up that this computer made, else those that are there.
std::set<int> ComputersOf(const SimulatorProgram& program) {
    std::set<int> computers;
    if (const auto made = program.Made())
        for (const auto& [identity, key] : made->Keys) computers.insert(identity);
    else if (program.Member())
        computers.insert(program.Member()->Identity);
    for (int identity = 1; identity <= mqtt::LastIdentity; ++identity)
        for (const auto kind : {mqtt::Program::Panel, mqtt::Program::Simulator})
            if (program.AtBroker.Others().IsThere({identity, kind})) computers.insert(identity);
    return computers;
}

QString Joined(const QStringList& list) { return list.isEmpty() ? QString("-") : list.join(", "); }

}  // namespace

ComputersBox::ComputersBox(SimulatorProgram& simulatorProgram)
    : Section("ComputersSection", "Computers", 2),
      program(simulatorProgram),
      table(deck::NewTable("Computers", "The computers of the set-up",
                           {"Computer", "Name", "Programs", "Holds", "Serves"}, Holds)),
      add(deck::NewButton("AddComputer", "&Add a computer",
                          "Makes a key for the next computer and shows the code to type there", [this] { Add(); })),
      remove(deck::NewButton("RemoveComputer", "&Remove ...",
                             "Takes the selected computer out of the set-up and cuts it off",
                             [this] { AskToRemove(); })),
      code(new QLineEdit),
      answer(new QLabel) {
    table->setEditTriggers(QTableWidget::NoEditTriggers);
    connect(table, &QTableWidget::itemSelectionChanged, this, [this] { ShowState(); });
    code->setObjectName("Code");
    code->setReadOnly(true);
    code->setToolTip("The code to type on the computer that was added last");
    answer->setObjectName("Answer");
    answer->setTextFormat(Qt::PlainText);
    answer->setWordWrap(true);
    answer->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    answer->setMinimumHeight(AnswerLines * answer->fontMetrics().lineSpacing());
    AddWide(table, 1);
    AddRow("", {add, remove});
    AddRow("&Code", {code});
    AddRow("", {answer});
}

void ComputersBox::Add() {
    const auto [added, sentence] = program.SetUp.Add();
    code->setText(added ? ToQt(mqtt::WriteJoinCode(*added)) : QString());
    codeOf = added ? added->Number : 0;
    answer->setText(added ? "Type this code on the new computer, which will be " +
                                ToQt(mqtt::WriteIdentity(added->Number)) + "."
                          : ToQt(sentence));
}

void ComputersBox::AskToRemove() {
    const int identity = Selected();
    auto* box = new QMessageBox(QMessageBox::Question, window()->windowTitle(),
                                "Take " + NameOf(program, identity) + " out of the set-up? It is cut off at once.",
                                QMessageBox::Yes | QMessageBox::No, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    box->setDefaultButton(QMessageBox::No);
    connect(box, &QMessageBox::finished, this, [this, identity](int button) {
        if (button == QMessageBox::Yes) Remove(identity);
    });
    box->open();
}

void ComputersBox::Remove(int identity) {
    const std::string sentence = program.SetUp.Remove(identity);
    // Its code is worth nothing any more.
    if (identity == codeOf) code->clear();
    answer->setText(sentence.empty() ? ToQt(mqtt::WriteIdentity(identity)) + " was removed." : ToQt(sentence));
}

int ComputersBox::Selected() const {
    const QList<QTableWidgetItem*> selected = table->selectedItems();
    return selected.isEmpty() ? 0 : table->item(selected.first()->row(), Computer)->data(Qt::UserRole).toInt();
}

void ComputersBox::ShowState() {
    const std::set<int> computers = ComputersOf(program);
    const int selected = Selected();
    const QSignalBlocker quiet(table);
    table->setRowCount(static_cast<int>(computers.size()));
    for (int row = 0; const int identity : computers) ShowComputer(row++, identity);
    // It keeps its selection when others come and go.
    if (!computers.contains(selected))
        table->clearSelection();
    else if (Selected() != selected)
        table->selectRow(static_cast<int>(std::distance(computers.begin(), computers.find(selected))));
    add->setEnabled(program.Made().has_value());
    remove->setEnabled(program.Made() && Selected() > 1 && program.Made()->Keys.contains(Selected()));
}

void ComputersBox::ShowComputer(int row, int identity) {
    const bool isOwn = identity == program.AtBroker.Identity();
    QStringList programs;
    QStringList names;
    for (const auto kind : {mqtt::Program::Panel, mqtt::Program::Simulator}) {
        const auto* said = program.AtBroker.Others().Find({identity, kind});
        const bool isThis = isOwn && kind == mqtt::Program::Simulator && program.AtBroker.IsThere();
        if (said) names << ShownName(said->Name);
        if (said || isThis) programs << (kind == mqtt::Program::Panel ? "panel" : "simulator");
    }
    if (isOwn) names.prepend("this computer");
    QStringList roles;
    for (const auto& [id, record] : program.AtBroker.Records())
        if (mqtt::IdentityOf(id) == identity) roles << ToQt(record.Role);
    QStringList links;
    if (program.Simulator.ServedBy() == identity) links << "keys";
    if (program.Network.ServedBy() == identity) links << "session";
    deck::ShowCell(*table, row, Computer, ToQt(mqtt::WriteIdentity(identity))).setData(Qt::UserRole, identity);
    deck::ShowCell(*table, row, Name, names.isEmpty() ? QString("-") : names.first());
    deck::ShowCell(*table, row, Programs, programs.isEmpty() ? QString("away") : programs.join(", "));
    deck::ShowCell(*table, row, Holds, Joined(roles)).setToolTip(PlainTip(Joined(roles)));
    deck::ShowCell(*table, row, Serves, Joined(links));
}

}  // namespace orvelle
