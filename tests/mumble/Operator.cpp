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
    wire::UserState user;
    wire::ChannelState channel;
    if (message.Type == MessageType::ServerSync) isSynced = true;
    if (message.Type == MessageType::ChannelState && Parse(message, channel) && channel.has_name())
        channels[channel.name()] = channel.channel_id();
    if (message.Type != MessageType::UserState || !Parse(message, user)) return;
    if (user.has_name()) sessions[user.name()] = user.session();
    if (user.has_user_id()) registered.insert(user.session());
}

std::uint32_t Operator::SessionOf(const std::string& userName) {
    EXPECT_TRUE(linux::ServeUntil(loop, [&] { return sessions.contains(userName); })) << userName;
    return sessions[userName];
}

std::uint32_t Operator::ChannelOf(const std::string& name) {
    EXPECT_TRUE(linux::ServeUntil(loop, [&] { return channels.contains(name); })) << name;
    return channels[name];
}

void Operator::Remove(wire::UserRemove& removal, const std::string& userName) {
    removal.set_session(SessionOf(userName));
    connection.Send(Frame(MessageType::UserRemove, removal));
}

void Operator::Say(const wire::UserState& state) { connection.Send(Frame(MessageType::UserState, state)); }

void Operator::Kick(const std::string& userName, const std::string& reason) {
    wire::UserRemove kick;
    kick.set_reason(reason);
    Remove(kick, userName);
}

void Operator::Ban(const std::string& userName, const std::string& reason) {
    wire::UserRemove ban;
    ban.set_reason(reason);
    ban.set_ban(true);
    Remove(ban, userName);
}

void Operator::MoveToRoot(const std::string& userName) {
    wire::UserState move;
    move.set_session(SessionOf(userName));
    move.set_channel_id(0);
    Say(move);
}

void Operator::Move(const std::string& userName, const std::string& channel) {
    wire::UserState move;
    move.set_session(SessionOf(userName));
    move.set_channel_id(ChannelOf(channel));
    Say(move);
}

void Operator::Set(const std::string& userName, Voice voice) {
    wire::UserState state;
    state.set_session(SessionOf(userName));
    state.set_mute(voice == Voice::Taken);
    Say(state);
}

void Operator::RemoveChannel(const std::string& channel) {
    wire::ChannelRemove removal;
    removal.set_channel_id(ChannelOf(channel));
    connection.Send(Frame(MessageType::ChannelRemove, removal));
}

// The number 0 asks for one that is free.
void Operator::Register(const std::string& userName) {
    wire::UserState state;
    state.set_session(SessionOf(userName));
    state.set_user_id(0);
    Say(state);
    EXPECT_TRUE(linux::ServeUntil(loop, [&] { return registered.contains(state.session()); })) << userName;
}

}  // namespace orvelle::mumble
