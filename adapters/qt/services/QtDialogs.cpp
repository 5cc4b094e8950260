#include "adapters/qt/services/QtDialogs.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QTimer>

#include "adapters/looks/Text.h"

namespace orvelle::qt {

namespace {

constexpr Long FileMustExist = 4096;
constexpr Long Endless = -1;

// The file that a text names: a path, or the quoted one of a command line.
QFileInfo FileOf(const std::string& name) {
    const QString text = ToQt(name).trimmed();
    return QFileInfo(text.startsWith('"') ? text.section('"', 1, 1) : text);
}

}  // namespace

QWidget* ShownParent(const DialogParent& parentOf) {
    QWidget* parent = parentOf();
    return parent != nullptr && parent->isVisible() ? parent : nullptr;
}

void QtFileDialog::ShowOpen() {
    QFileDialog dialog(ShownParent(parentOf), ToQt(title));
    dialog.setFileMode((flags & FileMustExist) != 0 ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    const QFileInfo present = FileOf(fileName);
    if (present.isAbsolute() && present.absoluteDir().exists()) {
        dialog.setDirectory(present.absolutePath());
        dialog.selectFile(present.fileName());
    }
    if (dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty())
        fileName = FromQt(QDir::toNativeSeparators(dialog.selectedFiles().constFirst()));
}

void QtMessageBox::MsgBox(const std::string& text) { MsgBox(text, Endless); }

void QtMessageBox::MsgBox(const std::string& text, Long milliseconds) {
    QMessageBox box(QMessageBox::NoIcon, "Orvelle Control Panel", ToQt(text), QMessageBox::Ok, ShownParent(parentOf));
    box.setTextFormat(Qt::PlainText);
    if (milliseconds != Endless) QTimer::singleShot(milliseconds, &box, [&box] { box.done(QMessageBox::Ok); });
    box.exec();
}

}  // namespace orvelle::qt
