#include "adapters/mumble/Messages.h"

#include <gtest/gtest.h>

#include "adapters/mumble/VoiceServer.pb.h"
#include "tests/mumble/Hexadecimal.h"

namespace orvelle::mumble {
namespace {

using Bytes = std::vector<std::uint8_t>;

// Type and payload of all that a reader has; * behind those that could be read no further.
std::string All(MessageReader& reader) {
    std::string all;
    while (const std::optional<Message> message = reader.Next())
        all += std::to_string(static_cast<int>(message->Type)) + ":" + HexadecimalOf(message->Payload) + " ";
    return reader.IsBroken() ? all + "*" : all;
}

std::string All(const Bytes& bytes) {
    MessageReader reader;
    reader.Feed(bytes);
    return All(reader);
}

Bytes Head(std::uint16_t type, std::size_t length) {
    Bytes head;
    for (const int shift : {8, 0}) head.push_back(static_cast<std::uint8_t>(type >> shift));
    for (const int shift : {24, 16, 8, 0}) head.push_back(static_cast<std::uint8_t>(length >> shift));
    return head;
}

TEST(MessagesTest, AreFramedByTypeAndLength) {
    wire::Ping ping;
    EXPECT_EQ(HexadecimalOf(Frame(MessageType::Ping, ping)), "000300000000");
    ping.set_timestamp(300);
    EXPECT_EQ(HexadecimalOf(Frame(MessageType::Ping, ping)), "00030000000308AC02");
    EXPECT_EQ(HexadecimalOf(FrameVoice(BytesOf("20 05"))), "0001000000022005");
    wire::CryptSetup setup;
    setup.set_client_nonce(std::string(300, 'x'));
    EXPECT_TRUE(HexadecimalOf(Frame(MessageType::CryptSetup, setup)).starts_with("000F0000012F12AC0278"));
}

TEST(MessagesTest, FieldsHaveTheirNumbers) {
    wire::Version version;
    version.set_version(ProtocolVersion);
    version.set_release("r");
    version.set_os("o");
    EXPECT_EQ(HexadecimalOf(version.SerializeAsString()),
              "08848604"
              "120172"
              "1A016F");

    wire::Authenticate authenticate;
    authenticate.set_username("u");
    authenticate.set_password("p");
    authenticate.add_tokens("t");
    authenticate.set_opus(true);
    EXPECT_EQ(HexadecimalOf(authenticate.SerializeAsString()),
              "0A0175"
              "120170"
              "1A0174"
              "2801");

    wire::Ping ping;
    ping.set_timestamp(1);
    ping.set_good(2);
    ping.set_late(3);
    ping.set_lost(4);
    EXPECT_EQ(HexadecimalOf(ping.SerializeAsString()),
              "0801"
              "1002"
              "1803"
              "2004");

    wire::ChannelState channel;
    channel.set_channel_id(1);
    channel.set_parent(0);
    channel.set_name("n");
    channel.set_temporary(true);
    EXPECT_EQ(HexadecimalOf(channel.SerializeAsString()),
              "0801"
              "1000"
              "1A016E"
              "4001");

    wire::UserState user;
    user.set_session(1);
    user.set_name("n");
    user.set_user_id(2);
    user.set_channel_id(3);
    user.set_suppress(true);
    EXPECT_EQ(HexadecimalOf(user.SerializeAsString()),
              "0801"
              "1A016E"
              "2002"
              "2803"
              "4001");

    wire::CryptSetup setup;
    setup.set_key("k");
    setup.set_client_nonce("c");
    setup.set_server_nonce("s");
    EXPECT_EQ(HexadecimalOf(setup.SerializeAsString()),
              "0A016B"
              "120163"
              "1A0173");
}

TEST(MessagesTest, TheServersAnswersAreUnderstood) {
    const auto read = [](MessageType type, const char* payload, google::protobuf::MessageLite&& content) {
        const Bytes bytes = BytesOf(payload);
        EXPECT_TRUE(Parse({type, bytes}, content)) << payload;
        return HexadecimalOf(content.SerializeAsString());
    };
    wire::Reject reject;
    const Bytes wrongPassword = BytesOf("08 04 12 02 6E 6F");
    ASSERT_TRUE(Parse({MessageType::Reject, wrongPassword}, reject));
    EXPECT_EQ(static_cast<RejectType>(reject.type()), RejectType::ServerPassword);
    EXPECT_EQ(reject.reason(), "no");

    wire::PermissionDenied denied;
    const Bytes permission = BytesOf("08 80 08 10 07 18 02 28 01");
    ASSERT_TRUE(Parse({MessageType::PermissionDenied, permission}, denied));
    EXPECT_EQ(denied.permission(), MakeTemporaryChannel);
    EXPECT_EQ(denied.channel_id(), 7);
    EXPECT_EQ(static_cast<DenialType>(denied.type()), DenialType::Permission);

    wire::ServerSync sync;
    const Bytes synchronised = BytesOf("08 05 10 C0 B2 04 1A 02 68 69 20 FF 01");
    ASSERT_TRUE(Parse({MessageType::ServerSync, synchronised}, sync));
    EXPECT_EQ(sync.session(), 5);
    EXPECT_EQ(sync.max_bandwidth(), 72000);
    EXPECT_EQ(sync.permissions(), 0xFF);

    wire::UserRemove removed;
    const Bytes kicked = BytesOf("08 05 10 01 1A 01 78 20 01");
    ASSERT_TRUE(Parse({MessageType::UserRemove, kicked}, removed));
    EXPECT_EQ(removed.session(), 5);
    EXPECT_EQ(removed.actor(), 1);
    EXPECT_TRUE(removed.ban());

    EXPECT_EQ(read(MessageType::ChannelRemove, "08 05", wire::ChannelRemove()), "0805");
}

TEST(MessagesTest, WhatIsNoMessageIsTold) {
    wire::UserState user;
    for (const char* payload : {"08", "1A 05 6E", "0F", "08 FF FF FF FF FF FF FF FF FF FF 01"}) {
        const Bytes bytes = BytesOf(payload);
        EXPECT_FALSE(Parse({MessageType::UserState, bytes}, user)) << payload;
    }
    EXPECT_TRUE(Parse({MessageType::UserState, {}}, user));
    EXPECT_FALSE(user.has_channel_id());
}

TEST(MessagesTest, AreReadHoweverTheStreamIsCut) {
    const Bytes stream = BytesOf(
        "0000 00000002 0801"
        "0003 00000000"
        "0015 00000003 010203"
        "000B 00000001 FF"
        "0001 00000005 8001020141"
        "FFFF 00000000"
        "000F 00000000"
        "000C 00000001 08");
    const std::string expected = "0:0801 3: 1:8001020141 15: 12:08 ";
    EXPECT_EQ(All(stream), expected);
    for (std::size_t size = 1; size < stream.size(); ++size) {
        MessageReader reader;
        std::string read;
        for (std::span<const std::uint8_t> rest = stream; !rest.empty();) {
            const std::span<const std::uint8_t> piece = rest.first(std::min(size, rest.size()));
            reader.Feed(piece);
            read += All(reader);
            rest = rest.subspan(piece.size());
        }
        EXPECT_EQ(read, expected) << "in pieces of " << size;
    }
}

TEST(MessagesTest, OthersAreSkippedHoweverLongTheyAre) {
    for (const std::uint16_t type : {10, 11, 13, 14, 16, 26, 0xFFFF, 9}) {
        MessageReader reader;
        reader.Feed(Head(type, LengthBound));
        EXPECT_EQ(All(reader), "");
        const Bytes piece(65536, 0xFF);
        for (std::size_t size = 0; size < LengthBound; size += piece.size()) {
            reader.Feed(piece);
            EXPECT_EQ(All(reader), "");
        }
        reader.Feed(BytesOf("0003 00000002 0801"));
        EXPECT_EQ(All(reader), "3:0801 ") << type;
    }
}

TEST(MessagesTest, TheLongestThatIsKeptIsRead) {
    Bytes stream = Head(9, KeptBound);
    stream.resize(stream.size() + KeptBound, 0x41);
    MessageReader reader;
    reader.Feed(stream);
    const std::optional<Message> message = reader.Next();
    ASSERT_TRUE(message);
    EXPECT_EQ(message->Payload.size(), KeptBound);
}

TEST(MessagesTest, ALengthOverTheBoundEndsTheReading) {
    for (const std::uint16_t type : {3, 11}) {
        Bytes stream = BytesOf("0003 00000000");
        const Bytes head = Head(type, LengthBound + 1);
        stream.insert(stream.end(), head.begin(), head.end());
        MessageReader reader;
        reader.Feed(stream);
        EXPECT_EQ(All(reader), "3: *");
        reader.Feed(BytesOf("0003 00000000"));
        EXPECT_EQ(All(reader), "*");
    }
    EXPECT_EQ(All(Bytes{'H', 'T', 'T', 'P', '/', '1', '.', '1'}), "*");
}

}  // namespace
}  // namespace orvelle::mumble
