// A played X-Plane on sockets of its own: its beacon, and what it answers to subscriptions, as the public documents
// tell both. It proves that we speak the documents, not that X-Plane does. Its time passes by Pass alone; its beacon
// goes to a port that no other test has.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <tuple>
#include <vector>

#include "adapters/shared/FileDescriptor.h"
#include "platform/Types.h"

namespace orvelle::simulators {

enum class XPlanePort { Same, Another };
enum class PortUse { Alone, Shared };

class XPlaneServer {
public:
    // One of version 12.1.4 that flies, with both radios on. Values are those of the datarefs' names; others it doesn't
    // know.
    // Its beacon goes to the given port, which another one has reserved, or to one of its own.
    explicit XPlaneServer(std::uint16_t sharedBeaconPort = 0);

    std::uint16_t BeaconPort() const { return beaconPort; }
    std::uint16_t Port() const { return port; }

    // Time passes: requests are taken, the beacon is sent once a second, and to each subscriber what it is due.
    void Pass(Long milliseconds);
    // Its process ends: nothing comes any more, subscriptions are forgotten.
    void Stop();
    void Start(XPlanePort where = XPlanePort::Same);
    // It hangs: what is sent to it stays in its socket.
    void Hang(bool isHanging) { hangs = isHanging; }
    bool Runs() const { return socket && !hangs; }
    // Anything as a beacon, or as an answer to each subscriber.
    void SendBeacon(const std::string& packet) const;
    void SendAnswer(const std::string& packet) const;
    std::string Beacon() const;

    // Another program has the beacon's port, and shares it or not.
    void KeepBeaconPort(PortUse use);

    void SetText(const std::string& name, const std::string& text);
    std::size_t Subscriptions() const { return subscriptions.size(); }
    std::string SubscribersAddress() const;        // of any one
    int Requests() const { return requests; }      // so far
    int MostAtOnce() const { return mostAtOnce; }  // requests between two steps of its time

    std::map<std::string, float> Values;
    std::string BeaconInterface = "127.0.0.1";  // its address
    std::string Head = "RREF,";
    std::size_t PairsInPacket = 183;
    bool SendsBeacons = true;
    bool Answers = true;
    int LosesOneOf = 0;  // packets, in both directions; 0 for none

private:
    struct Subscription {
        std::string Name;
        Long Period = 0;  // milliseconds
        Long Due = 0;
    };
    // The subscriber's address and port, and its number.
    using Key = std::tuple<std::uint32_t, std::uint16_t, std::int32_t>;

    void TakeRequests();
    void Take(const std::string& packet, std::uint32_t address, std::uint16_t from);
    void SendDue();
    void Send(const std::string& packet, std::uint32_t address, std::uint16_t to) const;
    bool IsLost() const;

    std::uint16_t beaconPort = 0;
    FileDescriptor reserved;  // keeps the beacon's port from other tests
    FileDescriptor socket;
    std::uint16_t port = 0;
    std::map<Key, Subscription> subscriptions;
    Long now = 0, started = 0, nextBeacon = 0;
    bool hangs = false;
    int requests = 0, mostAtOnce = 0;
    mutable unsigned sent = 0;
};

}  // namespace orvelle::simulators
