#include "adapters/mumble/ServerSession.h"

#include <utility>

#include "adapters/mumble/VoicePacket.h"
#include "adapters/mumble/VoiceServer.pb.h"

namespace orvelle::mumble {

namespace {

// The server is gone where nothing came from it for so long after a ping.
constexpr Long PingMilliseconds = 2000;
constexpr Long AnswerMilliseconds = 3000;
// Bytes that wait for the tunnel; voice beyond them would come too late to be of use.
constexpr std::size_t TunnelBound = 8 * 1024;

}  // namespace

ServerSession::ServerSession(EventLoop& usedLoop, const HostAndPort& place, const OwnCertificate& certificate,
                             VoiceRoad usedRoad)
    : loop(usedLoop), road(usedRoad), connection(usedLoop, place, certificate) {
    connection.Opened = [this] { Opened(); };
    connection.Received = [this](std::span<const std::uint8_t> bytes) { Read(bytes); };
    connection.Ended = [this](ConnectionEnd why) { End(why); };
}

ServerSession::~ServerSession() = default;

void ServerSession::Authenticate(const std::string& userName, const std::string& password) {
    wire::Version version;
    version.set_version(ProtocolVersion);
    version.set_release("OrvelleCP");
    version.set_os("Linux");
    wire::Authenticate ours;
    ours.set_username(userName);
    if (!password.empty()) ours.set_password(password);
    ours.set_opus(true);
    connection.Send(Frame(MessageType::Version, version) + Frame(MessageType::Authenticate, ours));
}

void ServerSession::MoveTo(std::uint32_t channel) {
    if (!own) return;
    wire::UserState wish;
    wish.set_session(*own);
    wish.set_channel_id(channel);
    connection.Send(Frame(MessageType::UserState, wish));
}

void ServerSession::MakeChannel(const std::string& name) {
    wire::ChannelState wish;
    wish.set_parent(RootChannel);
    wish.set_name(name);
    wish.set_temporary(true);
    connection.Send(Frame(MessageType::ChannelState, wish));
}

void ServerSession::SendVoice(VoiceTarget target, std::span<const std::uint8_t> opus, TalkEnd end) {
    const std::vector<std::uint8_t> packet = WriteVoice(target, sequence++, opus, end);
    if (!own || packet.empty()) return;
    if (datagrams && datagrams->Passes())
        datagrams->Send(packet);
    else if (connection.Unsent() < TunnelBound)
        connection.Send(FrameVoice(packet));
}

void ServerSession::Close() {
    nextPing.End();
    answerDue.End();
    if (datagrams) datagrams->Close();
    connection.Close();
}

void ServerSession::Read(std::span<const std::uint8_t> bytes) {
    isAnswerDue = false;
    answerDue.End();
    reader.Feed(bytes);
    while (!connection.IsClosed()) {
        const std::optional<Message> message = reader.Next();
        if (!message) break;
        Take(*message);
    }
    if (!connection.IsClosed() && (reader.IsBroken() || tree.IsTooLarge())) End(ConnectionEnd::NoVoiceServer);
}

// A message that can't be read means nothing.
void ServerSession::Take(const Message& message) {
    switch (message.Type) {
        case MessageType::UdpTunnel:
            if (datagrams && datagrams->Passes()) AskForDatagrams();
            return TakeVoice(message.Payload);
        case MessageType::ServerSync:
            return TakeSync(message);
        case MessageType::UserState:
            return TakeUser(message);
        case MessageType::UserRemove:
            return TakeRemoval(message);
        case MessageType::CryptSetup:
            return TakeCrypt(message);
        case MessageType::Reject:
            if (wire::Reject reject; Parse(message, reject)) Refused(reject.type());
            return;
        case MessageType::PermissionDenied:
            if (wire::PermissionDenied denial; Parse(message, denial)) Denied(denial.type(), denial.permission());
            return;
        case MessageType::ChannelState:
            if (wire::ChannelState state; Parse(message, state)) tree.Take(state);
            if (own) Changed();
            return;
        case MessageType::ChannelRemove:
            if (wire::ChannelRemove gone; Parse(message, gone)) tree.RemoveChannel(gone.channel_id());
            if (own) Changed();
            return;
        case MessageType::Version:
        case MessageType::Authenticate:
        case MessageType::Ping:
            return;
    }
}

void ServerSession::TakeSync(const Message& message) {
    wire::ServerSync sync;
    if (own || !Parse(message, sync)) return;
    own = sync.session();
    nextPing = loop.After(0, [this] { Ping(); });
    Synced();
}

void ServerSession::TakeUser(const Message& message) {
    wire::UserState state;
    if (!Parse(message, state)) return;
    const std::optional<std::uint32_t> channel = OwnChannel();
    const bool wasHere = channel && tree.ChannelOf(state.session()) == channel;
    tree.Take(state);
    if (!own) return;
    if (state.session() == *own) {
        if (state.has_mute()) isMuted = state.mute();
        if (state.has_suppress()) isSuppressed = state.suppress();
        return Changed();
    }
    if (wasHere && tree.ChannelOf(state.session()) != channel) SpeakerGone(state.session());
}

void ServerSession::TakeRemoval(const Message& message) {
    wire::UserRemove gone;
    if (!Parse(message, gone)) return;
    if (own && gone.session() == *own)
        return Removed(gone.has_actor() ? std::optional(gone.actor()) : std::nullopt, gone.reason());
    const bool wasHere = own && OwnChannel() && tree.ChannelOf(gone.session()) == OwnChannel();
    tree.RemoveUser(gone.session());
    if (wasHere) SpeakerGone(gone.session());
}

// One with all three begins; one with a nonce answers us; an empty one asks for ours.
void ServerSession::TakeCrypt(const Message& message) {
    wire::CryptSetup setup;
    if (road == VoiceRoad::TunnelOnly || !Parse(message, setup)) return;
    if (setup.has_key()) {
        const auto key = ReadCryptBlock(setup.key());
        const auto ownNonce = ReadCryptBlock(setup.client_nonce());
        const auto farNonce = ReadCryptBlock(setup.server_nonce());
        if (!key || !ownNonce || !farNonce) return;
        if (!datagrams) {
            datagrams = std::make_unique<VoiceDatagrams>(loop, connection.Socket());
            datagrams->Received = [this](std::span<const std::uint8_t> packet) { TakeVoice(packet); };
            datagrams->Blocked = [this] { AskForTunnel(); };
            datagrams->Misunderstood = [this] { connection.Send(Frame(MessageType::CryptSetup, wire::CryptSetup())); };
        }
        datagrams->SetKeys(*key, *ownNonce, *farNonce);
    } else if (setup.has_server_nonce()) {
        if (const auto nonce = ReadCryptBlock(setup.server_nonce()); nonce && datagrams) datagrams->SetFarNonce(*nonce);
    } else if (datagrams && datagrams->Crypt()) {
        const CryptBlock& nonce = datagrams->Crypt()->OwnNonce();
        wire::CryptSetup answer;
        answer.set_client_nonce(std::string(nonce.begin(), nonce.end()));
        connection.Send(Frame(MessageType::CryptSetup, answer));
    }
}

// Who is in another channel whispers, which no radio does.
void ServerSession::TakeVoice(std::span<const std::uint8_t> packet) {
    const std::optional<speech::HeardVoice> heard = ReadVoice(packet);
    if (!heard || !own) return;
    const std::optional<std::uint32_t> where = tree.ChannelOf(heard->Speaker);
    if (!where || where == OwnChannel()) Heard(*heard);
}

void ServerSession::Ping() {
    nextPing = loop.After(PingMilliseconds, [this] { Ping(); });
    if (!std::exchange(isAnswerDue, true))
        answerDue = loop.After(AnswerMilliseconds, [this] { End(ConnectionEnd::Silent); });
    wire::Ping ping;
    if (datagrams && datagrams->Crypt()) {
        const PacketCrypt::Counts& counts = datagrams->Crypt()->Counted();
        ping.set_good(counts.Good);
        ping.set_late(counts.Late);
        ping.set_lost(counts.Lost);
    }
    connection.Send(Frame(MessageType::Ping, ping));
    if (datagrams) datagrams->Ping();
}

// The server sends voice by the road on which it last had a packet of voice, or a tunnelled ping, from us. This counts
// also for one who only listens.
void ServerSession::AskForTunnel() { connection.Send(FrameVoice(WritePing(0))); }

// The end of a talk that nobody hears: it comes back to us alone.
void ServerSession::AskForDatagrams() {
    datagrams->Send(WriteVoice(VoiceTarget::Loopback, sequence++, {}, TalkEnd::Yes));
}

void ServerSession::End(ConnectionEnd why) {
    Close();
    Ended(why);
}

}  // namespace orvelle::mumble
