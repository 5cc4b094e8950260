// How the window of the simulator's program looks: in each palette nothing is clipped, and a picture of each page is
// left for a look.
#include <QAbstractButton>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>

#include "adapters/looks/Theme.h"
#include "apps/SimulatorIcon.h"
#include "deck/fields/Readout.h"
#include "tests/endtoend/SimulatorRig.h"

namespace orvelle {

namespace {

class SimulatorLooks : public SimulatorRig, public testing::WithParamInterface<Scheme> {
protected:
    SimulatorLooks() { ApplyTheme(GetParam()); }
    ~SimulatorLooks() override { ApplyTheme(Scheme::Light); }
};

TEST_P(SimulatorLooks, NothingIsClipped) {
    ASSERT_NO_FATAL_FAILURE(Open());
    ASSERT_TRUE(IsThere());
    At<QPushButton>("AddComputer").click();
    program->Simulator.PressKey("Ctrl");
    program->Simulator.PressKey("F8");
    program->Simulator.PressButton("Stick", "Button 3");
    program->Network.SetCallsign("ORV123");
    program->Network.SetFrequency(0, "122.800");
    program->Network.StartSession();
    window->Tell("The broker mosquitto ended by itself and is started again.");
    ASSERT_TRUE(ComesTrue([&] { return Row(1) == "c02|-|away|-|-"; }));
    auto& pages = At<QTabWidget>("SimulatorPages");
    const QString scheme = GetParam() == Scheme::Dark ? "dark" : "light";
    QDir().mkpath(PICTURES);
    for (int index = 0; index < pages.count(); ++index) {
        pages.setCurrentIndex(index);
        QCoreApplication::processEvents();
        const auto& area = *qobject_cast<QScrollArea*>(pages.widget(index));
        EXPECT_EQ(area.verticalScrollBar()->maximum(), 0) << "page " << index << " is too high";
        EXPECT_EQ(area.horizontalScrollBar()->maximum(), 0) << "page " << index << " is too wide";
        for (const QWidget* widget : area.findChildren<QWidget*>()) {
            const bool showsText = qobject_cast<const QAbstractButton*>(widget) || qobject_cast<const QLabel*>(widget);
            if (!widget->isVisible() || !showsText || dynamic_cast<const deck::Readout*>(widget)) continue;
            EXPECT_GE(widget->width(), widget->minimumSizeHint().width()) << widget->objectName().toStdString();
            EXPECT_GE(widget->height(), widget->minimumSizeHint().height()) << widget->objectName().toStdString();
        }
        const QString name = QString("%1/simulator-%2-%3-%4x.png").arg(PICTURES).arg(index + 1).arg(scheme);
        EXPECT_TRUE(window->grab().save(name.arg(window->devicePixelRatio())));
    }
    for (const Sign sign : {Sign::Good, Sign::Waiting, Sign::Bad, Sign::Off})
        EXPECT_TRUE(SimulatorIcon(sign).pixmap(22, 22).save(
            QString("%1/simulator-icon-%2.png").arg(PICTURES).arg(static_cast<int>(sign))));
}

INSTANTIATE_TEST_SUITE_P(Palettes, SimulatorLooks, testing::Values(Scheme::Light, Scheme::Dark));

}  // namespace

}  // namespace orvelle
