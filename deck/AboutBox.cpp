#include "deck/AboutBox.h"

#include <QCoreApplication>
#include <QMessageBox>
#include <QStandardPaths>
#include <QUrl>

namespace orvelle::deck {

namespace {

// Where the installed programs have their documents.
QString LinkToReadme() {
    const QString file = QStandardPaths::locate(QStandardPaths::GenericDataLocation, "doc/orvellecp/README.md");
    if (file.isEmpty()) return "README.md, which an installation puts into share/doc/orvellecp";
    return "<a href=\"" + QUrl::fromLocalFile(file).toString() + "\">" + file.toHtmlEscaped() + "</a>";
}

}  // namespace

void ShowAbout(QWidget& window) {
    const QString version = QCoreApplication::applicationVersion().toHtmlEscaped();
    auto* box = new QMessageBox(
        QMessageBox::NoIcon, "About",
        "<p><b>Orvelle Control Panel " + version + "</b></p><p>How to begin is told in " + LinkToReadme() +
            ".</p><p>Free software under the GNU General Public License, version 3 or later.</p>",
        QMessageBox::Close, &window);
    box->setObjectName("AboutBox");
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextInteractionFlags(Qt::TextBrowserInteraction);
    box->open();
}

}  // namespace orvelle::deck
