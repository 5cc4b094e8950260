#include "adapters/embedded/PlayedLink.h"

#include <algorithm>

namespace orvelle::embedded {

void PlayedLink::SetLink(LinkState state) {
    if (link == state) return;
    link = state;
    changes.Mark();
    if (!isOpen) return;
    if (state == LinkState::Up) return ComeUp();
    delivery.Raise([this] {
        isUp = false;
        changes.Mark();
        RaiseLost();
    });
}

void PlayedLink::SeeServer(const std::string& name) {
    if (std::ranges::find(serversSeen, name) == serversSeen.end()) serversSeen.push_back(name);
    if (isOpen) delivery.Raise([this, name] { RaiseServerFound(name); });
    changes.Mark();
}

void PlayedLink::OpenLink(const std::string& newServer) {
    server = newServer;
    changes.Mark();
    if (isOpen) return;
    isOpen = true;
    if (link == LinkState::Up) ComeUp();
}

void PlayedLink::CloseLink() {
    delivery.Drop();
    isOpen = false;
    isUp = false;
    server.clear();
    changes.Mark();
}

void PlayedLink::ComeUp() {
    delivery.Raise([this] {
        isUp = true;
        changes.Mark();
        RaiseUp();
    });
}

void PlayedLink::SayWhileUp(std::function<void()> event) {
    if (!isOpen) return;
    delivery.Raise([this, event = std::move(event)] {
        if (isUp) event();
    });
}

}  // namespace orvelle::embedded
