// A directory of any bytes, depth or length is read without harm, and what is cut off anywhere gives none.
#include <gtest/gtest.h>

#include "simulators/directory/DirectoryReading.h"
#include "tests/simulators/DirectoryText.h"

namespace orvelle::directory {
namespace {

const std::string Whole =
    DirectoryWith(ClubServer, StationText("EDDF_TWR", 118300), "", ", 'otherwise': {'server': 'club'}");

TEST(DirectoryBounds, ATextThatBreaksOffAnywhereGivesNone) {
    ASSERT_EQ(ReadDirectory(Whole).FaultCount, 0U);
    const std::size_t last = Whole.rfind('}');
    for (std::size_t length = 0; length <= last; ++length) {
        const ReadText read = ReadDirectory(std::string_view(Whole).substr(0, length));
        EXPECT_FALSE(read.Content) << length;
        EXPECT_EQ(read.FaultCount, 1U) << length;
    }
}

TEST(DirectoryBounds, WhatFollowsIsTold) {
    const ReadText read = ReadDirectory(Whole + "\n more");
    EXPECT_FALSE(read.Content);
    ASSERT_EQ(read.Faults.size(), 1U);
    EXPECT_EQ(read.Faults[0].Line, 6U);
    EXPECT_TRUE(ReadDirectory(Whole + " \r\n\t\n").Content);
}

TEST(DirectoryBounds, AByteOrderMarkIsToldAndTheRestRead) {
    const ReadText read = ReadDirectory("\xEF\xBB\xBF" + Whole);
    EXPECT_TRUE(read.Content);
    ASSERT_EQ(read.Faults.size(), 1U);
    EXPECT_EQ(read.Faults[0].Sentence, "The text begins with a byte order mark; please save it without one.");
}

TEST(DirectoryBounds, WhatIsNotUtf8IsToldByItsLine) {
    for (const std::string bad : {"\xFF", "\xC3", "\xED\xA0\x80", "\xC0\x80"}) {
        std::string text = Whole;
        const ReadText read = ReadDirectory(text.replace(text.find("EDDF_TWR"), 1, bad));
        EXPECT_FALSE(read.Content);
        ASSERT_EQ(read.Faults.size(), 1U);
        EXPECT_EQ(read.Faults[0].Line, 3U);
        EXPECT_EQ(read.Faults[0].Sentence, "This line is not in UTF-8.");
    }
    std::string text = Whole;
    const ReadText read = ReadDirectory(text.replace(text.find("EDDF_TWR"), 1, std::string(1, '\0')));
    EXPECT_FALSE(read.Content);
    EXPECT_EQ(read.Faults.at(0).Sentence, "This line holds a zero byte.");
}

TEST(DirectoryBounds, DepthIsNoBomb) {
    for (const std::string open : {"[", "{\"a\":"}) {
        std::string deep = "{\"x\": ";
        for (int level = 0; level < 1'000'000; ++level) deep += open;
        const ReadText read = ReadDirectory(deep);
        EXPECT_FALSE(read.Content);
        ASSERT_EQ(read.Faults.size(), 1U);
        EXPECT_EQ(read.Faults[0].Sentence, "It is nested too deep: 16 levels at most.");
    }
}

TEST(DirectoryBounds, AnEntryOfManyValuesIsLeftOut) {
    std::string many = "0";
    for (int value = 0; value < 300'000; ++value) many += ",0";
    const ReadText read = ReadDirectory(DirectoryWith(
        ClubServer, "{'callsign': [" + many + "]}, " + StationText("A", 118300), "", ", 'further': [" + many + "]"));
    ASSERT_EQ(read.Faults.size(), 1U);
    EXPECT_EQ(read.Faults[0].Field, "stations[0]");
    EXPECT_EQ(read.Faults[0].Sentence, "It is too large.");
    ASSERT_TRUE(read.Content);
    EXPECT_EQ(read.Content->Stations.size(), 1U);
}

TEST(DirectoryBounds, ATextOfAHundredMegabytesIsRefusedUnread) {
    const ReadText read = ReadDirectory(std::string(100'000'000, ' '));
    EXPECT_FALSE(read.Content);
    ASSERT_EQ(read.Faults.size(), 1U);
    EXPECT_EQ(read.Faults[0].Sentence, "It is longer than 16 MiB.");
}

TEST(DirectoryBounds, ManyMistakesAreCountedAndTheFirstNamed) {
    std::string stations = "7";
    for (int station = 1; station < 1000; ++station) stations += ",\n7";
    const ReadText read = ReadDirectory(DirectoryWith(ClubServer, stations));
    EXPECT_EQ(read.FaultCount, 1000U);
    ASSERT_EQ(read.Faults.size(), MostFaults);
    EXPECT_EQ(read.Faults.back().Field, "stations[99]");
    EXPECT_EQ(read.Faults.back().Line, 102U);
}

TEST(DirectoryBounds, OddNamesAreShownShort) {
    const std::string name(100'000, 'a');
    const ReadText read = ReadDirectory(DirectoryWith(ClubServer, "", "", ", '" + name + "': 7"));
    EXPECT_EQ(read.FaultCount, 0U);
    ASSERT_EQ(read.Unknown.size(), 1U);
    EXPECT_EQ(read.Unknown[0].Field, std::string(40, 'a'));
}

}  // namespace
}  // namespace orvelle::directory
