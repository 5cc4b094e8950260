// Small screens and large letters: in each size that the window takes there, on every page, all that the user sees is
// whole and within reach, by the mouse that scrolls and by the keyboard whose focus scrolls.
#include <QApplication>
#include <QScrollBar>

#include "adapters/looks/ScrolledArea.h"
#include "tests/qt/forms/PlausiblePanel.h"
#include "tests/qt/forms/ShownPanel.h"
#include "tests/qt/forms/Whole.h"

namespace orvelle::qt {
namespace {

struct Case {
    const char* Name;
    QSize Window;
    int Points;  // of the letters
    enum class Sideways { Scrolled, Whole } Pages;
};

// What a screen of that size leaves a window with its frame, and the least that the window is made.
const Case Cases[] = {
    {"Screen1024x768", {1008, 724}, 9, Case::Sideways::Whole},
    {"Screen1024x768Large", {1008, 724}, 11, Case::Sideways::Whole},
    {"Screen1366x768AtScale1Point5", {894, 468}, 9, Case::Sideways::Whole},
    {"Screen1366x768AtScale1Point5Large", {894, 468}, 11, Case::Sideways::Whole},
    {"Least", {640, 360}, 9, Case::Sideways::Scrolled},
    {"LeastLarge", {640, 360}, 11, Case::Sideways::Scrolled},
};

class SizesTest : public testing::TestWithParam<Case> {
protected:
    SizesTest() {
        QFont font = usualFont;
        font.setPointSize(GetParam().Points);
        QApplication::setFont(font);
    }
    ~SizesTest() override { QApplication::setFont(usualFont); }

    // A page that changed its layout asks for another turn.
    static void Settle() {
        for (int turn = 0; turn < 5; ++turn) QCoreApplication::processEvents();
    }

    void Open() {
        window = std::make_unique<MainWindow>(panel);
        FillWithLongestTexts(panel);
        panel.Show();
        window->resize(GetParam().Window);
        Settle();
    }
    ScrolledArea& Turn(int page) {
        for (Long other = 0; other < PageCount; ++other) panel.Panels(other).Visible = other == page;
        Settle();
        return *qobject_cast<ScrolledArea*>(window->Page(page).parentWidget()->parentWidget());
    }
    static std::vector<QWidget*> Seen(const QWidget& page) {
        std::vector<QWidget*> seen;
        for (QWidget* widget : page.findChildren<QWidget*>())
            if (widget->isVisible() && !widget->objectName().isEmpty() && !widget->objectName().startsWith("qt_"))
                seen.push_back(widget);
        return seen;
    }
    // As far as the area can show it at one time.
    static bool IsInView(const ScrolledArea& area, const QWidget& widget) {
        const QRect view = area.viewport()->rect();
        const QRect place(widget.mapTo(area.viewport(), QPoint(0, 0)), widget.size());
        return view.intersected(place).size() == place.size().boundedTo(view.size());
    }

    const QFont usualFont = QApplication::font();
    PanelControls panel;
    std::unique_ptr<MainWindow> window;
};

TEST_P(SizesTest, TheWindowIsAsSmallAsThat) {
    Open();
    EXPECT_EQ(window->size(), GetParam().Window);
    EXPECT_LE(window->minimumSize().width(), 640);
}

TEST_P(SizesTest, EveryPageIsWholeInWhatIsScrolled) {
    Open();
    for (int page = 0; page < PageCount; ++page) {
        const ScrolledArea& area = Turn(page);
        for (const QWidget* widget : Seen(window->Page(page))) {
            SCOPED_TRACE("page " + std::to_string(page) + ", " + widget->objectName().toStdString());
            const QRect place(widget->mapTo(area.widget(), QPoint(0, 0)), widget->size());
            EXPECT_TRUE(area.widget()->rect().contains(place));
            const bool isField = qobject_cast<const QLineEdit*>(widget) != nullptr;
            const bool givesWay = isField && GetParam().Pages == Case::Sideways::Scrolled;
            EXPECT_GE(widget->width(), givesWay ? widget->minimumSizeHint().width() : Needed(*widget).width());
            EXPECT_GE(widget->height(), Needed(*widget).height());
        }
    }
}

TEST_P(SizesTest, NoPageIsScrolledSidewaysOnThoseScreens) {
    Open();
    if (GetParam().Pages == Case::Sideways::Scrolled) return;
    for (int page = 0; page < PageCount; ++page)
        EXPECT_EQ(Turn(page).horizontalScrollBar()->maximum(), 0) << "page " << page;
}

TEST_P(SizesTest, ScrollingReachesEverything) {
    Open();
    for (int page = 0; page < PageCount; ++page) {
        ScrolledArea& area = Turn(page);
        for (QWidget* widget : Seen(window->Page(page))) {
            const QPoint corner = widget->mapTo(area.widget(), QPoint(0, 0));
            area.horizontalScrollBar()->setValue(corner.x());
            area.verticalScrollBar()->setValue(corner.y());
            EXPECT_TRUE(IsInView(area, *widget)) << "page " << page << ", " << widget->objectName().toStdString();
        }
    }
}

TEST_P(SizesTest, TheFocusComesIntoView) {
    Open();
    window->activateWindow();
    for (int page = 0; page < PageCount; ++page) {
        ScrolledArea& area = Turn(page);
        for (QWidget* widget : Seen(window->Page(page))) {
            if ((widget->focusPolicy() & Qt::TabFocus) == 0 || !widget->isEnabled()) continue;
            area.verticalScrollBar()->setValue(widget->y() > area.height() / 2 ? 0
                                                                               : area.verticalScrollBar()->maximum());
            window->setFocus();
            widget->setFocus(Qt::ShortcutFocusReason);
            EXPECT_TRUE(IsInView(area, *widget)) << "page " << page << ", " << widget->objectName().toStdString();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Screens, SizesTest, testing::ValuesIn(Cases),
                         [](const auto& given) { return std::string(given.param.Name); });

}  // namespace
}  // namespace orvelle::qt
