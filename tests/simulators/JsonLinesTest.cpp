#include "simulators/flightgear/JsonLines.h"

#include <gtest/gtest.h>

namespace orvelle::simulators {
namespace {

TEST(JsonLinesTest, EachValueKnowsItsLine) {
    const JsonLines json("\n{\"a\": 1,\n\"b\": [2,\n3\n,\n{\"c\":\n\"x\"}\n],\n\"d\": true}\n");
    ASSERT_FALSE(json.Whole().is_discarded());
    EXPECT_EQ(json.Whole()["b"][2]["c"], "x");
    EXPECT_EQ(json.LineOf(""), 2U);
    EXPECT_EQ(json.LineOf("/a"), 2U);
    EXPECT_EQ(json.LineOf("/b"), 3U);
    EXPECT_EQ(json.LineOf("/b/0"), 3U);
    EXPECT_EQ(json.LineOf("/b/1"), 4U);
    EXPECT_EQ(json.LineOf("/b/2"), 6U);
    EXPECT_EQ(json.LineOf("/b/2/c"), 7U);
    EXPECT_EQ(json.LineOf("/d"), 9U);
}

TEST(JsonLinesTest, WhatIsNotThereIsAtTheLineAroundIt) {
    const JsonLines json("{\n\"a\": {\n}}");
    EXPECT_EQ(json.LineOf("/a/b/c"), 2U);
    EXPECT_EQ(json.LineOf("/x"), 1U);
}

TEST(JsonLinesTest, WhatIsNoJsonIsNamedByTheLineWhereItBreaks) {
    const JsonLines json("{\n\"a\": 1\n\"b\": 2}");
    EXPECT_TRUE(json.Whole().is_discarded());
    EXPECT_EQ(json.LineOf(""), 3U);
}

}  // namespace
}  // namespace orvelle::simulators
