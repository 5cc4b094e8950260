// A palette and a font that change while the panel is open are followed by every page.
#include <QApplication>
#include <QToolButton>
#include <QTreeWidget>
#include <algorithm>

#include "adapters/looks/Contrast.h"
#include "adapters/looks/Signs.h"
#include "adapters/qt/widgets/Heading.h"
#include "tests/qt/forms/PlausiblePanel.h"
#include "tests/qt/forms/ShownPanel.h"

namespace orvelle::qt {
namespace {

class LiveLooksTest : public ShownPanel {
protected:
    LiveLooksTest() { FillPlausibly(panel); }
    ~LiveLooksTest() override {
        ApplyTheme(Scheme::Light);
        QApplication::setFont(usual);
        // For the other widgets' classes, too.
        QCoreApplication::processEvents();
    }

    // How much of a page's picture is of that colour, 0 to 1.
    double ShareOf(int page, const QColor& colour) {
        GoTo(page);
        const QImage picture = window.Page(page).grab().toImage();
        qint64 same = 0;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x) same += picture.pixelColor(x, y) == colour ? 1 : 0;
        return static_cast<double>(same) / (picture.width() * picture.height());
    }

    const QFont usual = QApplication::font();
};

TEST_F(LiveLooksTest, EveryPageTurnsDarkAndBack) {
    panel.StatusVelmarc.ForeColor = 255;
    for (const Scheme scheme : {Scheme::Dark, Scheme::Light, Scheme::Dark}) {
        QApplication::setPalette(CalmPalette(scheme));
        const QPalette palette = QApplication::palette();
        for (int page = 0; page < PageCount; ++page) {
            EXPECT_GT(ShareOf(page, palette.color(QPalette::Window)), 0.2) << page;
            EXPECT_LT(
                ShareOf(page,
                        CalmPalette(scheme == Scheme::Dark ? Scheme::Light : Scheme::Dark).color(QPalette::Window)),
                0.001)
                << page;
        }
        const auto& line = Widget<QLabel>(panel.StatusVelmarc);
        EXPECT_EQ(line.palette().color(QPalette::WindowText), SignColour(Sign::Bad, palette));
        const auto& tree = Widget<QTreeWidget>(panel.twCategory);
        EXPECT_EQ(tree.palette().color(QPalette::Base), palette.color(QPalette::Button));
        EXPECT_GE(Contrast(tree.palette().color(QPalette::HighlightedText), tree.palette().color(QPalette::Highlight)),
                  4.5);
        const auto& field = Widget<QLineEdit>(panel.RWFSKeyDisplay);
        EXPECT_EQ(field.palette().color(QPalette::Base), palette.color(QPalette::Window));
    }
}

TEST_F(LiveLooksTest, ALargerFontIsFollowed) {
    const auto& heading = *window.Page(VolumesPanel).findChild<Heading*>();
    const auto& button = Widget<QAbstractButton>(panel.RWKeySet);
    const int headingHeight = heading.fontMetrics().height();
    const int buttonWidth = button.minimumWidth();
    const int treeWidth = Widget<QTreeWidget>(panel.twCategory).width();
    QFont large = usual;
    large.setPointSizeF(usual.pointSizeF() * 1.5);
    QApplication::setFont(large);
    QCoreApplication::processEvents();
    EXPECT_GT(heading.fontMetrics().height(), headingHeight * 1.3);
    EXPECT_GT(button.minimumWidth(), buttonWidth);
    EXPECT_GT(Widget<QTreeWidget>(panel.twCategory).minimumWidth(), treeWidth * 1.2);
    for (int page = 0; page < PageCount; ++page)
        for (const QAbstractButton* shown : window.Page(page).findChildren<QAbstractButton*>()) {
            // Shows a sign alone, in a field.
            if (qobject_cast<const QToolButton*>(shown)) continue;
            EXPECT_GE(std::max(shown->minimumWidth(), shown->sizeHint().width()),
                      shown->fontMetrics().horizontalAdvance(shown->text().remove('&')))
                << shown->objectName().toStdString();
        }
}

}  // namespace
}  // namespace orvelle::qt
