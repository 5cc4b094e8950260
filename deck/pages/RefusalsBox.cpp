#include "deck/pages/RefusalsBox.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>

#include "adapters/looks/Text.h"
#include "deck/fields/Fields.h"
#include "platform/Notices.h"
#include "platform/VoiceRoles.h"
#include "platform/sides/FarSides.h"
#include "platform/sides/NetworkSide.h"
#include "platform/sides/PlayedNetworkSide.h"

namespace orvelle::deck {

namespace {

constexpr const char* RecordOwner = "COCKPIT9";
constexpr const char* ReadOnlyNotice =
    "The settings file cannot be written. Its settings are used, but changes are lost when the panel ends.";

QCheckBox* NewRefusal(const QString& name, const QString& text, bool& refusal) {
    auto* check = NewCheck(name, text, "Every such call of the panel fails", [&refusal](bool on) { refusal = on; });
    check->setChecked(refusal);
    return check;
}

QLineEdit* NewPlainEdit(const QString& name, const QString& text, const QString& toolTip) {
    auto* edit = new QLineEdit(text);
    edit->setObjectName(name);
    edit->setToolTip(toolTip);
    return edit;
}

}  // namespace

RefusalsBox::RefusalsBox(const FarSides& sides) : Section("Refusals", "Refusals and notices", 3) {
    if (sides.Network && sides.Network->PlayedNetwork()) AddNetwork(*sides.Network->PlayedNetwork());
    if (sides.Notices) AddNotices(*sides.Notices);
}

void RefusalsBox::AddNetwork(PlayedNetworkSide& network) {
    NetworkRefusals& refuse = network.Refuse();
    AddRow("Refused", {NewRefusal("RefuseSession", "Open session", refuse.OpenSession),
                       NewRefusal("RefuseCreate", "Create record", refuse.CreateInterface),
                       NewRefusal("RefuseOpen", "Open record", refuse.OpenInterface)});
    auto* type =
        NewPlainEdit("OddType", VoiceRecordType,
                     "The type of a record that another computer makes; the panel minds those of the type VOICE alone");
    auto* role = NewPlainEdit("OddRole", "RWCom3", "The role of that record; the panel minds those that it has itself");
    type->setAccessibleName("Strange record, type");
    role->setAccessibleName("Strange record, role");
    AddRow("Strange record",
           {type, role,
            NewButton("OddClaim", "Make it",
                      "Another computer makes this record, which no panel would make; the panel must leave it alone",
                      [=, &network] { network.Claim(RecordOwner, FromQt(role->text()), FromQt(type->text())); })});
}

void RefusalsBox::AddNotices(Notices& notices) {
    auto* notice = NewPlainEdit("Notice", ReadOnlyNotice, "A sentence about the settings for the user");
    notice->setCursorPosition(0);
    AddRow("Settings notice", {notice, nullptr,
                               NewButton("TellNotice", "Tell the user", "As the settings store tells it",
                                         [notice, &notices] { notices.Tell(FromQt(notice->text())); })});
}

}  // namespace orvelle::deck
