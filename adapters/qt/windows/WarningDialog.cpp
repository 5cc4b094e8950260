#include "adapters/qt/windows/WarningDialog.h"

#include <QApplication>
#include <QLayout>
#include <QShortcut>
#include <QWindow>

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

// A window manager puts a window that nobody asked for under the one that the user works in, unless it belongs to that.
void WarningDialog::showEvent(QShowEvent* event) {
    const QWidget* window = QApplication::activeWindow();
    windowHandle()->setTransientParent(window != nullptr ? window->windowHandle() : nullptr);
    FormWindow::showEvent(event);
    QApplication::alert(this);
}

}  // namespace orvelle::qt
