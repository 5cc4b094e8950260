// The scripted window system: it keeps the procedures of windows, and every window is empty and stands at the origin.
#pragma once

#include "adapters/shared/WindowTable.h"
#include "platform/Windows.h"
#include "replay/Peer.h"

namespace orvelle::replay {

class WindowsPeer final : public Windows, private Peer {
public:
    using Peer::Peer;

    void SetCapture(Control& window) override;
    void ReleaseCapture() override;
    void SetWindowPos(Control& window, Long insertAfter, Long left, Long top, Long width, Long height,
                      Long flags) override;
    Rectangle GetWindowRect(Control&) override { return {}; }
    Rectangle GetClientRect(Control&) override { return {}; }
    std::intptr_t SetWindowLongA(Control& window, Long index, std::intptr_t value) override;
    std::intptr_t GetWindowLongA(Control& window, Long index) override;
    Long CallWindowProcA(std::intptr_t procedure, Control& window, Long message, Long wParam, Long lParam) override;
    void DrawEdge(Control&, Long, Long) override {}

    // Brings a message to a window at once.
    void Deliver(const WindowMessage& message);

private:
    WindowTable windows;
};

}  // namespace orvelle::replay
