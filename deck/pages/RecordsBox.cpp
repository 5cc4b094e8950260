#include "deck/pages/RecordsBox.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <algorithm>

#include "adapters/looks/Text.h"
#include "deck/fields/Fields.h"
#include "deck/fields/Tables.h"
#include "platform/VoiceRoles.h"
#include "platform/sides/NetworkSide.h"
#include "platform/sides/PlayedNetworkSide.h"

namespace orvelle::deck {

namespace {

enum Column { Id, Type, Role, Owner, Parameters };

QString ParametersOf(const InterfaceRecord& record) {
    QStringList list;
    for (const auto& [index, parameter] : record.Parameters) list << QString("%1=%2").arg(index).arg(parameter.Content);
    for (const auto& [index, text] : record.Texts) list << QString("%1=\"%2\"").arg(index).arg(ToQt(text.Content));
    return list.join("  ");
}

QWidget* RowOf(const QList<QWidget*>& widgets) {
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Unit / 2);
    for (QWidget* widget : widgets) layout->addWidget(widget);
    return row;
}

}  // namespace

RecordsBox::RecordsBox(NetworkSide& framework)
    : Section("RecordSection", "Interface records", 2),
      network(framework),
      played(framework.PlayedNetwork()),
      table(NewTable("Records", "The interface records of all computers", {"Id", "Type", "Role", "Owner", "Parameters"},
                     Parameters)),
      watch(network.Observe([this] { ShowState(); })) {
    table->setEditTriggers(QTableWidget::NoEditTriggers);
    AddWide(table, 1);
    if (played) AddOtherComputer();
    ShowState();
}

void RecordsBox::AddOtherComputer() {
    computer = new QLineEdit("COCKPIT2");
    computer->setObjectName("OtherComputer");
    computer->setToolTip("The name of the computer that claims and drops roles");
    connect(computer, &QLineEdit::textChanged, this, [this] { ShowClaims(); });
    AddRow("Selected",
           {NewButton("DropRecord", "Drop", "The owner, if it is another computer, removes the selected record",
                      [this] { played->DropClaim(SelectedId()); }),
            NewButton("AnnounceRecord", "Announce change", "Report to the panel that the selected record changed",
                      [this] { played->AnnounceChange(SelectedId()); })});
    AddRow("Other computer", {computer});

    QList<QWidget*> boxes = {new QLabel("holds")};
    for (const std::string role : AllVoiceRoles) {
        const QString name = ToQt(role);
        auto* box = NewCheck("Claim" + name, name, "The other computer holds the role " + name,
                             [this, role](bool on) { Claim(role, on); });
        // A click doesn't take the focus, so that keys stay held meanwhile.
        box->setFocusPolicy(Qt::TabFocus);
        claims[role] = box;
        boxes << box;
    }
    AddWide(RowOf(boxes));
}

Long RecordsBox::ClaimOf(const std::string& role) const {
    for (const auto& [id, record] : network.Records())
        if (!record.IsLocal && record.Role == role && record.Owner == FromQt(computer->text())) return id;
    return 0;
}

Long RecordsBox::SelectedId() const {
    const QList<QTableWidgetItem*> selected = table->selectedItems();
    return selected.isEmpty() ? 0 : table->item(selected.first()->row(), Id)->data(Qt::DisplayRole).toInt();
}

void RecordsBox::Claim(const std::string& role, bool on) {
    if (on)
        played->Claim(FromQt(computer->text()), role);
    else
        played->DropClaim(ClaimOf(role));
}

void RecordsBox::ShowState() {
    const auto records = network.Records();
    const Long selected = SelectedId();
    const bool isLonger = static_cast<int>(records.size()) > table->rowCount();
    table->setRowCount(static_cast<int>(records.size()));
    int row = 0;
    for (const auto& [id, record] : records) {
        ShowCell(*table, row, Id, id);
        ShowCell(*table, row, Type, ToQt(record.Type));
        ShowCell(*table, row, Role, ToQt(record.Role));
        ShowCell(*table, row, Owner, record.IsLocal ? "this panel" : ToQt(record.Owner));
        const QString parameters = ParametersOf(record);
        ShowCell(*table, row, Parameters, parameters).setToolTip(PlainTip(parameters));
        ++row;
    }
    // A new record has the highest number as a rule.
    if (isLonger) table->scrollToBottom();
    // A record keeps its selection when others come and go.
    if (!records.contains(selected))
        table->clearSelection();
    else if (SelectedId() != selected)
        table->selectRow(static_cast<int>(std::distance(records.begin(), records.find(selected))));
    ShowClaims();
}

void RecordsBox::ShowClaims() {
    for (const auto& [role, box] : claims) box->setChecked(ClaimOf(role) != 0);
}

}  // namespace orvelle::deck
