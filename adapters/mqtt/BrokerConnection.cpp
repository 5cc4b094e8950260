#include "adapters/mqtt/BrokerConnection.h"

#include <mosquitto.h>
#include <mqtt_protocol.h>
#include <netdb.h>
#include <openssl/ssl.h>
#include <sys/socket.h>

#include <algorithm>
#include <array>
#include <utility>

namespace orvelle::mqtt {

namespace {

constexpr Long AttemptMilliseconds = 3000;  // for connection, protection, answer and subscriptions together
// Milliseconds between two attempts, doubled from the first to the last. After a loss the next attempt comes at once:
// so it shows whether the broker ended, which isn't back by then.
constexpr Long FirstPause = 50;
constexpr Long LastPause = 2000;
// What ends a connection sooner, and leaves the broker there, may be another program of its name. mosquitto tells it to
// nobody.
constexpr std::chrono::milliseconds ShortLife{3000};
constexpr int KeepAliveSeconds = 5;     // after half as much again the broker counts a silent client as gone
constexpr int MessagesOfOneTurn = 100;  // then others of the loop have their turn

void Ask(mosquitto* client, const Subscription& wanted) {
    const int kept = wanted.Kept == KeptMessages::LeftOut ? MQTT_SUB_OPT_SEND_RETAIN_NEVER : 0;
    const int own = wanted.Own == OwnMessages::LeftOut ? MQTT_SUB_OPT_NO_LOCAL : 0;
    mosquitto_subscribe_v5(client, nullptr, wanted.Pattern.c_str(), wanted.Quality, kept | own, nullptr);
}

}  // namespace

// What the library calls, always from within one of our calls. Nothing but notes is taken there: the library holds
// locks meanwhile, and is not to be called, left or ended from inside.
struct BrokerConnection::Library {
    Library() { mosquitto_lib_init(); }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;
    ~Library() { mosquitto_lib_cleanup(); }

    static BrokerConnection& Of(void* object) { return *static_cast<BrokerConnection*>(object); }

    static void Connected(mosquitto*, void* object, int reason, int, const mosquitto_property*) {
        Of(object).OnConnected(reason);
    }
    static void Disconnected(mosquitto*, void* object, int reason, const mosquitto_property*) {
        Of(object).OnDisconnected(reason);
    }
    static void Subscribed(mosquitto*, void* object, int, int, const int*, const mosquitto_property*) {
        Of(object).OnSubscribed();
    }
    static void Came(mosquitto*, void* object, const mosquitto_message* message, const mosquitto_property*) {
        Of(object).OnMessage(message->topic, {static_cast<const char*>(message->payload),
                                              static_cast<std::size_t>(message->payloadlen)});
    }
    // An alert is the other end's own word that our key is not taken; whoever has no protection sends none.
    static void Told(mosquitto*, void* object, int, const char* text) {
        if (std::string(text).find("alert") != std::string::npos) Of(object).isAnswered = true;
    }
};

BrokerConnection::~BrokerConnection() { Close(); }

void BrokerConnection::Open(const ConnectionPlan& newPlan) {
    Close();
    plan = newPlan;
    isOpen = true;
    trouble = BrokerTrouble::None;
    pause = FirstPause;
    again = loop.After(0, [this] { Try(); });
}

void BrokerConnection::Close() {
    isOpen = false;
    again.End();
    lookup.reset();
    addresses.clear();
    if (client && isUp) mosquitto_disconnect(client.get());
    Hang();
    waiting.clear();
}

void BrokerConnection::Publish(const Publication& publication) {
    if (!isUp) return;
    mosquitto_property* properties = nullptr;
    if (publication.ExpirySeconds > 0)
        mosquitto_property_add_int32(&properties, MQTT_PROP_MESSAGE_EXPIRY_INTERVAL,
                                     static_cast<std::uint32_t>(publication.ExpirySeconds));
    mosquitto_publish_v5(client.get(), nullptr, publication.Topic.c_str(), static_cast<int>(publication.Payload.size()),
                         publication.Payload.data(), publication.Quality, publication.Keep == Retain::Yes, properties);
    mosquitto_property_free_all(&properties);
    if (mosquitto_socket(client.get()) < 0) {
        readable.End();
        writable.End();
        more = loop.After(0, [this] { GiveUp(); });
    }
    Watch();
}

std::string BrokerConnection::OwnAddress() const {
    sockaddr_storage own{};
    socklen_t size = sizeof own;
    std::array<char, NI_MAXHOST> text{};
    auto* const address = reinterpret_cast<sockaddr*>(&own);
    if (!isUp || getsockname(mosquitto_socket(client.get()), address, &size) != 0 ||
        getnameinfo(address, size, text.data(), text.size(), nullptr, 0, NI_NUMERICHOST) != 0)
        return "";
    return text.data();
}

// What the system has still to send on this connection it forgets: old words must not reach the broker when the network
// is back, and be heard beside those of the next connection.
void BrokerConnection::GiveUp() {
    if (!isUp) return;
    const linger atOnce{1, 0};
    setsockopt(mosquitto_socket(client.get()), SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
    Fail(BrokerTrouble::Unreachable);
}

void BrokerConnection::GiveUpIfSilent(std::chrono::milliseconds silence) {
    if (std::chrono::steady_clock::now() - heardAt >= silence) GiveUp();
}

void BrokerConnection::Try() {
    lookup = std::make_unique<HostLookup>(loop, plan.Access.Host, [this](const std::vector<std::string>& found) {
        addresses = found;
        std::ranges::reverse(addresses);
        if (addresses.empty()) return Fail(BrokerTrouble::HostUnknown);
        Connect();
    });
}

void BrokerConnection::Connect() {
    static const Library library;
    const std::string address = std::move(addresses.back());
    addresses.pop_back();
    isAnswered = isAccepted = comesUp = false;
    lastReason = 0;
    subscribed = 0;
    client = {mosquitto_new(plan.ClientId.c_str(), true, this), mosquitto_destroy};
    if (!client) return Fail(BrokerTrouble::Unreachable);
    mosquitto* const made = client.get();
    mosquitto_int_option(made, MOSQ_OPT_PROTOCOL_VERSION, MQTT_PROTOCOL_V5);
    mosquitto_int_option(made, MOSQ_OPT_TCP_NODELAY, 1);
    mosquitto_tls_psk_set(made, plan.Access.Key.c_str(), plan.Access.Identity.c_str(), nullptr);
    if (!plan.WillTopic.empty()) mosquitto_will_set_v5(made, plan.WillTopic.c_str(), 0, nullptr, 1, true, nullptr);
    mosquitto_connect_v5_callback_set(made, Library::Connected);
    mosquitto_disconnect_v5_callback_set(made, Library::Disconnected);
    mosquitto_subscribe_v5_callback_set(made, Library::Subscribed);
    mosquitto_message_v5_callback_set(made, Library::Came);
    mosquitto_log_callback_set(made, Library::Told);
    patience = loop.After(AttemptMilliseconds,
                          [this] { Fail(isAnswered ? BrokerTrouble::WrongProtocol : BrokerTrouble::Unreachable); });
    Settle(mosquitto_connect_async(made, address.c_str(), plan.Access.Port, KeepAliveSeconds));
}

// The library says after each call whether it waits for room to write.
void BrokerConnection::Watch() {
    const int descriptor = client ? mosquitto_socket(client.get()) : -1;
    if (descriptor < 0) return;
    if (!isWatched) readable = loop.WhenReadable(descriptor, [this] { Read(); });
    isWatched = true;
    const auto* const protection = ProtectionUnderWay();
    const bool wantsToWrite =
        !isConnected || (protection ? SSL_want_write(protection) : mosquitto_want_write(client.get()));
    if (wantsToWrite == isWriting) return;
    isWriting = wantsToWrite;
    writable = wantsToWrite ? loop.WhenWritable(descriptor, [this] { Write(); }) : Ticket();
}

void BrokerConnection::Read() {
    if (!isConnected) return;
    heardAt = std::chrono::steady_clock::now();
    int result = MOSQ_ERR_SUCCESS;
    int messages = 0;
    do result = mosquitto_loop_read(client.get(), 1);
    while (result == MOSQ_ERR_SUCCESS && HasDeciphered() && ++messages < MessagesOfOneTurn);
    if (result == MOSQ_ERR_SUCCESS && HasDeciphered()) more = loop.After(0, [this] { Read(); });
    Settle(result);
}

// Bytes that were deciphered already don't show at the socket.
bool BrokerConnection::HasDeciphered() const {
    auto* const protection = static_cast<SSL*>(mosquitto_ssl_get(client.get()));
    return protection != nullptr && SSL_pending(protection) > 0;
}

// Until the protection stands the library says nothing of it: whether it waits for room is known by the protection
// itself, and it is only where the library reads that it goes on.
const ssl_st* BrokerConnection::ProtectionUnderWay() const {
    auto* const protection = static_cast<SSL*>(mosquitto_ssl_get(client.get()));
    return protection != nullptr && !SSL_is_init_finished(protection) ? protection : nullptr;
}

// Room to write for the first time: the socket is connected or has failed to be. The library does not see the latter,
// though it has taken the socket's error, but a socket that failed has nobody at its other end.
void BrokerConnection::Write() {
    sockaddr_storage peer{};
    socklen_t size = sizeof peer;
    if (!std::exchange(isConnected, true) &&
        getpeername(mosquitto_socket(client.get()), reinterpret_cast<sockaddr*>(&peer), &size) != 0)
        return Fail(BrokerTrouble::Unreachable);
    Settle(ProtectionUnderWay() ? mosquitto_loop_read(client.get(), 1) : mosquitto_loop_write(client.get(), 1));
}

// After each call of the library: it has been left, so that its notes may be acted on.
void BrokerConnection::Settle(int result) {
    const bool goesOn = result == MOSQ_ERR_SUCCESS || result == MOSQ_ERR_CONN_PENDING;
    if (goesOn && lastReason == 0 && mosquitto_socket(client.get()) >= 0) {
        if (std::exchange(isAccepted, false)) SubscribeToPlanned();
        Watch();
        return Deliver();
    }
    if (lastReason == MQTT_RC_SESSION_TAKEN_OVER) return Fail(BrokerTrouble::TakenOver);
    if (isUp || comesUp) return Fail(BrokerTrouble::Unreachable);
    if (lastReason == MQTT_RC_NOT_AUTHORIZED || lastReason == MQTT_RC_BAD_USERNAME_OR_PASSWORD)
        return Fail(BrokerTrouble::Refused);
    if (lastReason != 0 || result == MOSQ_ERR_PROTOCOL || result == MOSQ_ERR_MALFORMED_PACKET)
        return Fail(BrokerTrouble::WrongProtocol);
    if (result == MOSQ_ERR_TLS) return Fail(isAnswered ? BrokerTrouble::Refused : BrokerTrouble::NotEncrypted);
    Fail(BrokerTrouble::Unreachable);
}

void BrokerConnection::SubscribeToPlanned() {
    isAnswered = true;
    for (const Subscription& each : plan.Subscriptions) Ask(client.get(), each);
}

void BrokerConnection::Subscribe(const Subscription& subscription) {
    if (!isUp) return;
    Ask(client.get(), subscription);
    Watch();
}

void BrokerConnection::OnConnected(int reason) {
    lastReason = reason;
    isAccepted = reason == 0;
}

void BrokerConnection::OnDisconnected(int reason) {
    if (lastReason == 0) lastReason = reason;
}

void BrokerConnection::OnSubscribed() { comesUp = ++subscribed == plan.Subscriptions.size(); }

void BrokerConnection::OnMessage(const std::string& topic, const std::string& payload) {
    waiting.push_back({topic, payload});
}

// A handler may serve the loop or close this connection.
void BrokerConnection::Deliver() {
    if (std::exchange(comesUp, false)) {
        isUp = true;
        trouble = BrokerTrouble::None;
        upAt = std::chrono::steady_clock::now();
        patience.End();
        addresses.clear();
        Up();
    }
    while (isUp && !waiting.empty()) {
        const Message message = std::move(waiting.front());
        waiting.pop_front();
        Heard(message.Topic, message.Payload);
    }
}

// The next address is tried at once, the host as a whole after a pause.
void BrokerConnection::Fail(BrokerTrouble why) {
    const bool wasUp = isUp;
    const bool isShort = wasUp && std::chrono::steady_clock::now() - upAt < ShortLife;
    shortLives = isShort ? shortLives + 1 : 0;
    if (shortLives > 1) why = BrokerTrouble::TakenOver;
    Hang();
    waiting.clear();
    trouble = why;
    if (!wasUp && !addresses.empty()) {
        again = loop.After(0, [this] { Connect(); });
        return;
    }
    // Two programs of one name would end each other without a pause.
    if (why == BrokerTrouble::TakenOver)
        pause = LastPause;
    else if (wasUp)
        pause = 0;
    again = loop.After(pause, [this] { Try(); });
    pause = std::clamp(2 * pause, FirstPause, LastPause);
    if (wasUp) Lost();
    if (isOpen) Failed(why);
}

void BrokerConnection::Hang() {
    isUp = comesUp = isAccepted = false;
    patience.End();
    more.End();
    readable.End();
    writable.End();
    isWatched = isWriting = isConnected = false;
    client.reset();
}

}  // namespace orvelle::mqtt
