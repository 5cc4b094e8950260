#include "adapters/mqtt/AutomaticPlace.h"

#include <algorithm>
#include <utility>

namespace orvelle::mqtt {

namespace {

constexpr Long FirstPause = 200;  // milliseconds, doubled up to the last
constexpr Long LastPause = 2000;
constexpr Long ShownMilliseconds = 4000;  // in which a place that is merely announced has to prove itself

}  // namespace

AutomaticPlace::AutomaticPlace(EventLoop& eventLoop, FoundServers& foundServers, const SetUpSetting& joined)
    : loop(eventLoop),
      found(foundServers),
      name(joined.Name),
      own(InLowerCase({joined.Host, joined.Port})),
      pause(FirstPause) {}

const std::optional<HostAndPort>& AutomaticPlace::Place() {
    if (!std::exchange(hasBegun, true)) Choose();
    return place;
}

void AutomaticPlace::Choose() {
    showing.End();
    const std::vector<HostAndPort> shown = Shown();
    if (std::ranges::find(shown, own) != shown.end()) return Take(own);
    if (!shown.empty()) return Take(shown.front());
    if (!found.MayStillShow()) return Take(own);
    showing = found.Observe([this] {
        Choose();
        if (place) Changed();
    });
}

void AutomaticPlace::Take(const HostAndPort& chosen) {
    place = chosen;
    isReached = isLeaving = false;
    leaving.End();
    patience = chosen == own ? Ticket() : loop.After(ShownMilliseconds, [this] { Fail(BrokerTrouble::Unreachable); });
}

void AutomaticPlace::Reach() {
    isReached = true;
    isLeaving = false;
    pause = FirstPause;
    patience.End();
    leaving.End();
}

// The connection goes on trying at this place until another one is taken. A taken over one is at the right place.
void AutomaticPlace::Fail(BrokerTrouble why) {
    if (!place || isLeaving || why == BrokerTrouble::TakenOver) return;
    patience.End();
    if (std::exchange(isReached, false)) {
        if (place != own) patience = loop.After(ShownMilliseconds, [this] { Fail(BrokerTrouble::Unreachable); });
        return;
    }
    if (place != own) return GoLater(own, 0);
    std::vector<HostAndPort> shown = Shown();
    std::erase(shown, own);
    if (shown.empty()) return;
    GoLater(shown[turn++ % shown.size()], pause);
    pause = std::min(2 * pause, LastPause);
}

void AutomaticPlace::GoLater(const HostAndPort& chosen, Long milliseconds) {
    isLeaving = true;
    leaving = loop.After(milliseconds, [this, chosen] {
        Take(chosen);
        Changed();
    });
}

std::vector<HostAndPort> AutomaticPlace::Shown() const {
    std::vector<HostAndPort> shown = found.Of(name);
    for (HostAndPort& each : shown) each = InLowerCase(each);
    return shown;
}

}  // namespace orvelle::mqtt
