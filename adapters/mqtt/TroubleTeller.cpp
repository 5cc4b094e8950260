#include "adapters/mqtt/TroubleTeller.h"

#include <utility>

namespace orvelle::mqtt {

namespace {

constexpr Long LastingMilliseconds = 10000;  // of a success

}  // namespace

void TroubleTeller::Fail(BrokerTrouble why, const HostAndPort& place) {
    standing.End();
    trouble = why;
    where = place;
    const bool comesAgain = why == BrokerTrouble::TakenOver && std::exchange(wasTakenOver, true);
    if (lasts || comesAgain) return TellOnce();
    if (std::exchange(isWaiting, true)) return;
    waiting = loop.After(patience, [this] {
        lasts = true;
        TellOnce();
    });
}

void TroubleTeller::Reach(const HostAndPort& place) {
    waiting.End();
    isWaiting = lasts = false;
    standing = loop.After(LastingMilliseconds, [this, place] {
        wasTakenOver = false;
        if (!std::exchange(told, {}).empty()) Over(place);
    });
}

void TroubleTeller::Rest() {
    waiting.End();
    standing.End();
    isWaiting = lasts = wasTakenOver = false;
}

void TroubleTeller::TellOnce() {
    if (told.insert(trouble).second) Told(trouble, where);
}

}  // namespace orvelle::mqtt
