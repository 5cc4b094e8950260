#include "adapters/mumble/RoomAddress.h"

#include <gtest/gtest.h>

#include <set>

namespace orvelle::mumble {
namespace {

TEST(RoomAddressTest, IsServerAndChannel) {
    struct Row {
        const char* Text;
        RoomAddress Meant;
    };
    for (const Row& row :
         {Row{"voice.example/Tower", {"voice.example", 64738, "Tower"}},
          Row{"voice.example:1234/Tower", {"voice.example", 1234, "Tower"}},
          Row{"Voice.Example/Tower", {"voice.example", 64738, "Tower"}},
          Row{"192.0.2.7/Tower", {"192.0.2.7", 64738, "Tower"}},
          Row{"2001:db8::7/Tower", {"2001:db8::7", 64738, "Tower"}}, Row{"[::1]:1234/Tower", {"::1", 1234, "Tower"}},
          Row{"  voice.example / Munich Tower ", {"voice.example", 64738, "Munich Tower"}}}) {
        std::string why;
        EXPECT_EQ(ReadRoomAddress(row.Text, why), row.Meant) << row.Text;
        EXPECT_EQ(why, "") << row.Text;
    }
}

TEST(RoomAddressTest, OtherCharactersOfTheChannelAreWrittenInDigits) {
    struct Row {
        const char* Text;
        const char* Channel;
    };
    for (const Row& row : {Row{"122.800", "122#2E800"}, Row{"a/b", "a#2Fb"}, Row{"/", "#2F"}, Row{"#2E", "#232E"},
                           Row{"a_-=()[]{}@|Z9", "a_-=()[]{}@|Z9"}, Row{"M\xC3\xBCnchen", "M#C3#BCnchen"},
                           Row{"a\nb\x7F\x01", "a#0Ab#7F#01"}, Row{"\xFF", "#FF"}}) {
        std::string why;
        const std::optional<RoomAddress> address = ReadRoomAddress(std::string("x/").append(row.Text), why);
        ASSERT_TRUE(address) << row.Text;
        EXPECT_EQ(address->Channel, row.Channel);
    }
}

TEST(RoomAddressTest, WhatIsMissingOrWrongIsOneSentence) {
    std::set<std::string> sentences;
    for (const std::string& text :
         {std::string(), std::string("voice.example"), std::string("voice.example/"), std::string("voice.example/ \t"),
          std::string("/Tower"), std::string(" /Tower"), std::string("a b/Tower"), std::string("voice.example:0/Tower"),
          std::string("voice.example:70000/Tower"), std::string("voice.example:/Tower"), std::string("[::1/Tower"),
          std::string("x").append(253, 'x').append("/Tower"), std::string("voice.example/").append(1000, 'x'),
          std::string("voice.example/").append(67, '.')}) {
        std::string why;
        EXPECT_FALSE(ReadRoomAddress(text, why)) << text;
        EXPECT_TRUE(why.ends_with('.')) << text << ": " << why;
        sentences.insert(why);
    }
    EXPECT_EQ(sentences.size(), 4);
}

TEST(RoomAddressTest, TheLongestChannelIsTaken) {
    std::string why;
    EXPECT_TRUE(ReadRoomAddress(std::string("voice.example/").append(200, 'x'), why));
    EXPECT_FALSE(ReadRoomAddress(std::string("voice.example/").append(201, 'x'), why));
    EXPECT_TRUE(ReadRoomAddress(std::string("voice.example/").append(66, '.'), why));
}

TEST(RoomAddressTest, OurNameTellsTheRoom) {
    EXPECT_EQ(UserName("AAL12 (99)", 0), "AAL12(99).1");
    EXPECT_EQ(UserName("AAL12 (99)", 2), "AAL12(99).3");
    EXPECT_EQ(UserName("A.1=B/\xC3\xBC", 1), "A=2E1=3DB=2F=C3=BC.2");
    EXPECT_EQ(UserName("", 0), ".1");
}

TEST(RoomAddressTest, ALongNameOfOursIsCutBetweenCharacters) {
    EXPECT_EQ(UserName(std::string(1000, 'x'), 1), std::string().append(100, 'x').append(".2"));
    const std::string dots = UserName(std::string(1000, '.'), 1);
    EXPECT_EQ(dots.size(), 3 * 33 + 2);
    EXPECT_TRUE(dots.ends_with("=2E.2"));
}

}  // namespace
}  // namespace orvelle::mumble
