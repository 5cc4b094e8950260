// One voice room at its server: what is wished of it, and the connection that serves the wish. A change of channel on
// one server, under one name, keeps the connection; so it stays for a while after a leave, out of the way in the root.
// Held by the voice rooms, one for each. Every attempt has one outcome, Joined or Failed, unless the room is left
// before.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "adapters/mumble/KnownServers.h"
#include "adapters/mumble/RetryWaits.h"
#include "adapters/mumble/RoomAddress.h"
#include "adapters/mumble/RoomTexts.h"
#include "adapters/mumble/ServerPasswords.h"
#include "adapters/mumble/ServerSession.h"
#include "platform/PasswordQuestion.h"

namespace orvelle::mumble {

class RoomConnection {
public:
    // Who somebody is: at which server, by its certificate and port, and in which session.
    struct Identity {
        std::string Fingerprint;
        std::uint16_t Port = 0;
        std::uint32_t Session = 0;
        bool operator==(const Identity&) const = default;
    };

    // All of them outlive it. `certificate` is the file of the room's own.
    RoomConnection(EventLoop& loop, std::filesystem::path certificate, KnownServers& known, ServerPasswords& passwords,
                   VoiceRoad road);
    RoomConnection(const RoomConnection&) = delete;
    RoomConnection& operator=(const RoomConnection&) = delete;
    ~RoomConnection();

    void Join(const RoomAddress& address, const std::string& userName);
    void Leave();
    void Mute(bool mute) { isMuted = mute; }

    // Whether it needs the microphone's next block: it is in and open, or a talk of its is to be ended.
    bool IsSpeechWanted() const { return state == State::In && (!isMuted || isTalking); }
    void Send(std::span<const std::uint8_t> opus, VoiceRooms::Squelched squelched);

    // The server whose password it waits for, "" for none; then whether there is an answer.
    std::string AskedServer() const { return state == State::Asking ? ShownServer(wish) : ""; }
    enum class PasswordAnswer { None, Given };
    void TakeAnswer(PasswordAnswer answer);

    bool IsEcho() const { return wish.IsEcho(); }
    // Once the server told us.
    std::optional<Identity> Own() const;
    Identity OfSpeaker(std::uint32_t session) const { return {fingerprint, wish.Port, session}; }

    Event<> Joined;
    Event<> Failed;
    Event<> Kicked;
    Event<> Left;
    Event<const std::string&> StatusChanged;
    Event<const speech::HeardVoice&> Heard;
    Event<std::uint32_t> SpeakerGone;
    Event<PasswordQuestion> PasswordWanted;

private:
    // Lost: it was joined, and is on its way back. Asking: it waits for a password.
    enum class State { Out, Joining, Asking, In, Lost };

    void Begin();
    void Connect(Long patience);
    void Pursue();
    void Arrive();
    void OnOpened();
    void OnSynced();
    void OnChanged();
    void OnRefused(std::uint32_t type);
    void OnDenied(std::uint32_t type, std::uint32_t permission);
    void OnRemoved(bool isByOperator, const std::string& reason);
    void OnEnded(ConnectionEnd why);
    void OnHeard(const speech::HeardVoice& voice);
    void Lose(ConnectionEnd why);
    void TryLater(ConnectionEnd why);
    void GiveUp(const std::string& text);
    void PutOut(const std::string& text);
    void Rest();
    void Drop();
    void EndTalks();
    std::string PresenceText() const;
    std::string PasswordTroubleText() const;
    void SetStatus(const std::string& text);

    EventLoop& loop;
    const std::filesystem::path certificateFile;
    std::optional<OwnCertificate> certificate;  // made at first use
    KnownServers& known;
    ServerPasswords& passwords;
    const VoiceRoad road;

    State state = State::Out;
    RoomAddress wish;
    std::string userName;
    std::string status;
    bool isMuted = true;
    bool isTalking = false;
    std::string fingerprint;  // of the session's server
    std::string usedPassword;
    bool hasLeft = false;  // while Lost: Left was raised
    std::string asked;     // the channel that the server was asked for last, "" once it answered
    bool hasAskedToMake = false;
    bool isParking = false;            // on the way to the root, for nobody's wish
    std::set<std::uint32_t> speakers;  // heard since it is in
    RetryWaits waits;
    std::unique_ptr<ServerSession> session;
    std::vector<std::unique_ptr<ServerSession>> gone;  // closed, until no call of theirs is under way
    Ticket burial;
    Ticket deadline;  // of the attempt
    Ticket again;     // ask for the channel
    Ticket outcome;
    Ticket leftSoon;
    Ticket retry;
    Ticket parking;
    Ticket closing;
};

}  // namespace orvelle::mumble
