#include "adapters/mumble/Messages.h"

#include <algorithm>

namespace orvelle::mumble {

namespace {

constexpr std::size_t HeadSize = 6;

bool IsKnown(std::uint16_t type) {
    return type <= static_cast<std::uint16_t>(MessageType::UserState) ||
           type == static_cast<std::uint16_t>(MessageType::PermissionDenied) ||
           type == static_cast<std::uint16_t>(MessageType::CryptSetup);
}

std::string Head(MessageType type, std::size_t length) {
    const auto number = static_cast<std::uint16_t>(type);
    std::string head;
    for (const int shift : {8, 0}) head += static_cast<char>(number >> shift);
    for (const int shift : {24, 16, 8, 0}) head += static_cast<char>(length >> shift);
    return head;
}

}  // namespace

std::string Frame(MessageType type, const google::protobuf::MessageLite& message) {
    std::string frame = Head(type, message.ByteSizeLong());
    message.AppendToString(&frame);
    return frame;
}

std::string FrameVoice(std::span<const std::uint8_t> packet) {
    return Head(MessageType::UdpTunnel, packet.size()).append(packet.begin(), packet.end());
}

bool Parse(const Message& message, google::protobuf::MessageLite& content) {
    return content.ParseFromArray(message.Payload.data(), static_cast<int>(message.Payload.size()));
}

void MessageReader::Feed(std::span<const std::uint8_t> bytes) {
    if (isBroken) return;
    kept.erase(kept.begin(), kept.begin() + static_cast<std::ptrdiff_t>(begin));
    begin = 0;
    const std::size_t left = std::min(skipped, bytes.size());
    skipped -= left;
    bytes = bytes.subspan(left);
    kept.insert(kept.end(), bytes.begin(), bytes.end());
}

std::optional<Message> MessageReader::Next() {
    while (!isBroken && kept.size() - begin >= HeadSize) {
        const std::uint8_t* const head = kept.data() + begin;
        const auto type = static_cast<std::uint16_t>(head[0] << 8 | head[1]);
        const std::size_t length = std::size_t{head[2]} << 24 | head[3] << 16 | head[4] << 8 | head[5];
        const std::size_t there = kept.size() - begin - HeadSize;
        if (length > LengthBound) {
            isBroken = true;
            kept.clear();
            begin = 0;
        } else if (!IsKnown(type) || length > KeptBound) {
            begin += HeadSize + std::min(length, there);
            skipped = length - std::min(length, there);
        } else if (there < length) {
            break;
        } else {
            const std::span payload = std::span<const std::uint8_t>(kept).subspan(begin + HeadSize, length);
            begin += HeadSize + length;
            return Message{static_cast<MessageType>(type), payload};
        }
    }
    return std::nullopt;
}

}  // namespace orvelle::mumble
