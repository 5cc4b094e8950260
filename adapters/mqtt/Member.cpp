#include "adapters/mqtt/Member.h"

#include <ctime>
#include <utility>

#include "adapters/mqtt/Bounds.h"

namespace orvelle::mqtt {

namespace {

constexpr Long BeatMilliseconds = 1000;
constexpr int PresenceExpirySeconds = 3;

// Goes on while the computer sleeps.
long long MillisecondsSinceBoot() {
    timespec now{};
    clock_gettime(CLOCK_BOOTTIME, &now);
    return now.tv_sec * 1000LL + now.tv_nsec / 1000000;
}

}  // namespace

Member::Member(EventLoop& eventLoop, Program program, std::vector<Subscription> patterns,
               std::function<PresenceSetting()> describe)
    : loop(eventLoop),
      kind(program),
      wanted(std::move(patterns)),
      tell(std::move(describe)),
      connection(eventLoop),
      presences(eventLoop) {
    connection.Up = [this] {
        state = State::Coming;
        connection.Publish({.Topic = OwnTopic(TopicKind::Sync), .Payload = "1"});
        AwaitWhatIsKept();
        Reached();
    };
    connection.Lost = [this] {
        nextBeat.End();
        presences.Clear();
        if (std::exchange(state, State::Away) == State::There) Lost();
    };
    connection.Failed = [this](BrokerTrouble why) { Failed(why); };
    connection.Heard = [this](const std::string& topic, const std::string& payload) { Hear(topic, payload); };
    presences.Changed = [this] {
        if (IsThere()) OthersChanged();
    };
}

void Member::Open(const SetUpSetting& setUp, const std::string& host) {
    identity = setUp.Identity;
    plan.Access = {host, setUp.Port, WriteIdentity(identity), WriteKey(setUp.Key)};
    plan.ClientId = ClientId(identity, kind);
    plan.WillTopic = OwnTopic(TopicKind::Presence);
    plan.Subscriptions = wanted;
    // Its own beats would wake it once more each second.
    plan.Subscriptions.push_back({.Pattern = "orvelle/1/+/+/presence", .Own = OwnMessages::LeftOut});
    plan.Subscriptions.push_back({OwnTopic(TopicKind::Sync), 1});
    connection.Open(plan);
}

void Member::Close() {
    if (IsThere()) {
        Going();
        Publish(TopicKind::Presence, "", 1, Retain::Yes, 0, 0);
    }
    state = State::Away;
    nextBeat.End();
    connection.Close();
    presences.Clear();
}

void Member::Say(TopicKind what, const std::string& payload, int quality, Retain keep, Long record) {
    if (state == State::There || (state == State::Coming && keep == Retain::Yes))
        Publish(what, payload, quality, keep, record, 0);
}

void Member::HearAlso(const Subscription& pattern) {
    if (!IsThere()) return;
    connection.Subscribe(pattern);
    connection.Publish({.Topic = OwnTopic(TopicKind::Sync), .Payload = "1"});
}

void Member::Describe() {
    if (!IsThere()) return;
    PresenceSetting presence = tell();
    if (presence.Address.empty()) presence.Address = connection.OwnAddress();
    presence.Beat = beats = CountAfter(beats);
    Publish(TopicKind::Presence, WritePresence(presence), 1, Retain::Yes, 0, PresenceExpirySeconds);
}

void Member::Hear(const std::string& text, const std::string& payload) {
    const auto topic = ReadTopic(text);
    if (!topic) return;
    const std::size_t longest = topic->Kind == TopicKind::Directory ? bounds::Directory : bounds::Payload;
    if (payload.size() > longest) return CountRefused();
    const bool isOwn = topic->Identity == identity && topic->From == kind;
    if (topic->Kind == TopicKind::Sync) {
        if (!isOwn) return;
        if (state == State::Coming)
            Come();
        else if (IsThere())
            Caught();
    } else if (topic->Kind != TopicKind::Presence) {
        Heard(*topic, payload);
    } else if (!isOwn) {
        const auto presence = ReadPresence(payload);
        if (!presence && !payload.empty()) return CountRefused();
        presences.Hear({topic->Identity, topic->From}, presence);
    }
}

// Nothing else would notice a connection that breaks by now.
void Member::AwaitWhatIsKept() {
    nextBeat = loop.After(BeatMilliseconds, [this] {
        AwaitWhatIsKept();
        connection.GiveUpIfSilent(std::chrono::milliseconds(LeaseMilliseconds));
    });
}

void Member::Come() {
    Coming();
    if (state != State::Coming) return;
    state = State::There;
    beatAt = MillisecondsSinceBoot();
    Beat();
    if (IsThere()) Came();
}

void Member::Beat() {
    const long long before = std::exchange(beatAt, MillisecondsSinceBoot());
    // Others count us as gone by now.
    if (beatAt - before >= LeaseMilliseconds) return connection.GiveUp();
    nextBeat = loop.After(BeatMilliseconds, [this] { Beat(); });
    Describe();
    connection.GiveUpIfSilent(std::chrono::milliseconds(LeaseMilliseconds));
}

void Member::Publish(TopicKind what, const std::string& payload, int quality, Retain keep, Long record,
                     int expirySeconds) {
    connection.Publish({OwnTopic(what, record), payload, quality, keep, expirySeconds});
}

std::string Member::OwnTopic(TopicKind what, Long record) const {
    return WriteTopic({.Identity = identity, .From = kind, .Kind = what, .Record = record});
}

}  // namespace orvelle::mqtt
