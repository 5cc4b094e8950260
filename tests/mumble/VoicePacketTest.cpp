#include "adapters/mumble/VoicePacket.h"

#include <gtest/gtest.h>

#include "tests/mumble/Hexadecimal.h"

namespace orvelle::mumble {
namespace {

std::optional<speech::HeardVoice> Read(const std::vector<std::uint8_t>& bytes) { return ReadVoice(bytes); }

TEST(VoicePacketTest, OurVoiceIsWrittenAsTheServerReadsIt) {
    const std::vector<std::uint8_t> opus = BytesOf("AA BB CC");
    EXPECT_EQ(HexadecimalOf(WriteVoice(VoiceTarget::Channel, 7, opus, TalkEnd::No)), "800703AABBCC");
    EXPECT_EQ(HexadecimalOf(WriteVoice(VoiceTarget::Loopback, 0x4000, opus, TalkEnd::Yes)), "9FC04000A003AABBCC");
}

TEST(VoicePacketTest, OurVoiceFillsAPacketAtTheMost) {
    EXPECT_EQ(WriteVoice(VoiceTarget::Channel, 7, CountingBytes(1016), TalkEnd::No).size(), VoicePacketBound);
    EXPECT_TRUE(WriteVoice(VoiceTarget::Channel, 7, CountingBytes(1017), TalkEnd::No).empty());
    EXPECT_TRUE(WriteVoice(VoiceTarget::Channel, 7, CountingBytes(0x2003), TalkEnd::No).empty());
}

TEST(VoicePacketTest, TheVoiceOfOthersIsRead) {
    const std::vector<std::uint8_t> packet = BytesOf("80 82 01 C0 40 00 03 AA BB CC");
    const std::optional<speech::HeardVoice> voice = Read(packet);
    ASSERT_TRUE(voice);
    EXPECT_EQ(voice->Speaker, 0x201);
    EXPECT_EQ(voice->Sequence, 0x4000);
    EXPECT_EQ(HexadecimalOf(voice->Opus), "AABBCC");
    EXPECT_FALSE(voice->IsLast);

    const std::optional<speech::HeardVoice> last = Read(BytesOf("82 01 02 A0 01 AA"));
    ASSERT_TRUE(last);
    EXPECT_EQ(last->Opus.size(), 1);
    EXPECT_TRUE(last->IsLast);
}

TEST(VoicePacketTest, APositionBehindTheVoiceMeansNothing) {
    const std::vector<std::uint8_t> packet = BytesOf("80 01 02 01 AA 00 00 80 3F 00 00 80 3F 00 00 80 3F");
    const std::optional<speech::HeardVoice> voice = Read(packet);
    ASSERT_TRUE(voice);
    EXPECT_EQ(HexadecimalOf(voice->Opus), "AA");
}

TEST(VoicePacketTest, OnlyTheLastOneOfATalkMayBeEmpty) {
    EXPECT_FALSE(Read(BytesOf("80 01 02 00")));
    const std::optional<speech::HeardVoice> last = Read(BytesOf("80 01 02 A0 00"));
    ASSERT_TRUE(last);
    EXPECT_TRUE(last->IsLast);
    EXPECT_TRUE(last->Opus.empty());
}

TEST(VoicePacketTest, WhatIsMalformedIsRefused) {
    for (const char* bytes : {
             "", "80", "80 01", "80 01 02",             // ends before its voice
             "80 01 02 02 AA",                          // says more than there is
             "80 01 02 BF FF AA",                       // much more
             "80 01 02 C0 40 01 AA",                    // a length with unknown marks
             "80 01 02 F8 01 AA",                       // less than nothing
             "80 FC 02 01 AA",                          // no session
             "80 F4 00 00 00 01 00 00 00 00 02 01 AA",  // a session beyond 32 bits
             "80 01 FC 01 AA",                          // a sequence before the first
         })
        EXPECT_FALSE(Read(BytesOf(bytes))) << bytes;
}

TEST(VoicePacketTest, OtherCodecsAndPingsAreNoVoice) {
    for (const char* bytes :
         {"00 01 02 01 AA", "20 01 02 01 AA", "40 01 02 01 AA", "60 01 02 01 AA", "A0 01 02 01 AA", "E0 01 02 01 AA"})
        EXPECT_FALSE(Read(BytesOf(bytes))) << bytes;
}

TEST(VoicePacketTest, LongerThanAPacketIsRefused) {
    std::vector<std::uint8_t> packet = BytesOf("80 01 02 01 AA");
    packet.resize(VoicePacketBound);
    EXPECT_TRUE(Read(packet));
    packet.push_back(0);
    EXPECT_FALSE(Read(packet));
}

TEST(VoicePacketTest, APingIsReadAsItWasWritten) {
    EXPECT_EQ(HexadecimalOf(WritePing(0x4000)), "20C04000");
    for (const std::uint64_t timestamp : {std::uint64_t{0}, std::uint64_t{127}, ~std::uint64_t{0}})
        EXPECT_EQ(ReadPing(WritePing(timestamp)), timestamp);
    for (const char* bytes : {"", "20", "21 05", "20 80", "80 05"}) EXPECT_FALSE(ReadPing(BytesOf(bytes))) << bytes;
}

}  // namespace
}  // namespace orvelle::mumble
