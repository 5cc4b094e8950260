// How the simulator's page looks: in each palette, with the desktop's letters and with those of 11 points, nothing is
// clipped or left out, and a picture is left for a look.
#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>
#include <QTableWidget>

#include "adapters/looks/Theme.h"
#include "deck/fields/Readout.h"
#include "tests/apps/SimulatorPageRig.h"

namespace orvelle {
namespace {

// The palette and the letters, before the window is made.
struct Look {
    explicit Look(const std::tuple<Scheme, int>& look) {
        ApplyTheme(std::get<Scheme>(look));
        if (std::get<int>(look) == 0) return;
        QFont font = before;
        font.setPointSize(std::get<int>(look));
        QApplication::setFont(font);
    }
    ~Look() {
        QApplication::setFont(before);
        ApplyTheme(Scheme::Light);
    }
    const QFont before = QApplication::font();
};

class LookHolder : public testing::WithParamInterface<std::tuple<Scheme, int>> {
protected:
    const Look look{GetParam()};
};

class SimulatorPageLooks : public LookHolder, public SimulatorPageRig {};

TEST_P(SimulatorPageLooks, NothingIsClipped) {
    PlayFlight();
    At<QTableWidget>("Directories").selectRow(2);
    QCoreApplication::processEvents();
    const int points = std::get<int>(GetParam());
    const auto& area = *qobject_cast<QScrollArea*>(window->currentWidget());
    if (points == 0) {
        EXPECT_EQ(area.verticalScrollBar()->maximum(), 0) << "too high";
    }
    EXPECT_EQ(area.horizontalScrollBar()->maximum(), 0) << "too wide";
    for (const QWidget* widget : area.findChildren<QWidget*>()) {
        const bool showsText = qobject_cast<const QAbstractButton*>(widget) || qobject_cast<const QLabel*>(widget);
        if (!widget->isVisible() || !showsText) continue;
        const auto* readout = dynamic_cast<const deck::Readout*>(widget);
        const QSize needed = readout ? QSize(0, readout->heightForWidth(readout->width())) : widget->minimumSizeHint();
        EXPECT_GE(widget->width(), needed.width()) << widget->objectName().toStdString();
        EXPECT_GE(widget->height(), needed.height()) << widget->objectName().toStdString();
    }
    for (const QWidget* section : page->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        for (const QWidget* one : section->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
            for (const QWidget* other : section->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
                EXPECT_TRUE(one == other || !one->isVisible() || !other->isVisible() ||
                            !one->geometry().intersects(other->geometry()))
                    << one->objectName().toStdString() << " lies on " << other->objectName().toStdString();
    QDir().mkpath(PICTURES);
    const QString scheme = std::get<Scheme>(GetParam()) == Scheme::Dark ? "dark" : "light";
    EXPECT_TRUE(window->grab().save(QString("%1/simulator-page-%2-%3pt-%4x.png")
                                        .arg(PICTURES)
                                        .arg(scheme)
                                        .arg(points)
                                        .arg(window->devicePixelRatio())));
}

INSTANTIATE_TEST_SUITE_P(Palettes, SimulatorPageLooks,
                         testing::Combine(testing::Values(Scheme::Light, Scheme::Dark), testing::Values(0, 11)));

}  // namespace
}  // namespace orvelle
