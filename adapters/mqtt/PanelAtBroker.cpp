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
        kept.clear();
        Changed.Tell();
    };
    member.OthersChanged = [this] { Changed.Tell(); };
    member.Heard = [this](const Topic& topic, const std::string& payload) { Hear(topic, payload); };
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
    if (topic.Kind == TopicKind::Session || topic.Kind == TopicKind::Record) {
        if (payload.empty())
            kept.erase(WriteTopic(topic));
        else
            kept.insert_or_assign(WriteTopic(topic), payload);
    }
    Heard.Tell(topic, payload);
}

// Of an earlier run, or of this one before a loss of the connection.
void PanelAtBroker::EndWhatWasLeft() {
    for (const auto& [text, payload] : kept) {
        const auto topic = ReadTopic(text);
        if (topic->Kind == TopicKind::Record && topic->Identity == Identity() && !own.contains(topic->Record))
            member.Say(TopicKind::Record, "", 1, Retain::Yes, topic->Record);
    }
}

void PanelAtBroker::SayOwn() {
    for (const auto& [number, content] : own)
        member.Say(TopicKind::Record, WriteRecord(content), 1, Retain::Yes, number);
}

}  // namespace orvelle::mqtt
