#include "tests/mumble/Operator.h"

#include <gtest/gtest.h>

#include "adapters/mumble/VoiceServer.pb.h"
#include "tests/linux/ServeUntil.h"

namespace orvelle::mumble {

Operator::Operator(linux::PollEventLoop& usedLoop, const VoiceServerRig& server)
    : loop(usedLoop), connection(usedLoop, {server.Host(), server.Port()}, certificate) {
    connection.Opened = [this] {
        wire::Version version;
        version.set_version(ProtocolVersion);
        wire::Authenticate ours;
        ours.set_username("SuperUser");
        ours.set_password(VoiceServerRig::SuperUserPassword);
        ours.set_opus(true);
        connection.Send(Frame(MessageType::Version, version) + Frame(MessageType::Authenticate, ours));
    };
    connection.Received = [this](std::span<const std::uint8_t> bytes) {
        reader.Feed(bytes);
        while (const std::optional<Message> message = reader.Next()) Take(*message);
    };
    EXPECT_TRUE(linux::ServeUntil(loop, [this] { return isSynced; }));
}

void Operator::Take(const Message& message) {
    wire::UserState state;
    if (message.Type == MessageType::ServerSync) isSynced = true;
    if (message.Type == MessageType::UserState && Parse(message, state) && state.has_name())
        sessions[state.name()] = state.session();
}

std::uint32_t Operator::SessionOf(const std::string& userName) {
    EXPECT_TRUE(linux::ServeUntil(loop, [&] { return sessions.contains(userName); })) << userName;
    return sessions[userName];
}

void Operator::Kick(const std::string& userName, const std::string& reason) {
    wire::UserRemove kick;
    kick.set_session(SessionOf(userName));
    kick.set_reason(reason);
    connection.Send(Frame(MessageType::UserRemove, kick));
}

void Operator::MoveToRoot(const std::string& userName) {
    wire::UserState move;
    move.set_session(SessionOf(userName));
    move.set_channel_id(0);
    connection.Send(Frame(MessageType::UserState, move));
}

}  // namespace orvelle::mumble
