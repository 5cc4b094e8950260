// Which page is seen, and that pages that come late show what their controls have become.
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedWidget>

#include "adapters/looks/Text.h"
#include "adapters/qt/widgets/Lamp.h"
#include "tests/qt/forms/ShownPanel.h"

namespace orvelle::qt {
namespace {

class PagesTest : public testing::Test {
protected:
    QStringList Pages() {
        QStringList names;
        const auto* stack = window.findChild<QStackedWidget*>();
        for (int page = 0; page < stack->count(); ++page) names.append(NameOfPage(*stack->widget(page)));
        return names;
    }
    QString Seen() { return NameOfPage(*window.findChild<QStackedWidget*>()->currentWidget()); }
    static QString NameOfPage(const QWidget& area) {
        return qobject_cast<const QScrollArea*>(&area)->widget()->objectName();
    }

    PanelControls panel;
    MainWindow window{panel};
};

TEST_F(PagesTest, TheOverviewIsSeenFirstAndIsTheOnlyPageMade) {
    EXPECT_EQ(Seen(), QStringLiteral("Panels_0"));
    EXPECT_EQ(Pages(), QStringList{QStringLiteral("Panels_0")});
}

TEST_F(PagesTest, APageIsSeenWhenItsFrameBecomesVisible) {
    panel.Panels(0).Visible = false;
    panel.Panels(7).Visible = true;
    EXPECT_EQ(Seen(), QStringLiteral("Panels_7"));
    panel.Panels(7).Visible = false;
    panel.Panels(0).Visible = true;
    EXPECT_EQ(Seen(), QStringLiteral("Panels_0"));
}

TEST_F(PagesTest, APageThatComesLateShowsWhatHasHappened) {
    panel.RWPath.Text = "path";
    panel.RWJoySet.Caption = "Cancel";
    panel.RWJoyClear.Enabled = false;
    panel.Panels(2).Visible = true;
    EXPECT_EQ(qobject_cast<QLineEdit*>(window.WidgetOf(panel.RWPath))->text(), QStringLiteral("path"));
    EXPECT_EQ(WithoutMnemonic(qobject_cast<QPushButton*>(window.WidgetOf(panel.RWJoySet))->text()),
              QStringLiteral("Cancel"));
    EXPECT_FALSE(window.WidgetOf(panel.RWJoyClear)->isEnabled());
}

TEST_F(PagesTest, AskingForAWidgetMakesItsPage) {
    EXPECT_NE(window.WidgetOf(panel.K2KKeyDisplay), nullptr);
    EXPECT_TRUE(Pages().contains(QStringLiteral("Panels_7")));
    EXPECT_EQ(Seen(), QStringLiteral("Panels_0"));
}

TEST_F(PagesTest, TheFormIsTheWindow) {
    EXPECT_EQ(window.WidgetOf(panel), &window);
    EXPECT_EQ(window.windowTitle(), QStringLiteral("Orvelle Control Panel"));
    panel.Caption = "Other";
    EXPECT_EQ(window.windowTitle(), QStringLiteral("Other"));
}

TEST_F(PagesTest, TheStatusPictureIsTheIconOfTheWindow) {
    panel.StatusIcon.Picture = panel.IconList.Image("VVVVVV");
    const QImage before = window.windowIcon().pixmap(32).toImage();
    panel.StatusIcon.Picture = panel.IconList.Image("RRRRRR");
    EXPECT_NE(window.windowIcon().pixmap(32).toImage(), before);
}

TEST_F(PagesTest, BeforeTheLoadTheOverviewsFrameHasThePlaceAndSizeThatTheWindowNeeds) {
    const double right = panel.Panels(0).Left + panel.Panels(0).Width;
    const double bottom = panel.Panels(0).Top + panel.Panels(0).Height;
    panel.Width = right;
    panel.Height = bottom;
    panel.Show();
    EXPECT_EQ(window.size(), QSize(qRound(right / 15), qRound(bottom / 15)));
    const QWidget& area = *window.findChild<QStackedWidget*>()->currentWidget();
    const QPoint corner = area.mapTo(&window, QPoint(0, 0));
    EXPECT_EQ(corner, QPoint(qRound(panel.Panels(0).Left / 15), qRound(panel.Panels(0).Top / 15)));
    EXPECT_EQ(area.rect().bottomRight() + corner, window.rect().bottomRight());
}

}  // namespace
}  // namespace orvelle::qt
