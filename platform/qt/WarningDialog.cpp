#include "platform/qt/WarningDialog.h"

#include "ui_WarningDialog.h"

namespace orvelle {

WarningDialog::WarningDialog(Form& warningForm) : FormWindow(warningForm) { setWindowFlag(Qt::Dialog); }

void WarningDialog::Prepare() {
    if (layout() != nullptr) return;
    Ui::WarningDialog().setupUi(this);
    binder.Bind(*this);
}

}  // namespace orvelle
