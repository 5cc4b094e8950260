#include "adapters/mumble/RoomConnection.h"

#include <utility>

namespace orvelle::mumble {

namespace {

// Milliseconds.
constexpr Long JoinPatience = 4500;
constexpr Long RejoinPatience =
    20000;                            // a server that hangs has taken the connection already: a second one is no better
constexpr Long AskAgainAfter = 1200;  // servers drop wishes that come too fast, without an answer
constexpr Long LeftAfter = 2000;
constexpr Long ParksAfter = 200;  // a leave that a join follows stays where it is
constexpr Long ClosesAfter = 10000;

constexpr std::uint32_t DeniedWithoutCertificate = 7;  // a DenialType that only a server's own setting brings about

RoomTrouble TroubleOf(ConnectionEnd why) {
    switch (why) {
        case ConnectionEnd::NoSuchHost:
            return RoomTrouble::NoSuchHost;
        case ConnectionEnd::Refused:
            return RoomTrouble::Refused;
        case ConnectionEnd::Unreachable:
            return RoomTrouble::Unreachable;
        case ConnectionEnd::Silent:
            return RoomTrouble::Silent;
        case ConnectionEnd::NoVoiceServer:
            return RoomTrouble::NoVoiceServer;
        case ConnectionEnd::Closed:
            return RoomTrouble::Closed;
    }
    return RoomTrouble::Closed;
}

RoomTrouble TroubleOfRefusal(std::uint32_t type) {
    switch (static_cast<RejectType>(type)) {
        case RejectType::Version:
            return RoomTrouble::OldVersion;
        case RejectType::UserName:
            return RoomTrouble::NameRefused;
        case RejectType::UserPassword:
            return RoomTrouble::NameOfAnother;
        case RejectType::ServerPassword:
            return RoomTrouble::PasswordWrong;
        case RejectType::NameInUse:
            return RoomTrouble::NameInUse;
        case RejectType::ServerFull:
            return RoomTrouble::ServerFull;
        case RejectType::NoCertificate:
            return RoomTrouble::CertificateMissing;
    }
    return RoomTrouble::RefusedWithoutReason;
}

RoomTrouble TroubleOfDenial(std::uint32_t type, std::uint32_t permission) {
    if (type == DeniedWithoutCertificate) return RoomTrouble::CertificateMissing;
    switch (static_cast<DenialType>(type)) {
        case DenialType::ChannelName:
            return RoomTrouble::ChannelNameRefused;
        case DenialType::ChannelFull:
            return RoomTrouble::ChannelFull;
        case DenialType::Permission:
            break;
    }
    return permission == MakeTemporaryChannel ? RoomTrouble::NoRightToMake : RoomTrouble::NoRightToEnter;
}

bool IsOneServer(const RoomAddress& one, const RoomAddress& other) {
    return one.Host == other.Host && one.Port == other.Port;
}

}  // namespace

RoomConnection::RoomConnection(EventLoop& usedLoop, std::filesystem::path ownCertificate, KnownServers& knownServers,
                               ServerPasswords& serverPasswords, VoiceRoad usedRoad)
    : loop(usedLoop),
      certificateFile(std::move(ownCertificate)),
      known(knownServers),
      passwords(serverPasswords),
      road(usedRoad) {}

RoomConnection::~RoomConnection() = default;

void RoomConnection::Join(const RoomAddress& address, const std::string& name) {
    if (state == State::In && wish == address && userName == name) {
        outcome = loop.After(0, [this] { Joined(); });
        return;
    }
    const bool keepsSession = session && IsOneServer(wish, address) && userName == name;
    Leave();
    if (!keepsSession) Drop();
    wish = address;
    userName = name;
    waits.Restart();
    Begin();
}

// The outcome of an attempt comes from the loop, also where all is there already.
void RoomConnection::Begin() {
    state = State::Joining;
    parking.End();
    closing.End();
    SetStatus(JoiningText(wish));
    if (!session) return Connect(JoinPatience);
    deadline = loop.After(JoinPatience, [this] { OnEnded(ConnectionEnd::Silent); });
    if (session->IsSynced()) outcome = loop.After(0, [this] { Pursue(); });
}

void RoomConnection::Leave() {
    const State before = std::exchange(state, State::Out);
    const bool wasIn = before == State::In || (before == State::Lost && !hasLeft);
    Rest();
    if (before == State::Lost) Drop();
    if (before == State::Out) return;
    EndTalks();
    SetStatus("");
    if (wasIn) Left();
}

// A talk that was begun is ended by a packet of its own, also where the key was let go before.
void RoomConnection::Send(std::span<const std::uint8_t> opus, VoiceRooms::Squelched squelched) {
    if (state != State::In) return;
    const bool talks = !isMuted && squelched == VoiceRooms::Squelched::No;
    const bool talked = std::exchange(isTalking, talks);
    const VoiceTarget target = wish.IsEcho() ? VoiceTarget::Loopback : VoiceTarget::Channel;
    if (talks || talked) session->SendVoice(target, opus, talks ? TalkEnd::No : TalkEnd::Yes);
}

void RoomConnection::TakeAnswer(PasswordAnswer answer) {
    if (state != State::Asking) return;
    if (answer == PasswordAnswer::None) return GiveUp(PasswordTroubleText());
    Begin();
}

std::optional<RoomConnection::Identity> RoomConnection::Own() const {
    const std::optional<std::uint32_t> own = session ? session->OwnSession() : std::nullopt;
    return own ? std::optional(OfSpeaker(*own)) : std::nullopt;
}

void RoomConnection::Connect(Long patience) {
    Drop();
    if (!certificate) certificate.emplace(certificateFile);
    deadline = loop.After(patience, [this] { OnEnded(ConnectionEnd::Silent); });
    session = std::make_unique<ServerSession>(loop, HostAndPort{wish.Host, wish.Port}, *certificate, road);
    session->Opened = [this] { OnOpened(); };
    session->Synced = [this] { OnSynced(); };
    session->Changed = [this] { OnChanged(); };
    session->Refused = [this](std::uint32_t type) { OnRefused(type); };
    session->Denied = [this](std::uint32_t type, std::uint32_t permission) { OnDenied(type, permission); };
    session->Removed = [this](std::optional<std::uint32_t> actor, const std::string& reason) {
        OnRemoved(actor.has_value(), reason);
    };
    session->Ended = [this](ConnectionEnd why) { OnEnded(why); };
    session->Heard = [this](const speech::HeardVoice& voice) { OnHeard(voice); };
    session->SpeakerGone = [this](std::uint32_t speaker) {
        if (speakers.erase(speaker) > 0) SpeakerGone(speaker);
    };
}

void RoomConnection::OnOpened() {
    fingerprint = session->Fingerprint();
    if (known.Meet(ShownServer(wish), fingerprint) == KnownServers::Meeting::Other)
        return GiveUp(AnotherCertificateText(wish, known.File().string()));
    usedPassword = passwords.Of(ShownServer(wish));
    session->Authenticate(userName, usedPassword);
}

void RoomConnection::OnSynced() {
    known.Remember(ShownServer(wish), fingerprint);
    passwords.Keep(ShownServer(wish), usedPassword);
    Pursue();
}

// Goes for the channel by what is known of the server now, and asks again where it says nothing.
void RoomConnection::Pursue() {
    if (state != State::Joining && state != State::Lost) return;
    again = loop.After(AskAgainAfter, [this] {
        asked.clear();
        isParking = false;
        Pursue();
    });
    // One wish at a time, and the last one in the end: what was asked for may still move us.
    if (isParking || (!asked.empty() && asked != wish.Channel)) return;
    const std::optional<std::uint32_t> channel = session->Tree().ChannelNamed(wish.Channel);
    if (channel && session->OwnChannel() == channel) return Arrive();
    if (!asked.empty()) return;
    asked = wish.Channel;
    hasAskedToMake = !channel;
    if (channel)
        session->MoveTo(*channel);
    else
        session->MakeChannel(wish.Channel);
}

// A channel that we made is entered by the server itself; one that we were on the way to can be gone meanwhile.
void RoomConnection::OnChanged() {
    const std::optional<std::uint32_t> channel = session->Tree().ChannelNamed(wish.Channel);
    const std::optional<std::uint32_t> where = session->OwnChannel();
    if (state == State::In) {
        if (where != channel) return PutOut(TroubleText(RoomTrouble::MovedAway, wish));
        return SetStatus(PresenceText());
    }
    if (where == RootChannel) isParking = false;
    const bool hasAnswered = where && !asked.empty() && where == session->Tree().ChannelNamed(asked);
    const bool isVain = !asked.empty() && !hasAskedToMake && !session->Tree().ChannelNamed(asked);
    if (hasAnswered || isVain) asked.clear();
    Pursue();
}

void RoomConnection::Arrive() {
    const bool isBack = std::exchange(state, State::In) == State::Lost;
    deadline.End();
    again.End();
    leftSoon.End();
    asked.clear();
    waits.NoteJoined();
    SetStatus(PresenceText());
    if (!isBack || hasLeft) Joined();
}

void RoomConnection::OnRefused(std::uint32_t type) {
    const std::string server = ShownServer(wish);
    if (static_cast<RejectType>(type) != RejectType::ServerPassword)
        return GiveUp(TroubleText(TroubleOfRefusal(type), wish));
    // Another room may have learnt it meanwhile.
    if (passwords.Of(server) != usedPassword && state != State::Out)
        return Connect(state == State::Joining ? JoinPatience : RejoinPatience);
    passwords.Forget(server, usedPassword);
    if (state != State::Joining) return GiveUp(PasswordTroubleText());
    Drop();
    Rest();
    state = State::Asking;
    SetStatus(PasswordText(wish));
    PasswordWanted(usedPassword.empty() ? PasswordQuestion::First : PasswordQuestion::AfterWrong);
}

void RoomConnection::OnDenied(std::uint32_t type, std::uint32_t permission) {
    if (state != State::Joining && state != State::Lost) return;
    const bool isOfEarlierWish = !asked.empty() && asked != wish.Channel;
    const bool isThereNow = hasAskedToMake && session->Tree().ChannelNamed(wish.Channel).has_value();
    asked.clear();
    // Two who make a channel at once: one is refused, and finds what the other made.
    if (isOfEarlierWish || isThereNow) return Pursue();
    GiveUp(TroubleText(TroubleOfDenial(type, permission), wish));
}

// Without an actor it is the server's own doing: somebody came with our name or our certificate. To come back would
// throw out that one in turn, for ever.
void RoomConnection::OnRemoved(bool isByOperator, const std::string& reason) {
    const std::string text = isByOperator ? KickedText(reason) : TroubleText(RoomTrouble::AnotherDevice, wish);
    Drop();
    if (state == State::In) return PutOut(text);
    GiveUp(text);
}

void RoomConnection::OnEnded(ConnectionEnd why) {
    Drop();
    switch (state) {
        case State::Out:
        case State::Asking:
            return;
        case State::Joining:
            return GiveUp(TroubleText(TroubleOf(why), wish));
        case State::In:
            return Lose(why);
        case State::Lost:
            return TryLater(why);
    }
}

void RoomConnection::OnHeard(const speech::HeardVoice& voice) {
    if (state != State::In) return;
    speakers.insert(voice.Speaker);
    Heard(voice);
}

void RoomConnection::Lose(ConnectionEnd why) {
    state = State::Lost;
    hasLeft = false;
    leftSoon = loop.After(LeftAfter, [this] {
        hasLeft = true;
        Left();
    });
    TryLater(why);
    EndTalks();
    SetStatus(ReconnectingText());
}

void RoomConnection::TryLater(ConnectionEnd why) {
    Drop();
    deadline.End();
    retry = loop.After(waits.Next(why), [this] { Connect(RejoinPatience); });
}

// The attempt has failed for good. Who has not yet been told that a lost room is left is told that alone.
void RoomConnection::GiveUp(const std::string& text) {
    const State before = std::exchange(state, State::Out);
    const bool isLeaving = before == State::Lost && !hasLeft;
    if (!session || !session->IsSynced()) Drop();
    Rest();
    if (before == State::Out) return;
    SetStatus(text);
    if (isLeaving)
        Left();
    else
        Failed();
}

void RoomConnection::PutOut(const std::string& text) {
    state = State::Out;
    Rest();
    EndTalks();
    SetStatus(text);
    Kicked();
}

// Nothing is under way any more; the connection waits in the root for the next wish, and not for long.
void RoomConnection::Rest() {
    for (Ticket* const ticket : {&deadline, &again, &outcome, &leftSoon, &retry, &parking, &closing}) ticket->End();
    if (!session) return;
    parking = loop.After(ParksAfter, [this] {
        if (!session->IsSynced() || session->OwnChannel() == RootChannel) return;
        isParking = true;
        session->MoveTo(RootChannel);
    });
    closing = loop.After(ClosesAfter, [this] { Drop(); });
}

// This may be within a call of the session's.
void RoomConnection::Drop() {
    asked.clear();
    isParking = false;
    parking.End();
    closing.End();
    again.End();
    if (!session) return;
    session->Close();
    gone.push_back(std::move(session));
    burial = loop.After(0, [this] { gone.clear(); });
}

void RoomConnection::EndTalks() {
    isTalking = false;
    for (const std::uint32_t speaker : std::exchange(speakers, {})) SpeakerGone(speaker);
}

std::string RoomConnection::PresenceText() const { return session->IsSilenced() ? ListeningText(wish) : InText(wish); }

std::string RoomConnection::PasswordTroubleText() const {
    return TroubleText(usedPassword.empty() ? RoomTrouble::PasswordMissing : RoomTrouble::PasswordWrong, wish);
}

void RoomConnection::SetStatus(const std::string& text) {
    if (std::exchange(status, text) != text) StatusChanged(text);
}

}  // namespace orvelle::mumble
