#include "adapters/mqtt/Brokers.h"

#include <algorithm>
#include <utility>

#include "adapters/mqtt/BrokerTroubles.h"
#include "platform/ServerNames.h"

namespace orvelle::mqtt {

namespace {

const HostAndPort Nowhere{"", 0};

// Between the end of one connection and the other one that ended it
constexpr std::chrono::seconds OneMoment{3};
// For which a broker can't be had until another name of it is tried by itself again
constexpr std::chrono::seconds OneName{5};

bool WasLately(const std::optional<std::chrono::steady_clock::time_point>& when) {
    return when && std::chrono::steady_clock::now() - *when < OneMoment;
}

}  // namespace

Brokers::Brokers(EventLoop& eventLoop, std::function<PresenceSetting()> describe)
    : Found(eventLoop), loop(eventLoop), tell(std::move(describe)) {}

Brokers::~Brokers() {
    for (const auto& [place, known] : byPlace)
        if (const std::shared_ptr<PanelAtBroker> at = known.At.lock()) at->LivesOn = nullptr;
}

void Brokers::Join(const SetUpSetting& joined) {
    if (setUp == joined) return;
    Leave();
    setUp = joined;
    automatic.emplace(loop, Found, joined);
    automatic->Changed = [this] { Changed.Tell(); };
}

void Brokers::Leave() {
    setUp.reset();
    automatic.reset();
    automaticTroubles.reset();
    byPlace.clear();
}

void Brokers::SayGoodbye() {
    for (const auto& [place, known] : byPlace)
        if (const std::shared_ptr<PanelAtBroker> at = known.At.lock()) at->Close();
}

std::shared_ptr<PanelAtBroker> Brokers::At(const std::string& server) {
    if (!setUp) return nullptr;
    const HostAndPort place = PlaceOf(server);
    Known& known = byPlace[place];
    if (known.SameAs) {
        if (std::shared_ptr<PanelAtBroker> same = byPlace[*known.SameAs].At.lock()) return same;
        known.SameAs.reset();
    }
    std::shared_ptr<PanelAtBroker> at = known.At.lock();
    if (!at) {
        known.At = at = std::make_shared<PanelAtBroker>(loop, tell);
        Follow(place, *at);
    }
    return at;
}

HostAndPort Brokers::PlaceOf(const std::string& server) {
    if (server == AutomaticServer) return automatic->Place().value_or(Nowhere);
    if (server.empty()) return Nowhere;
    const bool isHere = server == OwnServer || server == LocalHost;
    return InLowerCase({isHere ? LoopbackAddress : server, setUp->Port});
}

// Also where another connection to the same broker holds it by now.
bool Brokers::HoldsRecord(Long number) const {
    return std::ranges::any_of(byPlace, [number](const auto& each) {
        const std::shared_ptr<PanelAtBroker> at = each.second.At.lock();
        return at && at->OwnRecords().contains(number);
    });
}

void Brokers::Follow(const HostAndPort& place, PanelAtBroker& at) {
    if (place == Nowhere) return at.Await(*setUp);
    Known& known = byPlace[place];
    known.ReachedAt = known.TakenOverAt = known.LostAt = std::nullopt;
    at.LivesOn = [this](Long number) { return HoldsRecord(number); };
    known.Reached = at.Reached.Attach([this, place] { Reach(place); });
    known.Failed = at.Failed.Attach([this, place](BrokerTrouble why) { Fail(place, why); });
    if (!IsAutomatic(place)) TroublesAt(place).Rest();
    at.Open(*setUp, place);
}

void Brokers::Reach(const HostAndPort& place) {
    Known& known = byPlace[place];
    known.ReachedAt = Clock::now();
    known.LostAt.reset();
    TroublesAt(place).Reach(place);
    if (IsAutomatic(place)) automatic->Reach();
    for (const auto& [other, each] : byPlace)
        if (other != place && !each.At.expired() && WasLately(each.TakenOverAt))
            return Merge(HostAndPort(other), place);
}

void Brokers::Fail(const HostAndPort& place, BrokerTrouble why) {
    Known& known = byPlace[place];
    TroublesAt(place).Fail(why, place);
    if (IsAutomatic(place)) automatic->Fail(why);
    if (why != BrokerTrouble::TakenOver) {
        if (!known.LostAt) known.LostAt = Clock::now();
        if (Clock::now() - *known.LostAt > OneName) Part(place);
        return;
    }
    known.TakenOverAt = Clock::now();
    for (const auto& [other, each] : byPlace)
        if (other != place && !each.At.expired() && !each.LostAt && WasLately(each.ReachedAt))
            return Merge(place, HostAndPort(other));
}

void Brokers::Merge(const HostAndPort& one, const HostAndPort& into) {
    Known& known = byPlace[one];
    known.SameAs = into;
    known.TakenOverAt.reset();
    TroublesAt(one).Rest();
    Changed.Tell();
}

// A broker that can't be had any more may be another one by now.
void Brokers::Part(const HostAndPort& place) {
    bool hasParted = false;
    for (auto& [other, each] : byPlace) {
        if (each.SameAs != place) continue;
        each.SameAs.reset();
        hasParted = true;
    }
    if (hasParted) Changed.Tell();
}

// While "AUTOMATIC" goes from place to place, its trouble is one.
TroubleTeller& Brokers::TroublesAt(const HostAndPort& place) {
    std::unique_ptr<TroubleTeller>& troubles = IsAutomatic(place) ? automaticTroubles : byPlace[place].Troubles;
    if (!troubles) {
        troubles = std::make_unique<TroubleTeller>(loop);
        troubles->Told = [this](BrokerTrouble why, const HostAndPort& where) {
            if (!byPlace[where].At.expired()) Told(SentenceOf(why, where, setUp->Identity, KeyFrom::SetUpFile));
        };
        troubles->Over = [this](const HostAndPort& where) { Told(SentenceOfReached(where)); };
    }
    return *troubles;
}

}  // namespace orvelle::mqtt
