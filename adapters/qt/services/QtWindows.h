// What the panel asks of its own windows, over their widgets, in logical pixels. A control that no widget shows has an
// empty rectangle, and asking anything of it does nothing.
#pragma once

#include <memory>

#include "adapters/qt/mirrors/WidgetLookup.h"
#include "adapters/qt/services/KeyCapture.h"
#include "adapters/qt/services/SecondsLeft.h"
#include "adapters/shared/WindowTable.h"
#include "platform/Windows.h"

namespace orvelle::qt {

class QtWindows : public Windows {
public:
    QtWindows(WindowTable& windowTable, KeyCapture& keyCapture, WidgetLookup widgetLookup)
        : table(windowTable), keys(keyCapture), widgetOf(std::move(widgetLookup)) {}

    void SetCapture(Control& window) override;
    void ReleaseCapture() override;
    // Only the place in the stack can be set: the size and place of windows are properties of their forms.
    void SetWindowPos(Control& window, Long insertAfter, Long left, Long top, Long width, Long height,
                      Long flags) override;
    Rectangle GetWindowRect(Control& window) override;
    Rectangle GetClientRect(Control& window) override;
    std::intptr_t SetWindowLongA(Control& window, Long index, std::intptr_t value) override;
    std::intptr_t GetWindowLongA(Control& window, Long index) override;
    Long CallWindowProcA(std::intptr_t procedure, Control& window, Long message, Long wParam, Long lParam) override;
    // Draws nothing: the one control that asks for it has no surface but in a designer.
    void DrawEdge(Control& window, Long edge, Long flags) override;

private:
    WindowTable& table;
    KeyCapture& keys;
    const WidgetLookup widgetOf;
    std::unique_ptr<SecondsLeft> secondsLeft;  // while a field takes keys
};

}  // namespace orvelle::qt
