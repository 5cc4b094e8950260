#include "adapters/mqtt/SimulatorAtBroker.h"

#include <utility>

namespace orvelle::mqtt {

namespace {

constexpr Long RepetitionMilliseconds = 100;

}  // namespace

SimulatorAtBroker::SimulatorAtBroker(EventLoop& eventLoop, std::function<PresenceSetting()> describe)
    : loop(eventLoop),
      changes(eventLoop),
      member(eventLoop, Program::Simulator, {{"orvelle/1/+/panel/play", 1}, {"orvelle/1/+/panel/record/+", 1}},
             [this, describe = std::move(describe)] {
                 PresenceSetting presence = describe();
                 presence.OffersSimulator = offers.OffersSimulator;
                 presence.OffersFramework = offers.OffersFramework;
                 return presence;
             }) {
    member.Reached = [this] { Reached.Tell(); };
    // A session of an earlier run must not live on for the moment until this run's is published.
    member.Coming = [this] {
        if (session.Handle == 0) member.Say(TopicKind::Session, "", 1, Retain::Yes);
    };
    member.Came = [this] {
        SaySession(session);
        if (!input.Held.Keys.empty() || !input.Held.Buttons.empty()) SayInputAgain();
        directories.Begin();
        member.HearAlso({"orvelle/1/+/directory/+", 1});
        changes.Mark();
    };
    member.Caught = [this] {
        for (const auto& [identity, name] : directories.End()) DirectoryHeard.Tell(identity, name, "");
    };
    member.Going = [this] { member.Say(TopicKind::Session, "", 1, Retain::Yes); };
    member.Lost = [this] {
        kept.Clear();
        changes.Mark();
    };
    member.OthersChanged = [this] { changes.Mark(); };
    member.Failed = [this](BrokerTrouble why) {
        Failed.Tell(why);
        changes.Mark();
    };
    member.Heard = [this](const Topic& topic, const std::string& payload) { Hear(topic, payload); };
}

void SimulatorAtBroker::Open(const SetUpSetting& setUp) {
    host = setUp.Host;
    member.Open(setUp, host);
}

void SimulatorAtBroker::Offer(bool PresenceSetting::*link, bool offered) {
    if (std::exchange(offers.*link, offered) == offered) return;
    member.Describe();
    changes.Mark();
}

int SimulatorAtBroker::ServedBy(bool PresenceSetting::*link) const {
    const int other = Others().SimulatorOffering(link);
    const bool isOwn = IsThere() && Offers(link) && (other == 0 || Identity() < other);
    return isOwn ? Identity() : other;
}

void SimulatorAtBroker::SayInput(const SimulatorInput& held) {
    input.Held = held;
    SayInputAgain();
    input.Held.Repeat.clear();
}

void SimulatorAtBroker::SayInputAgain() {
    input.Number = CountAfter(input.Number);
    member.Say(TopicKind::Input, WriteInput(input), 0, Retain::No);
    const bool holdsNothing = input.Held.Keys.empty() && input.Held.Buttons.empty();
    again = holdsNothing ? Ticket() : loop.After(RepetitionMilliseconds, [this] { SayInputAgain(); });
}

void SimulatorAtBroker::SaySession(const SessionSetting& said) {
    session = said;
    member.Say(TopicKind::Session, WriteSession(session), 1, Retain::Yes);
}

std::map<Long, RecordContent> SimulatorAtBroker::Records() const {
    std::map<Long, RecordContent> present;
    for (const auto& [name, payload] : kept.All()) {
        const auto topic = ReadTopic(name);
        const auto record = ReadRecord(payload);
        if (topic && record && Others().IsThere({topic->Identity, Program::Panel}))
            present.emplace(RecordId(topic->Identity, topic->Record), *record);
    }
    return present;
}

void SimulatorAtBroker::Hear(const Topic& topic, const std::string& payload) {
    if (topic.Kind == TopicKind::Record) {
        const bool isWell = payload.empty() || ReadRecord(payload);
        if (!isWell || !kept.Take(topic, payload)) member.CountRefused();
        changes.Mark();
    } else if (topic.Kind == TopicKind::Directory) {
        HearDirectory(topic, payload);
    } else if (topic.Kind == TopicKind::Play) {
        const auto request = ReadPlay(payload);
        if (!request) return member.CountRefused();
        if (request->To == Identity()) SoundAsked.Tell(request->Sound);
    }
}

void SimulatorAtBroker::HearDirectory(const Topic& topic, const std::string& text) {
    if (!directories.Take({topic.Identity, topic.Name}, text.size())) return member.CountRefused();
    DirectoryHeard.Tell(topic.Identity, topic.Name, text);
}

}  // namespace orvelle::mqtt
