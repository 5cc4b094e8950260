#include "adapters/linux/CommandLine.h"

#include <gtest/gtest.h>

namespace orvelle::linux {
namespace {

std::vector<std::string> Words(std::string_view line) {
    std::vector<std::string> texts;
    for (const CommandWord& word : SplitCommandLine(line)) texts.push_back(word.Text);
    return texts;
}

using Texts = std::vector<std::string>;

TEST(CommandLine, IsSplitAtBlanks) {
    EXPECT_EQ(Words("/opt/rw /join1 srv1/ops /priority high"),
              (Texts{"/opt/rw", "/join1", "srv1/ops", "/priority", "high"}));
    EXPECT_EQ(Words("  a \t b  "), (Texts{"a", "b"}));
}

TEST(CommandLine, WithNothingButBlanksHasNoWord) {
    EXPECT_TRUE(Words("").empty());
    EXPECT_TRUE(Words(" \t ").empty());
}

TEST(CommandLine, QuotesKeepBlanksAndFallAway) {
    EXPECT_EQ(Words(R"("/opt/my programs/rw" /leave )"), (Texts{"/opt/my programs/rw", "/leave"}));
    EXPECT_EQ(Words(R"(rw -name="two words"x)"), (Texts{"rw", "-name=two wordsx"}));
    EXPECT_EQ(Words(R"(rw "")"), (Texts{"rw", ""}));
}

TEST(CommandLine, AnOpenQuoteReachesToTheEnd) { EXPECT_EQ(Words(R"(rw "one two )"), (Texts{"rw", "one two "})); }

TEST(CommandLine, BackslashesAndShellSignsAreOrdinary) {
    EXPECT_EQ(Words(R"(C:\Programs\rw.exe a;b $HOME `id` *)"),
              (Texts{R"(C:\Programs\rw.exe)", "a;b", "$HOME", "`id`", "*"}));
}

TEST(CommandLine, ChannelAndCallsignOfAJoinAreOneArgumentEach) {
    EXPECT_EQ(Words("/opt/rw /join1 srv1/Innsbruck Tower /priority high /netspeed 2 /callsign Speed Bird 1"),
              (Texts{"/opt/rw", "/join1", "srv1/Innsbruck Tower", "/priority", "high", "/netspeed", "2", "/callsign",
                     "Speed Bird 1"}));
    EXPECT_EQ(Words("rw /join1 srv1/EDDF - Ground / Tower /priority high"),
              (Texts{"rw", "/join1", "srv1/EDDF - Ground / Tower", "/priority", "high"}));
    EXPECT_EQ(Words("rw /join1 a  b /priority"), (Texts{"rw", "/join1", "a  b", "/priority"}));
}

TEST(CommandLine, AJoinWithoutACallsignEndsThere) {
    EXPECT_EQ(Words("rw /join1 srv1/ /priority high /netspeed 2 /callsign "),
              (Texts{"rw", "/join1", "srv1/", "/priority", "high", "/netspeed", "2", "/callsign"}));
    EXPECT_EQ(Words("rw /callsign /leave"), (Texts{"rw", "/callsign", "/leave"}));
    EXPECT_EQ(Words("rw /join1"), (Texts{"rw", "/join1"}));
}

TEST(CommandLine, WhatTheUserQuotedOrPartedByTabsStaysSo) {
    EXPECT_EQ(Words("rw /join1 \"a b\" c"), (Texts{"rw", "/join1", "a b", "c"}));
    EXPECT_EQ(Words("rw /join1 a\tb /leave"), (Texts{"rw", "/join1", "a", "b", "/leave"}));
    EXPECT_EQ(Words("rw \"/join1\" a b"), (Texts{"rw", "/join1", "a", "b"}));
    EXPECT_EQ(Words("rw /other a b"), (Texts{"rw", "/other", "a", "b"}));
}

TEST(CommandLine, AWordKnowsWhereItEndsAndWhetherItWasQuoted) {
    const auto words = SplitCommandLine(R"( a "b c" d)");
    ASSERT_EQ(words.size(), 3U);
    EXPECT_EQ(words[0].End, 2U);
    EXPECT_FALSE(words[0].IsQuoted);
    EXPECT_EQ(words[1].End, 8U);
    EXPECT_TRUE(words[1].IsQuoted);
    EXPECT_EQ(words[2].End, 10U);
}

}  // namespace
}  // namespace orvelle::linux
