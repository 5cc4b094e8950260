// The framework link: its two kept values, start and stop, and the deck's hold on it.
#include <algorithm>

#include "platform/embedded/ControlValues.h"
#include "platform/embedded/Tessaly.h"

namespace orvelle {

namespace {

constexpr const char* ServerValue = "Tessaly.Server";
constexpr const char* EmbeddedValue = "Tessaly.Embedded";

}  // namespace

EmbeddedTessaly::EmbeddedTessaly(EventLoop& loop, ControlValues& controlValues)
    : Changed(loop), delivery(loop), values(controlValues) {}

void EmbeddedTessaly::SetServer(const std::string& name) {
    values.SetControlValue(ServerValue, name);
    Changed.Mark();
}

std::string EmbeddedTessaly::GetServer() { return values.GetControlValue(ServerValue, AutomaticServer); }
bool EmbeddedTessaly::Embedded() { return values.GetControlValue(EmbeddedValue, "0") != "0"; }

void EmbeddedTessaly::Embedded(Long value) {
    values.SetControlValue(EmbeddedValue, value != 0 ? "1" : "0");
    Changed.Mark();
}

bool EmbeddedTessaly::LinkUp() { return linkUp; }
void EmbeddedTessaly::LinkPrepare() {}

void EmbeddedTessaly::LinkStart() {
    if (started) return;
    started = true;
    if (LinkCanStand()) delivery.Raise([this] { ComeUp(); });
    Changed.Mark();
}

void EmbeddedTessaly::LinkStarted() {}

void EmbeddedTessaly::LinkStop() {
    delivery.Drop();
    started = false;
    linkUp = false;
    openSessions = 0;
    openRecord = 0;
    std::erase_if(records, [](const auto& entry) { return entry.second.IsLocal || entry.second.Dropped; });
    for (auto& [id, record] : records) record.Announced = false;
    Changed.Mark();
}

std::string EmbeddedTessaly::ResolveServerAddress(const std::string& server) {
    return server.find(':') == std::string::npos ? server + ":8767" : server;
}

void EmbeddedTessaly::SetLink(LinkState state) {
    if (link == state) return;
    link = state;
    if (started)
        delivery.Raise([this, state] {
            if (state == LinkState::Up)
                ComeUp();
            else
                GoDown();
        });
    Changed.Mark();
}

void EmbeddedTessaly::SeeServer(const std::string& name) {
    if (std::ranges::find(serversSeen, name) == serversSeen.end()) serversSeen.push_back(name);
    if (started) delivery.Raise([this, name] { ServerFound(name); });
    Changed.Mark();
}

void EmbeddedTessaly::ComeUp() {
    if (linkUp) return;
    linkUp = true;
    delivery.Raise([this] { TellOfRecords(); });
    if (session.Handle != 0) RaiseLinked([this] { SessionOpened(); });
    Changed.Mark();
    Connected();
}

void EmbeddedTessaly::GoDown() {
    if (!linkUp) return;
    linkUp = false;
    openSessions = 0;
    Changed.Mark();
    Disconnected();
}

void EmbeddedTessaly::RaiseLinked(std::function<void()> event) {
    delivery.Raise([this, event = std::move(event)] {
        if (linkUp) event();
    });
}

}  // namespace orvelle
