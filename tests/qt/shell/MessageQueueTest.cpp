// Keys that the user presses while a capture is on become messages, and nothing else.
#include <QAction>
#include <QPushButton>

#include "tests/qt/shell/CaptureRig.h"
#include "tests/qt/shell/WidgetInput.h"

namespace orvelle::qt {
namespace {

constexpr int KeyTab = 15;
constexpr int KeyQ = 16;
constexpr int KeyLeftCtrl = 29;
constexpr int KeyA = 30;
constexpr int KeyC = 46;
constexpr int KeyLeftAlt = 56;
constexpr int KeyF10 = 68;
constexpr int KeyRightCtrl = 97;
constexpr int KeyUp = 103;
constexpr int KeyLeftWindows = 125;

class MessageQueueTest : public testing::Test, protected CaptureRig {
protected:
    MessageQueueTest() {
        layout->addWidget(&button);
        layout->addWidget(&edit);
        button.setShortcut(QKeySequence("Ctrl+C"));
        QObject::connect(&button, &QPushButton::clicked, [this] { ++clicks; });
        Show();
        edit.setFocus();
    }

    QLineEdit edit;
    QPushButton button{"Set"};
    int clicks = 0;
};

TEST_F(MessageQueueTest, CapturedKeysBecomeCodesAndReachNoWidget) {
    windows.SetCapture(box);
    input.KeyDown(KeyLeftCtrl);
    Stroke(KeyC);
    input.KeyUp(KeyLeftCtrl);
    for (const int key : {KeyA, KeyTab, KeyF10, KeyRightCtrl, KeyUp, KeyLeftWindows, KeyEsc}) Stroke(key);
    EXPECT_EQ(CodesUpTo(1), (std::vector<Long>{29, 46, 30, 15, 68, 285, 328, 347, 1}));
    windows.ReleaseCapture();
    EXPECT_EQ(clicks, 0);
    EXPECT_EQ(edit.text(), "");
    EXPECT_TRUE(display.hasFocus());

    Stroke(KeyTab);
    EXPECT_TRUE(ComesTrue([this] { return button.hasFocus(); }));
}

TEST_F(MessageQueueTest, TheFieldTellsTheSecondsLeft) {
    const auto told = [this] { return display.actions().isEmpty() ? "" : display.actions().first()->text(); };
    EXPECT_EQ(told(), "");
    windows.SetCapture(box);
    EXPECT_EQ(told(), "seconds left: 3");
    EXPECT_TRUE(ComesTrue([&] { return told() == "seconds left: 2"; }));
    EXPECT_TRUE(ComesTrue([&] { return told() == "seconds left: 1"; }));
    windows.ReleaseCapture();
    EXPECT_EQ(told(), "");
    EXPECT_EQ(display.text(), "");
}

TEST_F(MessageQueueTest, AltCombinationsAreNeitherTakenNorShortcuts) {
    bool heard = false;
    button.setShortcut(QKeySequence("Alt+Q"));
    QObject::connect(&button, &QPushButton::clicked, [&] { heard = true; });
    windows.SetCapture(box);
    input.KeyDown(KeyLeftAlt);
    Stroke(KeyQ);
    input.KeyUp(KeyLeftAlt);
    Stroke(KeyEsc);
    EXPECT_EQ(CodesUpTo(1), std::vector<Long>{1});
    EXPECT_FALSE(heard);
    windows.ReleaseCapture();
    input.KeyDown(KeyLeftAlt);
    Stroke(KeyQ);
    input.KeyUp(KeyLeftAlt);
    EXPECT_TRUE(ComesTrue([&] { return heard; }));
}

TEST_F(MessageQueueTest, KeysThatWaitBeforeTheCaptureAreDropped) {
    Stroke(KeyA);
    queue.DoEvents();
    windows.SetCapture(box);
    Stroke(KeyEsc);
    EXPECT_EQ(CodesUpTo(1), std::vector<Long>{1});
    windows.ReleaseCapture();
    Settle();
    EXPECT_EQ(edit.text(), "");
}

TEST_F(MessageQueueTest, EverythingElseIsServedWhileTheQueueIsLookedAt) {
    bool ran = false;
    QMetaObject::invokeMethod(
        &panel, [&] { ran = true; }, Qt::QueuedConnection);
    WindowMessage message;
    EXPECT_FALSE(queue.PeekMessageA(message, RemoveMessage));
    EXPECT_TRUE(ran);
}

TEST_F(MessageQueueTest, WhileCapturedTheMouseActsOnNoOtherWidget) {
    windows.SetCapture(box);
    ClickMouse(&button, Qt::LeftButton);
    EXPECT_EQ(clicks, 0);
    windows.ReleaseCapture();
    ClickMouse(&button, Qt::LeftButton);
    EXPECT_EQ(clicks, 1);
}

TEST_F(MessageQueueTest, WithoutACaptureNoKeyIsTaken) {
    Stroke(KeyA);
    EXPECT_TRUE(ComesTrue([this] { return edit.text() == "a"; }));
    WindowMessage message;
    EXPECT_FALSE(queue.PeekMessageA(message, RemoveMessage));
}

TEST_F(MessageQueueTest, LookingWithoutRemovingLeavesTheMessage) {
    windows.SetCapture(box);
    Stroke(KeyEsc);
    WindowMessage message;
    EXPECT_TRUE(ComesTrue([&] { return queue.PeekMessageA(message, 0); }));
    EXPECT_TRUE(queue.PeekMessageA(message, RemoveMessage));
    EXPECT_FALSE(queue.PeekMessageA(message, RemoveMessage));
    windows.ReleaseCapture();
}

TEST_F(MessageQueueTest, AMessageIsDispatchedToItsWindowsProcedure) {
    const WindowProcedure procedure = [](Control&, Long message, Long wParam, Long lParam) {
        return message + wParam + lParam;
    };
    EXPECT_NE(windows.SetWindowLongA(box, WindowProcedureIndex, reinterpret_cast<std::intptr_t>(procedure)), 0);
    EXPECT_EQ(windows.CallWindowProcA(windows.GetWindowLongA(box, WindowProcedureIndex), box, 1, 2, 3), 6);
    EXPECT_EQ(windows.SetWindowLongA(box, WindowUserData, 5), 0);
    EXPECT_EQ(windows.GetWindowLongA(box, WindowUserData), 5);
    queue.DispatchMessageA({&box, 260, 0, 0});
    queue.DispatchMessageA({});
}

}  // namespace
}  // namespace orvelle::qt
