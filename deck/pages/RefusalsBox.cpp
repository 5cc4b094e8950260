#include "deck/pages/RefusalsBox.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>

#include "adapters/embedded/SetUp.h"
#include "adapters/looks/Text.h"
#include "deck/fields/Fields.h"

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

RefusalsBox::RefusalsBox(EmbeddedSetUp& embedded)
    : Section("Refusals", "Refusals and notices", 3),
      setUp(embedded),
      type(NewPlainEdit("OddType", "VOICE", "The record's type")),
      role(NewPlainEdit("OddRole", "RWCom3", "The record's role")),
      notice(NewPlainEdit("Notice", ReadOnlyNotice, "A sentence about the settings for the user")) {
    EmbeddedTessaly::Refusals& refuse = setUp.Tessaly.Refuse;
    notice->setCursorPosition(0);
    AddRow("Refused", {NewRefusal("RefuseSession", "Open session", refuse.OpenSession),
                       NewRefusal("RefuseCreate", "Create record", refuse.CreateInterface),
                       NewRefusal("RefuseOpen", "Open record", refuse.OpenInterface)});
    AddRow("Odd record", {type, role, NewButton("OddClaim", "Claim", "Another computer makes this record", [this] {
                              setUp.Tessaly.Claim(RecordOwner, FromQt(role->text()), FromQt(type->text()));
                          })});
    AddRow("Settings notice",
           {notice, nullptr, NewButton("TellNotice", "Tell the user", "As the settings store tells it", [this] {
                setUp.Notice(FromQt(notice->text()));
            })});
}

}  // namespace orvelle::deck
