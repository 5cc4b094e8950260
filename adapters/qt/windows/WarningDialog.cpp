#include "adapters/qt/windows/WarningDialog.h"

#include <QLayout>
#include <QShortcut>

#include "ui_WarningDialog.h"

namespace orvelle::qt {

namespace {

constexpr int LineLength = 64;  // characters

}  // namespace

WarningDialog::WarningDialog(Form& warningForm) : FormWindow(warningForm) {
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
}

void WarningDialog::Prepare() {
    if (layout() != nullptr) return;
    Ui::WarningDialog dialog;
    dialog.setupUi(this);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    dialog.Label1->setMinimumWidth(fontMetrics().averageCharWidth() * LineLength);
    binder.Bind(*this);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter})
        new QShortcut(key, this, [button = dialog.OKButton] { button->click(); });
    new QShortcut(Qt::Key_Escape, this, [this] { form.Unload(Form::ControlMenu); });
}

}  // namespace orvelle::qt
