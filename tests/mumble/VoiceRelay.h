// A stretch of network between a test's rooms and its server, for TCP and UDP on one port, which loses and delays
// packets and lets none pass where the test says so. It works on the test's own loop.
#pragma once

#include <cstdint>
#include <functional>
#include <list>
#include <map>
#include <memory>
#include <random>
#include <string>

#include "adapters/shared/FileDescriptor.h"
#include "platform/EventLoop.h"

namespace orvelle::mumble {

class VoiceRelay {
public:
    VoiceRelay(EventLoop& loop, std::uint16_t serverPort);
    VoiceRelay(const VoiceRelay&) = delete;
    VoiceRelay& operator=(const VoiceRelay&) = delete;
    ~VoiceRelay();

    std::string Room(const std::string& channel) const { return "127.0.0.1:" + std::to_string(port) + "/" + channel; }

    // Of UDP.
    bool IsBlocked = false;
    int LossPercent = 0;       // each way
    Long MostDelay = 0;        // milliseconds; each packet has its own, from 0
    unsigned long Passed = 0;  // packets, both ways
    unsigned long Lost = 0;
    unsigned long Tunnelled = 0;  // bytes, by TCP, both ways
    // Whoever comes from now on is led to another server.
    void LeadTo(std::uint16_t server) { serverPort = server; }
    // All TCP connections end now, in the middle of whatever they carry.
    void Cut();

private:
    struct Stream;
    struct Flow;

    void Accept();
    void TakeDatagram();
    using Sending = std::function<void(const std::string& packet)>;
    void Carry(int from, const Sending& sending);
    void Pass(const std::string& packet, const Sending& sending);

    EventLoop& loop;
    std::uint16_t serverPort;
    std::uint16_t port = 0;
    FileDescriptor listener;
    FileDescriptor datagrams;
    std::list<std::unique_ptr<Stream>> streams;
    std::map<std::uint16_t, std::unique_ptr<Flow>> flows;  // by the client's port
    std::list<Ticket> delayed;
    std::minstd_rand chance{1};
    Ticket accepting;
    Ticket taking;
};

}  // namespace orvelle::mumble
