// The main window among a window manager and its user: what is the user's act raises its event, what is the program's
// raises none, and places are those that are seen.
#include <gtest/gtest.h>

#include <QDebug>
#include <QWindow>
#include <cstdlib>

#include "adapters/qt/windows/MainWindow.h"
#include "panel/Controls.h"
#include "tests/qt/forms/WindowManager.h"
#include "tests/qt/shell/Waiting.h"

namespace orvelle::qt {
namespace {

class FormWindowTest : public testing::Test {
protected:
    FormWindowTest() {
        panel.Resize = [this] {
            states.push_back(panel.WindowState);
            lefts.push_back(panel.Left);
        };
        // As the controller does.
        panel.QueryUnload = [this](Long& cancel, Long mode) {
            modes.push_back(mode);
            if (mode != Form::ControlMenu) return;
            cancel = 1;
            panel.Hide();
        };
        panel.Load = [this] {
            panel.Left = 100 * TwipsPerPixel;
            panel.Top = 80 * TwipsPerPixel;
            panel.Width = panel.Panels(0).Left + panel.Panels(0).Width;
            panel.Height = panel.Panels(0).Top + panel.Panels(0).Height;
        };
    }

    void Show() {
        panel.Show();
        ASSERT_TRUE(ComesTrue([this] { return IsSeenAt(QPoint(100, 80)); })) << Whereabouts();
    }
    std::string Whereabouts() {
        QString text;
        QDebug(&text) << "frame" << manager.Frame(window) << "form" << Place() << "Qt" << window.frameGeometry()
                      << window.geometry() << "seen" << manager.IsOnScreen(window)
                      << window.windowHandle()->isExposed();
        return text.toStdString();
    }
    QPoint Place() { return {qRound(panel.Left / TwipsPerPixel), qRound(panel.Top / TwipsPerPixel)}; }
    // Half a pixel of a frame is one to Qt, so that at scale 2 a window may stand one off.
    bool IsAt(QPoint place) {
        const QPoint off = manager.Frame(window).topLeft() - place;
        const int tolerance = window.devicePixelRatioF() > 1 ? 1 : 0;
        return std::abs(off.x()) <= tolerance && std::abs(off.y()) <= tolerance;
    }
    bool FrameIsAt(QPoint place) { return IsAt(place) && Place() == place; }
    bool IsSeenAt(QPoint place) {
        return manager.IsOnScreen(window) && window.windowHandle()->isExposed() && FrameIsAt(place);
    }
    // An act of the user's that raises nothing. When it has come through, all that was before it has, too.
    void MoveAside(QPoint place) {
        manager.Move(window, place);
        ASSERT_TRUE(ComesTrue([&] { return FrameIsAt(place); }));
    }

    PanelControls panel;
    MainWindow window{panel};
    WindowManager manager;
    std::vector<Long> states;
    std::vector<double> lefts;
    std::vector<Long> modes;
};

using Longs = std::vector<Long>;

TEST_F(FormWindowTest, ItComesUpWhereAndAsLargeAsTheFormSaysAndRaisesNoResize) {
    Show();
    EXPECT_EQ(window.width(), qRound((panel.Panels(0).Left + panel.Panels(0).Width) / TwipsPerPixel));
    MoveAside({120, 90});
    EXPECT_EQ(states, Longs{});
}

TEST_F(FormWindowTest, HiddenAndShownAgainItIsWhereItWas) {
    Show();
    for (int round = 0; round < 3; ++round) {
        panel.Hide();
        ASSERT_TRUE(ComesTrue([this] { return !manager.IsOnScreen(window); }));
        panel.Show();
        ASSERT_TRUE(ComesTrue([this] { return IsSeenAt(QPoint(100, 80)); }));
    }
    MoveAside({120, 90});
    EXPECT_EQ(states, Longs{});
}

TEST_F(FormWindowTest, TheUsersMoveTellsThePlaceAndRaisesNoResize) {
    Show();
    MoveAside({200, 150});
    EXPECT_EQ(panel.Left, 200 * TwipsPerPixel);
    EXPECT_EQ(panel.Top, 150 * TwipsPerPixel);
    EXPECT_EQ(states, Longs{});
}

TEST_F(FormWindowTest, TheUsersSizeIsAResize) {
    Show();
    MoveAside({120, 90});
    const QSize larger = window.size() + QSize(60, 40);
    manager.Resize(window, larger);
    ASSERT_TRUE(ComesTrue([&] { return window.size() == larger && !states.empty(); }));
    EXPECT_EQ(states, Longs{Form::Normal});
    EXPECT_EQ(panel.Width, window.frameGeometry().width() * TwipsPerPixel);
    EXPECT_EQ(panel.Height, window.frameGeometry().height() * TwipsPerPixel);
    EXPECT_GT(panel.Height, larger.height() * TwipsPerPixel);
    EXPECT_EQ(lefts.back(), 120 * TwipsPerPixel);
}

TEST_F(FormWindowTest, AProgramsMoveMovesTheWindowAndRaisesNothing) {
    Show();
    panel.Left = 10;
    panel.Top = 10;
    // A pixel is 15 twips.
    ASSERT_TRUE(ComesTrue([this] { return IsAt(QPoint(1, 1)); }));
    EXPECT_EQ(panel.Left, 10.0);
    EXPECT_EQ(panel.Top, 10.0);
    MoveAside({50, 60});
    EXPECT_EQ(states, Longs{});
}

TEST_F(FormWindowTest, MinimisingAndRestoringAreTheUsersStates) {
    Show();
    manager.Minimise(window);
    ASSERT_TRUE(ComesTrue([this] { return panel.WindowState == Form::Minimised; }));
    EXPECT_TRUE(panel.Visible);
    manager.Activate(window);
    ASSERT_TRUE(ComesTrue([this] { return panel.WindowState == Form::Normal; }));
    EXPECT_EQ(states, (Longs{Form::Minimised, Form::Normal}));
    EXPECT_EQ(lefts.back(), 100 * TwipsPerPixel);
}

TEST_F(FormWindowTest, MaximisingIsAStateAndRestoringBringsThePlaceBack) {
    Show();
    manager.Maximise(window, WindowManager::Maximised::Yes);
    ASSERT_TRUE(ComesTrue([this] { return panel.WindowState == Form::Maximised && window.width() > 1200; }));
    manager.Maximise(window, WindowManager::Maximised::No);
    ASSERT_TRUE(ComesTrue([this] { return panel.WindowState == Form::Normal && FrameIsAt(QPoint(100, 80)); }));
    MoveAside({120, 90});
    EXPECT_EQ(states.front(), Form::Maximised);
    EXPECT_EQ(states.back(), Form::Normal);
    EXPECT_EQ(lefts.back(), 100 * TwipsPerPixel);
}

TEST_F(FormWindowTest, TheProgramBringsAMinimisedWindowBackWithoutAResize) {
    Show();
    manager.Minimise(window);
    ASSERT_TRUE(ComesTrue([this] { return panel.WindowState == Form::Minimised; }));
    states.clear();
    panel.WindowState = Form::Normal;
    ASSERT_TRUE(ComesTrue([this] { return IsSeenAt(QPoint(100, 80)); }));
    MoveAside({120, 90});
    EXPECT_EQ(states, Longs{});
    EXPECT_EQ(panel.WindowState, Form::Normal);
}

TEST_F(FormWindowTest, AWindowHiddenWhileMinimisedComesBackAsTheTrayMenuShowsIt) {
    Show();
    manager.Minimise(window);
    ASSERT_TRUE(ComesTrue([this] { return panel.WindowState == Form::Minimised; }));
    panel.Hide();
    ASSERT_TRUE(ComesTrue([this] { return !manager.IsOnScreen(window); }));
    states.clear();
    panel.Show();
    panel.WindowState = Form::Normal;
    ASSERT_TRUE(ComesTrue([this] { return IsSeenAt(QPoint(100, 80)); }));
    MoveAside({120, 90});
    EXPECT_EQ(panel.WindowState, Form::Normal);
    EXPECT_EQ(states, Longs{});
}

TEST_F(FormWindowTest, TheCloseBoxAsksTheFormAndHides) {
    Show();
    manager.Close(window);
    ASSERT_TRUE(ComesTrue([this] { return !manager.IsOnScreen(window); }));
    EXPECT_EQ(modes, Longs{Form::ControlMenu});
    EXPECT_TRUE(panel.IsLoaded());
    EXPECT_FALSE(panel.Visible);
    panel.Show();
    EXPECT_TRUE(ComesTrue([this] { return IsSeenAt(QPoint(100, 80)); }));
}

TEST_F(FormWindowTest, AWindowThatTheProgramClosesAsksNobody) {
    Show();
    window.close();
    EXPECT_EQ(modes, Longs{});
}

TEST_F(FormWindowTest, ItCannotBeMadeTooSmall) {
    Show();
    manager.Resize(window, {200, 100});
    ASSERT_TRUE(ComesTrue([this] { return !states.empty() || window.size() == window.minimumSize(); }));
    EXPECT_GE(window.width(), window.minimumSizeHint().width());
    EXPECT_GE(window.height(), window.minimumSizeHint().height());
}

}  // namespace
}  // namespace orvelle::qt
