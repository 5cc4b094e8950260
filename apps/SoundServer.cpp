#include "apps/SoundServer.h"

#include <utility>

#include "adapters/pulse/ServerSocket.h"

namespace orvelle {

namespace {

constexpr Long PatienceMilliseconds = 1000;

}  // namespace

SoundServer::SoundServer(EventLoop& eventLoop)
    : connection(eventLoop),
      Devices(eventLoop, connection),
      Headset(eventLoop, Devices),
      Speakers(eventLoop, Devices),
      loop(eventLoop),
      watch(Devices.Observe([this] { Look(); })) {
    if (const auto file = pulse::ServerSocket(""); !file.empty()) {
        socket.emplace(loop, file);
        socket->Changed = [this] { connection.Seek(); };
    }
    connection.Seek();
}

void SoundServer::WhenKnown(std::function<void()> act) {
    awaiting = std::move(act);
    if (!Devices.AreAwaited()) return Act();
    patience = loop.After(PatienceMilliseconds, [this] { Act(); });
}

void SoundServer::Look() {
    if (Devices.AreKnown() && !std::exchange(hasCome, true)) Came();
    if (awaiting && !Devices.AreAwaited()) Act();
}

void SoundServer::Act() {
    patience.End();
    std::exchange(awaiting, {})();
}

}  // namespace orvelle
