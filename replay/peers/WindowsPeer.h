// The scripted window system: it keeps the procedures of windows, and every window is empty and stands at the origin
// unless a test has placed it.
#pragma once

#include <map>
#include <vector>

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
    Rectangle GetWindowRect(Control& window) override { return places[&window].Window; }
    Rectangle GetClientRect(Control& window) override { return places[&window].Client; }
    std::intptr_t SetWindowLongA(Control& window, Long index, std::intptr_t value) override;
    std::intptr_t GetWindowLongA(Control& window, Long index) override;
    Long CallWindowProcA(std::intptr_t procedure, Control& window, Long message, Long wParam, Long lParam) override;
    void DrawEdge(Control& window, Long edge, Long flags) override { Edges.push_back({&window, edge, flags}); }

    // Brings a message to a window at once.
    void Deliver(const WindowMessage& message);
    void Place(const Control& window, const Rectangle& onTheScreen, const Rectangle& clientArea) {
        places[&window] = {onTheScreen, clientArea};
    }

    struct Edge {
        const Control* Window;
        Long Kind;
        Long Flags;
    };
    std::vector<Edge> Edges;  // as they were drawn

private:
    struct Bounds {
        Rectangle Window;
        Rectangle Client;
    };

    WindowTable windows;
    std::map<const Control*, Bounds> places;
};

}  // namespace orvelle::replay
