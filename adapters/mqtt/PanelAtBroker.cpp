#include "adapters/mqtt/PanelAtBroker.h"

#include <utility>

namespace orvelle::mqtt {

PanelAtBroker::PanelAtBroker(EventLoop& loop, std::function<PresenceSetting()> describe)
    : member(loop, Program::Panel,
             {{"orvelle/1/+/sim/input", 0},
              {"orvelle/1/+/sim/session", 1},
              {"orvelle/1/+/panel/record/+", 1},
              {"orvelle/1/+/panel/write", 1},
              {"orvelle/1/+/sim/write", 1}},
             std::move(describe)) {
    member.Reached = [this] { Reached.Tell(); };
    member.Coming = [this] {
        Coming.Tell();
        EndWhatWasLeft();
    };
    member.Came = [this] {
        SayOwn();
        Changed.Tell();
    };
    member.Going = [this] {
        for (const auto& [number, content] : own) member.Say(TopicKind::Record, "", 1, Retain::Yes, number);
    };
    member.Lost = [this] {
        kept.Clear();
        below.clear();
        Changed.Tell();
    };
    member.Failed = [this](BrokerTrouble why) { Failed.Tell(why); };
    member.OthersChanged = [this] { Changed.Tell(); };
    member.Heard = [this](const Topic& topic, const std::string& payload) { Hear(topic, payload); };
}

void PanelAtBroker::Open(SetUpSetting setUp, const HostAndPort& place) {
    Await(setUp);
    setUp.Port = place.Port;
    member.Open(setUp, place.Host);
}

void PanelAtBroker::SayRecord(Long number, const RecordContent& content) {
    own.insert_or_assign(number, content);
    if (IsThere()) member.Say(TopicKind::Record, WriteRecord(content), 1, Retain::Yes, number);
}

void PanelAtBroker::EndRecord(Long number) {
    own.erase(number);
    if (IsThere()) member.Say(TopicKind::Record, "", 1, Retain::Yes, number);
}

void PanelAtBroker::Hear(const Topic& topic, const std::string& payload) {
    if (topic.Kind == TopicKind::Record && topic.Identity == identity)
        payload.empty() ? static_cast<void>(below.erase(topic.Record)) : static_cast<void>(below.insert(topic.Record));
    else if ((topic.Kind == TopicKind::Session || topic.Kind == TopicKind::Record) && !kept.Take(topic, payload))
        return CountRefused();
    Heard.Tell(topic, payload);
}

// Of an earlier run, or of this one before a loss of the connection.
void PanelAtBroker::EndWhatWasLeft() {
    for (const Long number : below)
        if (!own.contains(number) && !(LivesOn && LivesOn(number)))
            member.Say(TopicKind::Record, "", 1, Retain::Yes, number);
}

void PanelAtBroker::SayOwn() {
    for (const auto& [number, content] : own)
        member.Say(TopicKind::Record, WriteRecord(content), 1, Retain::Yes, number);
}

}  // namespace orvelle::mqtt
