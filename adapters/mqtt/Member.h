// A program of ours as a member of its set-up: it comes to the broker, tells that it is there, knows who else is, and
// goes. Coming is one sequence at each connection: subscribe, read what the broker has kept, end what of an earlier run
// must not live on, be there, publish. A program whose own beats paused, as its computer slept, comes anew. Used by the
// panel's lines and by the simulator's program. Events come from the loop; a handler may serve the loop or close this
// member, not end it.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "adapters/mqtt/BrokerConnection.h"
#include "adapters/mqtt/Presences.h"
#include "adapters/mqtt/SetUpFile.h"

namespace orvelle::mqtt {

class Member {
public:
    // `patterns` are subscribed to beside presence. `describe` tells of this program, all but the beat; where it
    // leaves the address out, that is the one on the way to the broker.
    Member(EventLoop& eventLoop, Program program, std::vector<Subscription> patterns,
           std::function<PresenceSetting()> describe);
    Member(const Member&) = delete;
    Member& operator=(const Member&) = delete;
    ~Member() { Close(); }

    // Goes to the host's broker as the computer that the set-up knows.
    void Open(const SetUpSetting& setUp, const std::string& host);
    // Tells Going, says goodbye and hangs up.
    void Close();

    int Identity() const { return identity; }
    bool IsThere() const { return state == State::There; }
    const Presences& Others() const { return presences; }
    BrokerTrouble Trouble() const { return connection.Trouble(); }
    std::size_t Refused() const { return refused; }  // messages that broke a rule, so far

    // Publishes below this computer's identity, while it is there; what is retained also while it comes.
    void Say(TopicKind kind, const std::string& payload, int quality, Retain keep, Long record = 0);
    // Subscribes to what may be so long that being there can't wait for it; Caught comes once what the broker has kept
    // of it was heard. While it is there; again after each Came.
    void HearAlso(const Subscription& pattern);
    // Tells of itself at once, for what it says of itself has changed.
    void Describe();
    void CountRefused() { ++refused; }

    Event<> Reached;                                // the broker takes it; before Coming
    Event<> Coming;                                 // what the broker has kept was heard: to end what must not live on
    Event<> Came;                                   // it is there: to publish what is
    Event<> Caught;                                 // what of HearAlso the broker has kept was heard
    Event<> Going;                                  // an orderly end: to end what is
    Event<> Lost;                                   // after Came
    Event<const Topic&, const std::string&> Heard;  // all but presence; also before Coming
    Event<> OthersChanged;                          // while it is there
    Event<BrokerTrouble> Failed;

private:
    enum class State { Away, Coming, There };

    void Hear(const std::string& text, const std::string& payload);
    void AwaitWhatIsKept();
    void Come();
    void Beat();
    void Publish(TopicKind kind, const std::string& payload, int quality, Retain keep, Long record, int expirySeconds);
    std::string OwnTopic(TopicKind kind, Long record = 0) const;

    EventLoop& loop;
    const Program kind;
    const std::vector<Subscription> wanted;
    const std::function<PresenceSetting()> tell;
    ConnectionPlan plan;
    int identity = 0;
    State state = State::Away;
    BrokerConnection connection;
    Presences presences;
    Long beats = 0;
    long long beatAt = 0;  // milliseconds, asleep ones included
    std::size_t refused = 0;
    Ticket nextBeat;  // or the next look at the connection, while it comes
};

}  // namespace orvelle::mqtt
