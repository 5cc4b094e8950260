#include "tests/qt/shell/WidgetInput.h"

#include <QCloseEvent>
#include <QTest>

namespace orvelle {

namespace {

constexpr int BoundMilliseconds = 60'000;

}  // namespace

void ClickKey(QWidget* widget, Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(widget, key, modifiers);
}

void TypeText(QWidget* widget, const QString& text) { QTest::keyClicks(widget, text); }

void PressKey(QWidget* widget, Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyPress(widget, key, modifiers);
}

void ReleaseKey(QWidget* widget, Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyRelease(widget, key, modifiers);
}

void ClickMouse(QWidget* widget, Qt::MouseButton button, Qt::KeyboardModifiers modifiers, QPoint place) {
    QTest::mouseClick(widget, button, modifiers, place);
}

void PressMouse(QWidget* widget, Qt::MouseButton button, Qt::KeyboardModifiers modifiers, QPoint place) {
    QTest::mousePress(widget, button, modifiers, place);
}

void ReleaseMouse(QWidget* widget, Qt::MouseButton button, Qt::KeyboardModifiers modifiers, QPoint place) {
    QTest::mouseRelease(widget, button, modifiers, place);
}

void MoveMouse(QWidget* widget, QPoint place) { QTest::mouseMove(widget, place); }

void CloseFromTheFrame(QWidget* window) {
    QCloseEvent event;
    QSpontaneKeyEvent::setSpontaneous(&event);
    QCoreApplication::instance()->notify(window, &event);
}

bool WaitFor(const std::function<bool()>& isSo) { return QTest::qWaitFor(isSo, BoundMilliseconds); }

bool WaitForWindowActive(QWidget* window) { return QTest::qWaitForWindowActive(window, BoundMilliseconds); }

bool WaitForWindowExposed(QWidget* window) { return QTest::qWaitForWindowExposed(window, BoundMilliseconds); }

}  // namespace orvelle
