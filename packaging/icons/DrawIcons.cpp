// Draws the icons that are installed, in each size that is named, as the programs draw their own: the panel's six lamps
// with all of them on, and the simulator's computer that serves. A part of the build.
//
//   orvelle-icons FOLDER SIZE...     writes FOLDER/SIZExSIZE/apps/NAME.png
#include <QDir>
#include <QGuiApplication>
#include <QPainter>
#include <algorithm>
#include <cstdlib>

#include "adapters/qt/widgets/StatusImage.h"
#include "apps/SimulatorIcon.h"

namespace {

// The lamps' names are for who looks closely, in the window; an icon is seen from afar at every size.
constexpr qreal MostWithoutNames = 64;

QImage PanelIcon(int size) {
    QImage picture(size, size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    orvelle::qt::DrawStatusImage(painter, picture.rect(), "VVVVVV", std::max(1.0, size / MostWithoutNames));
    return picture;
}

QImage SimulatorsIcon(int size) { return orvelle::SimulatorIcon(orvelle::Sign::Good).pixmap(size).toImage(); }

}  // namespace

int main(int count, char** words) {
    const QGuiApplication application(count, words);
    const QStringList arguments = QGuiApplication::arguments();
    for (const QString& word : arguments.mid(2)) {
        const int size = word.toInt();
        const QString folder = QStringLiteral("%1/%2x%2/apps/").arg(arguments[1], word);
        if (!QDir().mkpath(folder) || !PanelIcon(size).save(folder + "net.orvelle.orvellecp.png") ||
            !SimulatorsIcon(size).save(folder + "net.orvelle.orvellecp.simulator.png")) {
            qCritical("orvelle-icons: the icons could not be written to %s", qPrintable(folder));
            return EXIT_FAILURE;
        }
    }
    return EXIT_SUCCESS;
}
