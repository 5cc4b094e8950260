#include "adapters/embedded/NetworkLink.h"

#include <algorithm>
#include <utility>

namespace orvelle::embedded {

NetworkLink::NetworkLink(EventLoop& loop) : changes(loop), delivery(loop) {}

void NetworkLink::Open(const std::string& newServer) {
    server = newServer;
    changes.Mark();
    if (isOpen) return;
    isOpen = true;
    if (link == LinkState::Up) ComeUp();
}

void NetworkLink::Close() {
    delivery.Drop();
    isOpen = false;
    isUp = false;
    server.clear();
    std::erase_if(records, [](const auto& entry) { return entry.second.Record.IsLocal || entry.second.Dropped; });
    for (auto& [id, entry] : records) entry.Said = false;
    changes.Mark();
}

void NetworkLink::SetLink(LinkState state) {
    if (link == state) return;
    link = state;
    changes.Mark();
    if (!isOpen) return;
    if (state == LinkState::Up) return ComeUp();
    delivery.Raise([this] {
        isUp = false;
        changes.Mark();
        Lost();
    });
}

void NetworkLink::SeeServer(const std::string& name) {
    if (std::ranges::find(serversSeen, name) == serversSeen.end()) serversSeen.push_back(name);
    if (isOpen) delivery.Raise([this, name] { ServerFound(name); });
    changes.Mark();
}

// What there is on the network is said when the link has come up, and not before.
void NetworkLink::ComeUp() {
    delivery.Raise([this] {
        isUp = true;
        changes.Mark();
        delivery.Raise([this] {
            for (const auto& [id, entry] : std::map(records))
                if (!entry.Record.IsLocal && entry.Said == entry.Dropped) SayForeignRecord(id);
        });
        if (session.Handle != 0) SaySession();
        Up();
    });
}

void NetworkLink::SayWhileUp(std::function<void()> event) {
    if (!isOpen) return;
    delivery.Raise([this, event = std::move(event)] {
        if (isUp) event();
    });
}

}  // namespace orvelle::embedded
