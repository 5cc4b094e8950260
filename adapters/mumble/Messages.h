// The messages of a voice server as they go over TLS: two bytes of type, four of length, both big-endian, then what
// VoiceServer.proto tells, or a voice packet as it is. Used by a session; nothing here waits or throws.
#pragma once

#include <google/protobuf/message_lite.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace orvelle::mumble {

// Those that we know; all others are skipped.
enum class MessageType : std::uint16_t {
    Version = 0,
    UdpTunnel = 1,  // a voice packet
    Authenticate = 2,
    Ping = 3,
    Reject = 4,
    ServerSync = 5,
    ChannelRemove = 6,
    ChannelState = 7,
    UserRemove = 8,
    UserState = 9,
    PermissionDenied = 12,
    CryptSetup = 15
};

enum class RejectType : std::uint32_t {
    Version = 1,
    UserName = 2,
    UserPassword = 3,  // also: this name is registered with another certificate
    ServerPassword = 4,
    NameInUse = 5,
    ServerFull = 6,
    NoCertificate = 7
};

enum class DenialType : std::uint32_t { Permission = 1, ChannelName = 3, ChannelFull = 9 };

constexpr std::uint32_t ProtocolVersion = 0x10304;
constexpr std::uint32_t MakeTemporaryChannel = 0x400;  // of the permissions

constexpr std::size_t LengthBound = 8 * 1024 * 1024;  // of a message, by the protocol
constexpr std::size_t KeptBound = 1024 * 1024;        // longer ones hold nothing that we need, and are skipped

// As it is sent.
std::string Frame(MessageType type, const google::protobuf::MessageLite& message);
std::string FrameVoice(std::span<const std::uint8_t> packet);

struct Message {
    MessageType Type = MessageType::Version;
    std::span<const std::uint8_t> Payload;
};

// False where the payload is not such a message. What `content` then holds means nothing.
bool Parse(const Message& message, google::protobuf::MessageLite& content);

// Whole messages out of the stream, however it is cut. After each Feed, Next is to be asked until it has none.
class MessageReader {
public:
    void Feed(std::span<const std::uint8_t> bytes);
    // Good until the next call of either.
    std::optional<Message> Next();
    // A length over the bound was read: this is no voice server, or we lost our place. Nothing more is read then.
    bool IsBroken() const { return isBroken; }

private:
    std::vector<std::uint8_t> kept;
    std::size_t begin = 0;    // of what is not read yet
    std::size_t skipped = 0;  // bytes still to be left out
    bool isBroken = false;
};

}  // namespace orvelle::mumble
