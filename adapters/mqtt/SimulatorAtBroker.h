// The simulator's program as a member of the set-up: what it offers, what is held there, the session and the sounds
// that panels ask for. The two sides of it that windows and devices act on stand on this. Observers are told from the
// loop; they don't end this object.
#pragma once

#include <functional>
#include <map>
#include <string>

#include "adapters/mqtt/HeardDirectories.h"
#include "adapters/mqtt/Member.h"
#include "adapters/mqtt/RetainedMessages.h"
#include "adapters/shared/Changes.h"
#include "platform/Observers.h"

namespace orvelle::mqtt {

class SimulatorAtBroker {
public:
    // `describe` tells of this computer; what is offered is filled in here.
    SimulatorAtBroker(EventLoop& eventLoop, std::function<PresenceSetting()> describe);
    SimulatorAtBroker(const SimulatorAtBroker&) = delete;
    SimulatorAtBroker& operator=(const SimulatorAtBroker&) = delete;
    ~SimulatorAtBroker() { member.Close(); }

    void Open(const SetUpSetting& setUp);
    void Close() { member.Close(); }
    bool IsThere() const { return member.IsThere(); }
    int Identity() const { return member.Identity(); }
    BrokerTrouble Trouble() const { return member.Trouble(); }
    const std::string& Host() const { return host; }
    const Presences& Others() const { return member.Others(); }
    std::size_t Refused() const { return member.Refused(); }

    // Whether a link is offered, by the member of PresenceSetting that tells it.
    void Offer(bool PresenceSetting::*link, bool offered);
    bool Offers(bool PresenceSetting::*link) const { return offers.*link; }
    // The computer that serves the link now: of all that are there and offer it, this one included, the lowest
    // identity. 0 for none.
    int ServedBy(bool PresenceSetting::*link) const;
    // Says all that is held, and says it again every 100 ms while something is.
    void SayInput(const SimulatorInput& input);
    void SaySession(const SessionSetting& said);
    void SayWrite(const WriteRequest& request) { member.Say(TopicKind::Write, WriteWrite(request), 1, Retain::No); }
    // Of the panels that are there, by id.
    std::map<Long, RecordContent> Records() const;

    Observers<> Reached;  // the broker takes this program
    Observers<BrokerTrouble> Failed;
    Observers<const std::string&> SoundAsked;  // the name of a file of sound
    // A directory that the computer of this identity holds, its name and its text; "" where it holds it no more, also
    // where that happened while the connection was down. Each again after a connection.
    Observers<int, const std::string&, const std::string&> DirectoryHeard;
    Ticket Observe(std::function<void()> observer) { return changes.Observe(std::move(observer)); }
    void MarkChange() { changes.Mark(); }

private:
    void Hear(const Topic& topic, const std::string& payload);
    void HearDirectory(const Topic& topic, const std::string& text);
    void SayInputAgain();

    EventLoop& loop;
    Changes changes;
    PresenceSetting offers;
    std::string host;
    Member member;
    InputMessage input{0, {}};
    SessionSetting session;
    RetainedMessages kept;  // records
    HeardDirectories directories;
    Ticket again;
};

}  // namespace orvelle::mqtt
