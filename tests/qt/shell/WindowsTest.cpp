// What the panel asks of its own windows.
#include <gtest/gtest.h>

#include <QLabel>
#include <algorithm>

#include "adapters/qt/services/QtWindows.h"
#include "platform/controls/Form.h"
#include "tests/qt/shell/RealInput.h"
#include "tests/qt/shell/Waiting.h"
#include "tests/qt/shell/WidgetInput.h"

namespace orvelle::qt {
namespace {

// Counts how often the window left the screen.
class CountingWindow : public QWidget {
public:
    int Hidings = 0;

protected:
    void hideEvent(QHideEvent*) override { ++Hidings; }
};

class WindowsTest : public testing::Test {
protected:
    WindowsTest() { panel.setGeometry(100, 120, 300, 200); }

    void Show() {
        panel.show();
        ASSERT_TRUE(WaitForWindowActive(&panel));
    }
    bool IsAbove() {
        const std::vector<std::string> states = input.WindowState(panel);
        return std::find(states.begin(), states.end(), "_NET_WM_STATE_ABOVE") != states.end();
    }
    void SetTopmost(Long insertAfter) { windows.SetWindowPos(form, insertAfter, 0, 0, 0, 0, NoMoveNoSize); }

    WindowTable table;
    Form form{"form", ""};
    Form unknown{"unknown", ""};
    CountingWindow panel;
    QLabel label{"label", &panel};
    KeyCapture keys;
    QtWindows windows{table, keys, [this](const Control& control) { return &control == &form ? &panel : nullptr; }};
    RealInput input;
};

TEST_F(WindowsTest, AShownWindowGoesOnTopAndBackAndStaysWhereItIs) {
    Show();
    const QRect place = panel.geometry();
    SetTopmost(InsertTopmost);
    EXPECT_TRUE(ComesTrue([this] { return IsAbove(); }));
    SetTopmost(InsertNotTopmost);
    EXPECT_TRUE(ComesTrue([this] { return !IsAbove(); }));
    EXPECT_EQ(panel.Hidings, 0);
    EXPECT_EQ(panel.geometry(), place);
    EXPECT_TRUE(input.HasFocus(panel));
}

TEST_F(WindowsTest, AWindowMadeTopmostBeforeItShowsComesUpOnTopAndStaysSo) {
    SetTopmost(InsertTopmost);
    Show();
    EXPECT_TRUE(ComesTrue([this] { return IsAbove(); }));
    panel.hide();
    // The window manager forgets a hidden window, and is told anew.
    EXPECT_TRUE(ComesTrue([this] { return !IsAbove(); }));
    panel.show();
    EXPECT_TRUE(ComesTrue([this] { return IsAbove(); }));
}

TEST_F(WindowsTest, AHiddenWindowChangesItsPlaceForTheNextShow) {
    Show();
    SetTopmost(InsertTopmost);
    EXPECT_TRUE(ComesTrue([this] { return IsAbove(); }));
    panel.hide();
    EXPECT_TRUE(ComesTrue([this] { return !IsAbove(); }));
    SetTopmost(InsertNotTopmost);
    Show();
    EXPECT_FALSE(IsAbove());
}

TEST_F(WindowsTest, RectanglesAreThoseOfFrameAndContents) {
    Show();
    EXPECT_TRUE(ComesTrue([this] { return panel.frameGeometry() != panel.geometry(); }));
    const Rectangle client = windows.GetClientRect(form);
    EXPECT_EQ(client.Left, 0);
    EXPECT_EQ(client.Top, 0);
    EXPECT_EQ(client.Right, 300);
    EXPECT_EQ(client.Bottom, 200);
    const Rectangle window = windows.GetWindowRect(form);
    EXPECT_EQ(window.Left, panel.x());
    EXPECT_EQ(window.Top, panel.y());
    EXPECT_EQ(window.Right - window.Left, panel.frameGeometry().width());
    EXPECT_GT(window.Bottom - window.Top, 200);
}

TEST_F(WindowsTest, AControlWithoutAWidgetHasNoRectangleAndNoPlace) {
    EXPECT_EQ(windows.GetWindowRect(unknown).Right, 0);
    EXPECT_EQ(windows.GetClientRect(unknown).Right, 0);
    windows.SetWindowPos(unknown, InsertTopmost, 0, 0, 0, 0, NoMoveNoSize);
    windows.DrawEdge(unknown, RaisedOuterEdge, SoftEdgeRectangle);
    windows.SetCapture(unknown);
    windows.ReleaseCapture();
}

}  // namespace
}  // namespace orvelle::qt
