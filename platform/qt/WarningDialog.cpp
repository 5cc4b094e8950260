#include "platform/qt/WarningDialog.h"

#include "ui_WarningDialog.h"

namespace orvelle {

namespace {

constexpr int LineLength = 64;  // characters

}  // namespace

WarningDialog::WarningDialog(Form& warningForm) : FormWindow(warningForm) { setWindowFlag(Qt::Dialog); }

void WarningDialog::Prepare() {
    if (layout() != nullptr) return;
    Ui::WarningDialog dialog;
    dialog.setupUi(this);
    dialog.Label1->setMinimumWidth(fontMetrics().averageCharWidth() * LineLength);
    binder.Bind(*this);
}

}  // namespace orvelle
