// One connection to an MQTT 5 broker, encrypted by a key that both ends have, served by the program's loop without a
// thread of its own. Kept until Close: lost, refused or not to be had, it is tried again and again, and whoever uses it
// publishes anew after each Up. A broker without encryption is never spoken to. Calls are made and events come on the
// loop's thread; events come from the loop, Lost and Failed also from inside GiveUp. A handler may serve the loop or
// close the connection, not end this object.
#pragma once

#include <chrono>
#include <cstddef>
#include <deque>
#include <memory>
#include <string>
#include <vector>

#include "adapters/mqtt/BrokerAccess.h"
#include "adapters/shared/HostLookup.h"
#include "platform/Event.h"
#include "platform/EventLoop.h"

struct mosquitto;
struct ssl_st;

namespace orvelle::mqtt {

enum class Retain { No, Yes };

// What goes out. Quality 0 is sent once, 1 until the broker has it.
struct Publication {
    std::string Topic;
    std::string Payload;
    int Quality = 1;
    Retain Keep = Retain::No;
    int ExpirySeconds = 0;  // after which the broker forgets it; 0 for never
};

enum class KeptMessages { Brought, LeftOut };  // what the broker had before
enum class OwnMessages { Brought, LeftOut };   // what this connection publishes

struct Subscription {
    std::string Pattern;
    int Quality = 1;
    KeptMessages Kept = KeptMessages::Brought;
    OwnMessages Own = OwnMessages::Brought;
};

// What a connection is made with. The last will is published retained and empty.
struct ConnectionPlan {
    BrokerAccess Access;
    std::string ClientId;
    std::string WillTopic;
    std::vector<Subscription> Subscriptions;
};

enum class BrokerTrouble {
    None,
    HostUnknown,    // the name leads to no address
    Unreachable,    // nobody answers, or the connection breaks before it stands
    NotEncrypted,   // somebody answers, but not by our protection
    Refused,        // the key is not taken
    WrongProtocol,  // the broker does not speak MQTT 5
    TakenOver,      // another program comes with the same name, as the broker says, or as ever shorter lives show
};

class BrokerConnection {
public:
    explicit BrokerConnection(EventLoop& eventLoop) : loop(eventLoop) {}
    BrokerConnection(const BrokerConnection&) = delete;
    BrokerConnection& operator=(const BrokerConnection&) = delete;
    ~BrokerConnection();

    // Goes there and stays. One that is open goes over.
    void Open(const ConnectionPlan& plan);
    // Sends what waits as far as it can be sent at once, says goodbye, and tells nothing any more.
    void Close();

    bool IsUp() const { return isUp; }
    // Nothing while it is not up.
    void Publish(const Publication& publication);
    // Beside what was planned, for this connection. Nothing while it is not up.
    void Subscribe(const Subscription& subscription);
    // This computer's address on the way there, "" while it is not up.
    std::string OwnAddress() const;
    // Why it is not up; None while it is, or before the first attempt has ended.
    BrokerTrouble Trouble() const { return trouble; }
    // Loses the connection that is up, to come anew.
    void GiveUp();
    // The same for one that brought nothing for that long; to be called now and then.
    void GiveUpIfSilent(std::chrono::milliseconds silence);

    Event<> Up;                                           // subscribed to all that was planned
    Event<> Lost;                                         // after Up
    Event<const std::string&, const std::string&> Heard;  // topic, payload
    Event<BrokerTrouble> Failed;                          // an attempt has ended, or an established connection was lost

private:
    struct Library;
    struct Message {
        std::string Topic;
        std::string Payload;
    };

    void Try();
    void Connect();
    void Watch();
    void Read();
    void Write();
    bool HasDeciphered() const;
    const ssl_st* ProtectionUnderWay() const;  // null where it stands
    void Settle(int result);
    void SubscribeToPlanned();
    void OnConnected(int reason);
    void OnDisconnected(int reason);
    void OnSubscribed();
    void OnMessage(const std::string& topic, const std::string& payload);
    void Deliver();
    void Fail(BrokerTrouble why);
    void Hang();

    EventLoop& loop;
    ConnectionPlan plan;
    bool isOpen = false;
    bool isUp = false;
    BrokerTrouble trouble = BrokerTrouble::None;
    std::unique_ptr<HostLookup> lookup;
    std::vector<std::string> addresses;  // still to be tried
    std::unique_ptr<mosquitto, void (*)(mosquitto*)> client{nullptr, nullptr};
    bool isConnected = false;  // at the socket's level, or it has failed to
    bool isWatched = false;
    bool isWriting = false;
    // Notes of what the library told, acted on when it has been left.
    bool isAnswered = false;  // the other end has our protection
    bool isAccepted = false;
    bool comesUp = false;  // subscribed to all
    int lastReason = 0;    // the broker's, 0 for none
    std::size_t subscribed = 0;
    std::deque<Message> waiting;
    std::chrono::steady_clock::time_point heardAt;
    Long pause = 0;  // before the next attempt, milliseconds
    std::chrono::steady_clock::time_point upAt;
    int shortLives = 0;  // in a row, with no attempt between that failed
    Ticket readable, writable, more, patience, again;
};

}  // namespace orvelle::mqtt
