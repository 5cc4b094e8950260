// The window system: the thread's queue of messages, the mouse, and what the panel asks of its own windows.
// A window is the headless control that it shows.
#pragma once

#include <cstdint>

#include "platform/Types.h"

namespace orvelle {

class Control;

constexpr Long KeyDownMessage = 256;
constexpr Long RemoveMessage = 1;
constexpr Long LocalCaptureTime = 3000;  // ms for which a field takes the keys of this computer
constexpr Long WindowUserData = -21;
constexpr Long WindowProcedureIndex = -4;
constexpr Long InsertTopmost = -1;
constexpr Long InsertNotTopmost = -2;
constexpr Long NoMoveNoSize = 3;
constexpr Long RaisedOuterEdge = 1;
constexpr Long SoftEdgeRectangle = 0x100F;

struct WindowMessage {
    Control* Window = nullptr;
    Long Number = 0;
    Long WParam = 0;
    Long LParam = 0;
};

struct Rectangle {  // pixels
    Long Left = 0;
    Long Top = 0;
    Long Right = 0;
    Long Bottom = 0;
};

// A window's procedure. Kept in a window as a number, as the system keeps it.
using WindowProcedure = Long (*)(Control& window, Long message, Long wParam, Long lParam);

class MessageQueue {
public:
    virtual ~MessageQueue() = default;

    // Serves what is waiting, once. Waiting key messages are dropped.
    virtual void DoEvents() = 0;
    // Takes the next waiting message of the thread. False if there is none now.
    virtual bool PeekMessageA(WindowMessage& message, Long remove) = 0;
    virtual void TranslateMessage(const WindowMessage& message) = 0;
    virtual void DispatchMessageA(const WindowMessage& message) = 0;
};

class Windows {
public:
    virtual ~Windows() = default;

    virtual void SetCapture(Control& window) = 0;
    virtual void ReleaseCapture() = 0;
    virtual void SetWindowPos(Control& window, Long insertAfter, Long left, Long top, Long width, Long height,
                              Long flags) = 0;
    virtual Rectangle GetWindowRect(Control& window) = 0;  // with its borders, on the screen
    virtual Rectangle GetClientRect(Control& window) = 0;  // within them, from 0, 0
    // Index -4 is the window's procedure, -21 its user data. Returns the value before.
    virtual std::intptr_t SetWindowLongA(Control& window, Long index, std::intptr_t value) = 0;
    virtual std::intptr_t GetWindowLongA(Control& window, Long index) = 0;
    // Calls a procedure that SetWindowLongA returned; 0 is none and does nothing.
    virtual Long CallWindowProcA(std::intptr_t procedure, Control& window, Long message, Long wParam, Long lParam) = 0;
    virtual void DrawEdge(Control& window, Long edge, Long flags) = 0;
};

}  // namespace orvelle
