// The panel's program as a member of the set-up at one broker, whatever it serves: the lines of both links that lead
// there share it, and it goes when the last of them leaves it. It publishes the panel's own records whenever it can,
// and keeps what the broker keeps, for a line that comes later. Observers are told from the loop; they don't end this
// object.
#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>

#include "adapters/mqtt/Member.h"
#include "adapters/mqtt/RetainedMessages.h"
#include "adapters/mqtt/SetUpFile.h"
#include "adapters/shared/HostAndPort.h"
#include "platform/FrameworkLine.h"
#include "platform/Observers.h"

namespace orvelle::mqtt {

class PanelAtBroker {
public:
    PanelAtBroker(EventLoop& loop, std::function<PresenceSetting()> describe);
    PanelAtBroker(const PanelAtBroker&) = delete;
    PanelAtBroker& operator=(const PanelAtBroker&) = delete;
    ~PanelAtBroker() { member.Close(); }

    // Belongs to the set-up, and goes nowhere yet.
    void Await(const SetUpSetting& setUp) { identity = setUp.Identity; }
    // Goes to its broker at another place than the set-up's own.
    void Open(SetUpSetting setUp, const HostAndPort& place);
    void Close() { member.Close(); }
    bool IsThere() const { return member.IsThere(); }
    int Identity() const { return identity; }
    const Presences& Others() const { return member.Others(); }
    void CountRefused() { member.CountRefused(); }
    std::size_t Refused() const { return member.Refused(); }

    // Sessions, and records of other computers, as the broker brought them on this connection.
    const std::map<std::string, std::string>& Kept() const { return kept.All(); }
    void Say(TopicKind kind, const std::string& payload) { member.Say(kind, payload, 1, Retain::No); }

    // The panel's own records, by their numbers here.
    const std::map<Long, RecordContent>& OwnRecords() const { return own; }
    void SayRecord(Long number, const RecordContent& content);
    void EndRecord(Long number);

    // Whether a record of this panel is held elsewhere in the program, and not to be ended as one of an earlier run.
    std::function<bool(Long number)> LivesOn;

    Observers<> Reached;  // the broker takes this panel; before Coming
    Observers<> Coming;   // all that the broker kept was heard, and nobody knows yet that this panel is there
    Observers<> Changed;  // it is there or no more; others came or went, or say something else of themselves
    Observers<const Topic&, const std::string&> Heard;  // but for presence, and for what is beyond the bounds
    Observers<BrokerTrouble> Failed;

private:
    void Hear(const Topic& topic, const std::string& payload);
    void EndWhatWasLeft();
    void SayOwn();

    Member member;
    int identity = 0;
    RetainedMessages kept;
    std::set<Long> below;  // numbers of records that the broker keeps below this computer's own identity
    std::map<Long, RecordContent> own;
};

}  // namespace orvelle::mqtt
