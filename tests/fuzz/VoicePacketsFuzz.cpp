// The fuzz target of what comes from voice servers: the first byte chooses a reader, the rest is what it reads, as
// bytes of the stream, as a packet, as what befalls packets on their way, as a voice to be encrypted, or as the address
// of a room. What is taken must be within the bounds and the same however it came; a packet is taken once. At the end
// it tells how many messages and packets were refused.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "adapters/mumble/Messages.h"
#include "adapters/mumble/PacketCrypt.h"
#include "adapters/mumble/RoomAddress.h"
#include "adapters/mumble/Varint.h"
#include "adapters/mumble/VoicePacket.h"
#include "adapters/mumble/VoiceServer.pb.h"
#include "tests/fuzz/Breach.h"

namespace orvelle::mumble {

namespace {

using Bytes = std::vector<std::uint8_t>;
using View = std::span<const std::uint8_t>;

constexpr std::size_t WayBound = 300;  // packets: so many may be lost, and some more
constexpr CryptBlock Key{1, 2, 3};
constexpr CryptBlock Nonce{0xF0, 0xFF, 0xFF};  // soon carries

using fuzz::Hold;

fuzz::Counts& Tried() {
    static fuzz::Counts counts("voice");
    return counts;
}

void ReadPacket(View packet) {
    const std::optional<speech::HeardVoice> voice = ReadVoice(packet);
    const std::optional<std::uint64_t> ping = ReadPing(packet);
    Tried().Count(voice || ping);
    Hold(!voice || !ping, "a packet is two");
    if (ping) Hold(ReadPing(WritePing(*ping)) == ping, "a ping is read as another");
    if (!voice) return;
    Hold(voice->Opus.size() <= packet.size() && packet.size() <= VoicePacketBound, "a voice is longer than its packet");
    Hold(voice->Opus.empty() || (voice->Opus.data() > packet.data() &&
                                 voice->Opus.data() + voice->Opus.size() <= packet.data() + packet.size()),
         "a voice lies outside of its packet");
    // As the server would tell it, which may be longer than it was.
    Bytes again =
        WriteVoice(VoiceTarget::Channel, voice->Sequence, voice->Opus, voice->IsLast ? TalkEnd::Yes : TalkEnd::No);
    if (again.empty()) return;
    Bytes session;
    AppendVarint(session, voice->Speaker);
    again.insert(again.begin() + 1, session.begin(), session.end());
    const std::optional<speech::HeardVoice> heard = ReadVoice(again);
    if (again.size() > VoicePacketBound) return;
    Hold(heard && heard->Speaker == voice->Speaker && heard->Sequence == voice->Sequence &&
             heard->IsLast == voice->IsLast && std::ranges::equal(heard->Opus, voice->Opus),
         "a voice is read as another");
}

void ReadNumbers(View packet) {
    while (const std::optional<std::uint64_t> number = TakeVarint(packet)) {
        Bytes written;
        AppendVarint(written, *number);
        View rest = written;
        Hold(TakeVarint(rest) == number && rest.empty(), "a number is read as another");
    }
}

std::unique_ptr<google::protobuf::MessageLite> ContentOf(MessageType type) {
    switch (type) {
        case MessageType::Version:
            return std::make_unique<wire::Version>();
        case MessageType::UdpTunnel:
            return nullptr;
        case MessageType::Authenticate:
            return std::make_unique<wire::Authenticate>();
        case MessageType::Ping:
            return std::make_unique<wire::Ping>();
        case MessageType::Reject:
            return std::make_unique<wire::Reject>();
        case MessageType::ServerSync:
            return std::make_unique<wire::ServerSync>();
        case MessageType::ChannelRemove:
            return std::make_unique<wire::ChannelRemove>();
        case MessageType::ChannelState:
            return std::make_unique<wire::ChannelState>();
        case MessageType::UserRemove:
            return std::make_unique<wire::UserRemove>();
        case MessageType::UserState:
            return std::make_unique<wire::UserState>();
        case MessageType::PermissionDenied:
            return std::make_unique<wire::PermissionDenied>();
        case MessageType::CryptSetup:
            return std::make_unique<wire::CryptSetup>();
    }
    std::abort();
}

// All that a stream holds, as it would be sent again.
std::string Messages(View stream, std::size_t piece) {
    MessageReader reader;
    std::string all;
    for (; !stream.empty(); stream = stream.subspan(std::min(piece, stream.size()))) {
        reader.Feed(stream.first(std::min(piece, stream.size())));
        while (const std::optional<Message> message = reader.Next()) {
            const std::unique_ptr<google::protobuf::MessageLite> content = ContentOf(message->Type);
            Hold(message->Payload.size() <= KeptBound, "a message is too long");
            if (!content) {
                ReadPacket(message->Payload);
                all += FrameVoice(message->Payload);
            } else {
                const bool isRead = Parse(*message, *content);
                Tried().Count(isRead);
                all += isRead ? Frame(message->Type, *content) : "?";
            }
        }
    }
    if (reader.IsBroken()) Tried().Count(false);
    return reader.IsBroken() ? all + "!" : all;
}

void ReadStream(View stream) {
    const std::size_t piece = 1 + stream.size() % 8;
    Hold(Messages(stream, piece) == Messages(stream, stream.size()), "a stream is read as another when it is cut");
}

// What befalls packets on their way: each byte sends one, and says whether and how that or an earlier one comes.
void ReadWay(View way) {
    PacketCrypt sender(Key, Nonce, {});
    PacketCrypt receiver(Key, {}, Nonce);
    std::vector<Bytes> sent;
    std::vector<int> taken;
    unsigned long all = 0;
    const auto come = [&](std::size_t number, View packet, bool isWhole) {
        const std::optional<View> plain = receiver.Decrypt(packet);
        Tried().Count(plain.has_value());
        all += plain ? 1 : 0;
        if (plain) Hold(plain->size() + CryptHead == packet.size(), "a packet has another length");
        if (!plain || !isWhole) return;
        Hold(++taken[number] == 1, "a packet is taken twice");
        Hold(plain->size() == number % 20 + 1 && (*plain)[0] == static_cast<std::uint8_t>(number),
             "a packet is another");
    };
    for (const std::uint8_t step : way.first(std::min(way.size(), WayBound))) {
        Bytes plain(sent.size() % 20 + 1, 0x55);
        plain[0] = static_cast<std::uint8_t>(sent.size());
        const View packet = sender.Encrypt(plain);
        sent.emplace_back(packet.begin(), packet.end());
        taken.push_back(0);
        const std::size_t number = sent.size() - 1 - std::min<std::size_t>(step >> 2, sent.size() - 1);
        Bytes other = sent[number];
        if (step % 4 == 0) come(sent.size() - 1, sent.back(), true);
        if (step % 4 == 1) come(number, other, true);
        if (step % 4 == 2) {
            other[step % other.size()] ^= 1 << step % 8;
            come(number, other, false);
        }
        if (step == 3) receiver.SetFarNonce(sender.OwnNonce());
    }
    Hold(receiver.Counted().Good == all, "packets are not counted");
}

void ReadEncrypted(View bytes) {
    PacketCrypt receiver(Key, {}, Nonce);
    Ocb2 cipher(Key);
    if (bytes.size() <= VoicePacketBound) {
        Bytes encrypted(bytes.size());
        Bytes decrypted(bytes.size());
        const CryptBlock tag = cipher.Encrypt(Nonce, bytes, encrypted);
        const std::optional<CryptBlock> again = cipher.Decrypt(Nonce, encrypted, decrypted);
        Hold(again == tag, "what was encrypted is refused");
        int changed = 0;
        for (std::size_t index = 0; index < bytes.size(); ++index) changed += bytes[index] != decrypted[index];
        Hold(changed <= 1, "what was encrypted is another");
    }
    // Of random ones one in 2^24 is taken, as the tag is so short.
    const std::optional<View> plain = receiver.Decrypt(bytes);
    Tried().Count(plain.has_value());
    if (plain) ReadPacket(*plain);
}

void ReadAddress(View bytes) {
    const std::string text(bytes.begin(), bytes.end());
    std::string why;
    const std::optional<RoomAddress> address = ReadRoomAddress(text, why);
    Tried().Count(address.has_value());
    Hold(address.has_value() == why.empty(), "an address is refused without a word");
    const auto isPlain = [](char character) { return character >= ' ' && character <= '}' && character != '/'; };
    if (address) {
        Hold(!address->Host.empty() && address->Port != 0, "a room has no server");
        Hold(!address->Channel.empty() && address->Channel.size() <= 200, "a channel is too long");
        Hold(std::ranges::all_of(address->Channel, isPlain), "a channel has other characters");
    }
    const std::string name = UserName(text, 0);
    Hold(name.ends_with(".1") && name.size() <= 102 && std::ranges::all_of(name, isPlain),
         "a name has other characters");
}

}  // namespace

}  // namespace orvelle::mumble

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
    using namespace orvelle::mumble;
    if (count == 0) return 0;
    const std::span<const std::uint8_t> rest(bytes + 1, count - 1);
    switch (bytes[0] % 6) {
        case 0:
            ReadStream(rest);
            break;
        case 1:
            ReadPacket(rest);
            break;
        case 2:
            ReadNumbers(rest);
            break;
        case 3:
            ReadWay(rest);
            break;
        case 4:
            ReadEncrypted(rest);
            break;
        default:
            ReadAddress(rest);
    }
    return 0;
}
