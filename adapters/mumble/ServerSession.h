// What is said on the connection to a voice server, from the greeting on: who we are, which channel we want to be in,
// the voices of others and our own. It answers for the protocol, the room's connection for what is wished. Held by that
// one; what it raises comes from the loop, and a handler may close it, but not destroy it.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "adapters/mumble/Messages.h"
#include "adapters/mumble/ServerConnection.h"
#include "adapters/mumble/ServerTree.h"
#include "adapters/mumble/VoiceDatagrams.h"
#include "adapters/mumble/VoiceRooms.h"
#include "adapters/speech/HeardVoice.h"

namespace orvelle::mumble {

class ServerSession {
public:
    // Begins at once. `certificate` outlives it.
    ServerSession(EventLoop& loop, const HostAndPort& place, const OwnCertificate& certificate, VoiceRoad road);
    ServerSession(const ServerSession&) = delete;
    ServerSession& operator=(const ServerSession&) = delete;
    ~ServerSession();

    std::string Fingerprint() const { return connection.Fingerprint(); }
    // After Opened.
    void Authenticate(const std::string& userName, const std::string& password);
    bool IsSynced() const { return own.has_value(); }
    // Once synced; of whoever we are at the server.
    std::optional<std::uint32_t> OwnSession() const { return own; }
    std::optional<std::uint32_t> OwnChannel() const { return own ? tree.ChannelOf(*own) : std::nullopt; }
    bool IsSilenced() const { return isMuted || isSuppressed; }  // others don't hear us
    const ServerTree& Tree() const { return tree; }

    void MoveTo(std::uint32_t channel);
    void MakeChannel(const std::string& name);
    // One block; the last one of a talk says so.
    void SendVoice(VoiceTarget target, std::span<const std::uint8_t> opus, TalkEnd end);
    // Nothing is raised any more.
    void Close();

    Event<> Opened;                                                   // encrypted; the fingerprint is known
    Event<> Synced;                                                   // in the root
    Event<> Changed;                                                  // channels, or where we are
    Event<std::uint32_t> Refused;                                     // RejectType
    Event<std::uint32_t, std::uint32_t> Denied;                       // DenialType, permission
    Event<std::optional<std::uint32_t>, const std::string&> Removed;  // we: by whom, and the reason
    Event<ConnectionEnd> Ended;
    Event<const speech::HeardVoice&> Heard;  // our own as well, sent back by the server
    Event<std::uint32_t> SpeakerGone;        // of those that were in our channel

private:
    void Read(std::span<const std::uint8_t> bytes);
    void Take(const Message& message);
    void TakeSync(const Message& message);
    void TakeUser(const Message& message);
    void TakeRemoval(const Message& message);
    void TakeCrypt(const Message& message);
    void TakeVoice(std::span<const std::uint8_t> packet);
    void Ping();
    void AskForTunnel();
    void AskForDatagrams();
    void End(ConnectionEnd why);

    EventLoop& loop;
    VoiceRoad road;
    MessageReader reader;
    ServerTree tree;
    std::optional<std::uint32_t> own;
    bool isMuted = false;  // by an operator
    bool isSuppressed = false;
    std::uint64_t sequence = 0;
    std::unique_ptr<VoiceDatagrams> datagrams;
    ServerConnection connection;
    bool isAnswerDue = false;
    Ticket nextPing;
    Ticket answerDue;
};

}  // namespace orvelle::mumble
