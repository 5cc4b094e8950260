#include "replay/Value.h"

#include <gtest/gtest.h>

namespace orvelle::replay {
namespace {

TEST(Value, PrintsATextInQuotesThatAreDoubledInside) {
    EXPECT_EQ(Value("").Printed(), R"("")");
    EXPECT_EQ(Value("a \"b\" c").Printed(), R"("a ""b"" c")");
}

TEST(Value, PrintsABackslashAsItStands) { EXPECT_EQ(Value("C:\\RW\\roger.exe").Printed(), R"("C:\RW\roger.exe")"); }

TEST(Value, PrintsControlCharactersByTheirCode) {
    EXPECT_EQ(Value(std::string("tip\0", 4)).Printed(), R"("tip{0}")");
    EXPECT_EQ(Value("a\nb\x1f\x7f~ ").Printed(), R"("a{10}b{31}{127}~ ")");
}

TEST(Value, PrintsOtherBytesAsTheyStand) { EXPECT_EQ(Value("\xe9\xff").Printed(), "\"\xe9\xff\""); }

TEST(Value, PrintsWholeNumbersInDecimal) {
    EXPECT_EQ(Value(Long{-2147483647 - 1}).Printed(), "-2147483648");
    EXPECT_EQ(Value(Integer{-7}).Printed(), "-7");
}

TEST(Value, PrintsBooleans) {
    EXPECT_EQ(Value(true).Printed(), "True");
    EXPECT_EQ(Value(false).Printed(), "False");
}

TEST(Value, PrintsTheShortestDecimalThatReadsBackEqual) {
    EXPECT_EQ(Value(50.0).Printed(), "50");
    EXPECT_EQ(Value(12.5).Printed(), "12.5");
    EXPECT_EQ(Value(0.1).Printed(), "0.1");
    EXPECT_EQ(Value(-0.001).Printed(), "-0.001");
    EXPECT_EQ(Value(1e21).Printed(), "1000000000000000000000");
    EXPECT_EQ(Value(12.3f).Printed(), "12.3");
}

TEST(Value, PrintsARootOfTheRegistryInHexadecimal) {
    EXPECT_EQ(Value::Root(static_cast<Long>(0x80000002)).Printed(), "0x80000002");
}

TEST(Value, PrintsABareWordAsItStands) { EXPECT_EQ(Value::Word("ST").Printed(), "ST"); }

TEST(Value, RefusesToBeReadAsAnotherKind) { EXPECT_THROW(Value("5").As<Long>(), LineError); }

}  // namespace
}  // namespace orvelle::replay
