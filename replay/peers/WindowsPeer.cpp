#include "replay/peers/WindowsPeer.h"

#include "platform/controls/Control.h"

namespace orvelle::replay {

void WindowsPeer::SetCapture(Control& window) { Call("SetCapture", {Value::Word(window.Name)}); }

void WindowsPeer::ReleaseCapture() { Call("ReleaseCapture"); }

void WindowsPeer::SetWindowPos(Control& window, Long insertAfter, Long left, Long top, Long width, Long height,
                               Long flags) {
    Call("SetWindowPos", {Value::Word(window.Name), insertAfter, left, top, width, height, flags});
}

std::intptr_t WindowsPeer::SetWindowLongA(Control& window, Long index, std::intptr_t value) {
    return windows.SetLong(window, index, value);
}

std::intptr_t WindowsPeer::GetWindowLongA(Control& window, Long index) { return windows.GetLong(window, index); }

Long WindowsPeer::CallWindowProcA(std::intptr_t procedure, Control& window, Long message, Long wParam, Long lParam) {
    return WindowTable::Call(procedure, window, message, wParam, lParam);
}

void WindowsPeer::Deliver(const WindowMessage& message) {
    windows.Deliver(*message.Window, message.Number, message.WParam, message.LParam);
}

}  // namespace orvelle::replay
