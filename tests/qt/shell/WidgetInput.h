// What a user does to a widget, handed to it by Qt without a display's help, and waiting for what comes of it. The
// tests of widgets share it; Qt Test itself is compiled here alone.
#pragma once

#include <QPoint>
#include <QString>
#include <functional>

class QWidget;

namespace orvelle {

// Down and up again.
void ClickKey(QWidget* widget, Qt::Key key, Qt::KeyboardModifiers modifiers = {});
void TypeText(QWidget* widget, const QString& text);
void PressKey(QWidget* widget, Qt::Key key, Qt::KeyboardModifiers modifiers = {});
void ReleaseKey(QWidget* widget, Qt::Key key, Qt::KeyboardModifiers modifiers = {});

// In the widget's middle where no place is given.
void ClickMouse(QWidget* widget, Qt::MouseButton button, Qt::KeyboardModifiers modifiers = {}, QPoint place = {});
void PressMouse(QWidget* widget, Qt::MouseButton button, Qt::KeyboardModifiers modifiers = {}, QPoint place = {});
void ReleaseMouse(QWidget* widget, Qt::MouseButton button, Qt::KeyboardModifiers modifiers = {}, QPoint place = {});
void MoveMouse(QWidget* widget, QPoint place);

// By the box in the frame, as the window manager tells it.
void CloseFromTheFrame(QWidget* window);

// Serve the loop until it is so. The bound, at which they give up and return false, is for a test that fails; one that
// passes needs it on no machine.
bool WaitFor(const std::function<bool()>& isSo);
bool WaitForWindowActive(QWidget* window);
bool WaitForWindowExposed(QWidget* window);

}  // namespace orvelle
