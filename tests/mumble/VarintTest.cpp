#include "adapters/mumble/Varint.h"

#include <gtest/gtest.h>

#include "tests/mumble/Hexadecimal.h"

namespace orvelle::mumble {
namespace {

struct Row {
    const char* Bytes;
    std::uint64_t Number;
};

std::optional<std::uint64_t> Read(const std::vector<std::uint8_t>& bytes) {
    std::span<const std::uint8_t> rest = bytes;
    const std::optional<std::uint64_t> number = TakeVarint(rest);
    EXPECT_EQ(rest.size(), number ? 0 : bytes.size()) << HexadecimalOf(bytes);
    return number;
}

constexpr Row Shortest[] = {
    {"00", 0},
    {"01", 1},
    {"7F", 0x7F},
    {"80 80", 0x80},
    {"BF FF", 0x3FFF},
    {"C0 40 00", 0x4000},
    {"DF FF FF", 0x1FFFFF},
    {"E0 20 00 00", 0x200000},
    {"EF FF FF FF", 0xFFFFFFF},
    {"F0 10 00 00 00", 0x10000000},
    {"F0 FF FF FF FF", 0xFFFFFFFF},
    {"F4 00 00 00 01 00 00 00 00", 0x100000000},
    {"F4 12 34 56 78 9A BC DE F0", 0x123456789ABCDEF0},
    {"F4 FF FF FF FF FF FF FF FF", 0xFFFFFFFFFFFFFFFF},
};

TEST(VarintTest, IsWrittenInTheShortestForm) {
    for (const Row& row : Shortest) {
        std::vector<std::uint8_t> packet;
        AppendVarint(packet, row.Number);
        EXPECT_EQ(packet, BytesOf(row.Bytes)) << row.Bytes;
    }
}

TEST(VarintTest, IsReadInEveryForm) {
    for (const Row& row : Shortest) EXPECT_EQ(Read(BytesOf(row.Bytes)), row.Number) << row.Bytes;
    for (const Row& row : {Row{"80 05", 5}, Row{"C0 00 05", 5}, Row{"E0 00 00 05", 5}, Row{"F0 00 00 00 05", 5},
                           Row{"F4 00 00 00 00 00 00 00 05", 5}})
        EXPECT_EQ(Read(BytesOf(row.Bytes)), row.Number) << row.Bytes;
}

TEST(VarintTest, NegativeNumbersAreReadAsTheirComplements) {
    for (const Row& row : {Row{"FC", ~0ULL}, Row{"FD", ~1ULL}, Row{"FE", ~2ULL}, Row{"FF", ~3ULL}, Row{"F8 00", 0},
                           Row{"F8 05", 0 - 5ULL}, Row{"F8 BF FF", 0 - 0x3FFFULL},
                           Row{"F8 F4 80 00 00 00 00 00 00 00", 0x8000000000000000}})
        EXPECT_EQ(Read(BytesOf(row.Bytes)), row.Number) << row.Bytes;
}

TEST(VarintTest, APacketThatEndsTooEarlyHasNone) {
    for (const Row& row : Shortest) {
        std::vector<std::uint8_t> bytes = BytesOf(row.Bytes);
        for (bytes.pop_back(); !bytes.empty(); bytes.pop_back()) EXPECT_FALSE(Read(bytes)) << HexadecimalOf(bytes);
    }
    for (const char* bytes : {"", "F8", "F8 80", "F8 F4 00 00"}) EXPECT_FALSE(Read(BytesOf(bytes))) << bytes;
}

TEST(VarintTest, OtherFirstBytesAndANegatedNegativeNumberAreNone) {
    for (const char* bytes : {"F1 00 00 00 00", "F2 00 00 00 00", "F3 00 00 00 00", "F5 00 00 00 00 00 00 00 00",
                              "F7 00 00 00 00 00 00 00 00", "F9 05", "FA 05", "FB 05", "F8 F8 05", "F8 FC"})
        EXPECT_FALSE(Read(BytesOf(bytes))) << bytes;
    EXPECT_FALSE(Read(std::vector<std::uint8_t>(1000000, 0xF8)));
}

TEST(VarintTest, WhatFollowsStays) {
    const std::vector<std::uint8_t> bytes = BytesOf("80 80 F8 05 FD 2A");
    std::span<const std::uint8_t> rest = bytes;
    EXPECT_EQ(TakeVarint(rest), 0x80);
    EXPECT_EQ(TakeVarint(rest), 0 - 5ULL);
    EXPECT_EQ(TakeVarint(rest), ~1ULL);
    EXPECT_EQ(rest.size(), 1);
}

}  // namespace
}  // namespace orvelle::mumble
