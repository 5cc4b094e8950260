// The panel's program as a member of the set-up at one broker, whatever it serves: the lines of both links that lead
// there share it, and it goes when the last of them leaves it. It publishes the panel's own records whenever it can,
// and keeps what the broker keeps, for a line that comes later. Observers are told from the loop; they don't end this
// object.
#pragma once

#include <functional>
#include <map>
#include <string>

#include "adapters/mqtt/Member.h"
#include "platform/FrameworkLine.h"
#include "platform/Observers.h"

namespace orvelle::mqtt {

class PanelAtBroker {
public:
    PanelAtBroker(EventLoop& loop, std::function<PresenceSetting()> describe);
    PanelAtBroker(const PanelAtBroker&) = delete;
    PanelAtBroker& operator=(const PanelAtBroker&) = delete;
    ~PanelAtBroker() { member.Close(); }

    void Open(const SetUpSetting& setUp, const std::string& host) { member.Open(setUp, host); }
    void Close() { member.Close(); }
    bool IsThere() const { return member.IsThere(); }
    int Identity() const { return member.Identity(); }
    const Presences& Others() const { return member.Others(); }
    void CountRefused() { member.CountRefused(); }

    // Sessions and records, of this computer too, as the broker brought them on this connection.
    const std::map<std::string, std::string>& Kept() const { return kept; }
    void Say(TopicKind kind, const std::string& payload) { member.Say(kind, payload, 1, Retain::No); }

    // The panel's own records, by their numbers here.
    const std::map<Long, RecordContent>& OwnRecords() const { return own; }
    void SayRecord(Long number, const RecordContent& content);
    void EndRecord(Long number);

    Observers<> Coming;   // all that the broker kept was heard, and nobody knows yet that this panel is there
    Observers<> Changed;  // it is there or no more; others came or went, or say something else of themselves
    Observers<const Topic&, const std::string&> Heard;  // but for presence

private:
    void Hear(const Topic& topic, const std::string& payload);
    void EndWhatWasLeft();
    void SayOwn();

    Member member;
    std::map<std::string, std::string> kept;
    std::map<Long, RecordContent> own;
};

}  // namespace orvelle::mqtt
