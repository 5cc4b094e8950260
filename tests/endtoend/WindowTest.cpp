// The window on a real desktop: the close box hides it, the tray icon brings it back.
#include <QApplication>
#include <QMenu>
#include <QScreen>

#include "tests/endtoend/PanelTest.h"

namespace orvelle {

namespace {

class WindowTest : public PanelTest {
protected:
    // The presses of two tests on the same icon are no double click.
    WindowTest() { QApplication::setDoubleClickInterval(0); }

    // Once the tray, which lies at the right of the screen, has taken it in.
    const QWidget* TrayIcon() {
        for (const QWidget* widget : QApplication::allWidgets())
            if (widget->inherits("QSystemTrayIconSys") && widget->isVisible() &&
                user.Input.MiddleOf(*widget).x() > widget->screen()->geometry().center().x())
                return widget;
        return nullptr;
    }
    void PopUpTheMenu() {
        ASSERT_TRUE(ComesTrue([this] { return TrayIcon() != nullptr; }));
        user.RightClick(*TrayIcon());
        ASSERT_TRUE(ComesTrue([] { return qobject_cast<QMenu*>(QApplication::activePopupWidget()) != nullptr; }));
    }
};

TEST_F(WindowTest, TheCloseBoxHidesAndALeftPressOnTheIconBringsBack) {
    ASSERT_NO_FATAL_FAILURE(Open());
    ASSERT_TRUE(ComesTrue([this] { return TrayIcon() != nullptr; }));
    ToFront(house.Desktop.Window());
    user.Do({"key", "alt+F4"});
    ASSERT_TRUE(ComesTrue([this] { return !house.Desktop.Window().isVisible(); }))
        << "panel active: " << house.Desktop.Window().isActiveWindow() << ", deck open: " << house.Deck->isVisible();
    EXPECT_FALSE(panel.Visible);
    EXPECT_TRUE(panel.IsLoaded());

    user.Click(*TrayIcon());
    EXPECT_TRUE(ComesTrue([this] { return house.Desktop.Window().isVisible(); }));
    EXPECT_TRUE(panel.Visible);
}

TEST_F(WindowTest, ARightPressOnTheIconPopsUpTheMenu) {
    ASSERT_NO_FATAL_FAILURE(Open());
    ASSERT_NO_FATAL_FAILURE(PopUpTheMenu());
    EXPECT_EQ(qobject_cast<QMenu*>(QApplication::activePopupWidget())->actions().size(), 3);
    panel.Left = 3000;
    user.Do({"key", "Down", "Return"});
    // "Ensure Visible", the first entry.
    EXPECT_TRUE(ComesTrue([this] { return panel.Left == 10.0 && panel.Top == 10.0; }));
}

TEST_F(WindowTest, AHiddenWindowMadeVisibleStandsWithItsWholeFrameOnTheScreen) {
    ASSERT_NO_FATAL_FAILURE(Open());
    ASSERT_TRUE(ComesTrue([this] { return TrayIcon() != nullptr; }));
    ToFront(house.Desktop.Window());
    user.Do({"key", "alt+F4"});
    ASSERT_TRUE(ComesTrue([this] { return !house.Desktop.Window().isVisible(); }));
    ASSERT_NO_FATAL_FAILURE(PopUpTheMenu());
    user.Do({"key", "Down", "Return"});
    EXPECT_TRUE(ComesTrue([this] {
        const QRect inside = house.Desktop.Window().geometry();
        return house.Desktop.Window().frameGeometry().topLeft() == QPoint(1, 1) && inside.top() > 1;
    }));
    EXPECT_EQ(panel.Top, 10.0);
}

}  // namespace

}  // namespace orvelle
