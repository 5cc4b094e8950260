#include "replay/Scanner.h"

#include <gtest/gtest.h>

namespace orvelle::replay {
namespace {

std::string Read(const std::string& value) {
    Scanner scanner(value);
    std::string printed = scanner.AnyValue().Printed();
    scanner.ExpectEnd();
    return printed;
}

// The message of the LineError that reading the value throws.
std::string Complaint(const std::string& value) {
    try {
        return "none, but " + Read(value);
    } catch (const LineError& error) {
        return error.what();
    }
}

TEST(Comment, StartsAtTheLinesStartOrAfterABlankOutsideQuotes) {
    EXPECT_EQ(WithoutComment("# all of it"), "");
    EXPECT_EQ(WithoutComment("load # now"), "load");
    EXPECT_EQ(WithoutComment("load\t# now"), "load");
    EXPECT_EQ(WithoutComment("store \"a # b\" \"c\" 1#2 # end"), "store \"a # b\" \"c\" 1#2");
    EXPECT_EQ(WithoutComment("text X \"a \"\" # b\""), "text X \"a \"\" # b\"");
}

TEST(Comment, GoesWithTheBlanksAroundTheLine) {
    EXPECT_EQ(WithoutComment("  load \t\r"), "load");
    EXPECT_EQ(WithoutComment(" \t "), "");
}

TEST(Scanner, ReadsTexts) {
    EXPECT_EQ(Read(R"("")"), R"("")");
    EXPECT_EQ(Read(R"("say ""no"" to C:\x")"), R"("say ""no"" to C:\x")");
    EXPECT_EQ(Read(R"("a{10}b{34}{233}")"), "\"a{10}b\"\"\xe9\"");
}

TEST(Scanner, TakesABraceThatNamesNoCodeAsItStands) { EXPECT_EQ(Read(R"("{} {a} {1 {")"), R"("{} {a} {1 {")"); }

TEST(Scanner, ReadsNumbersAndBooleans) {
    EXPECT_EQ(Read("12"), "12");
    EXPECT_EQ(Read("-1"), "-1");
    EXPECT_EQ(Read("0x80000002"), "-2147483646");
    EXPECT_EQ(Read("0xFF"), "255");
    EXPECT_EQ(Read("12.50"), "12.5");
    EXPECT_EQ(Read("-0.25"), "-0.25");
    EXPECT_EQ(Read("True"), "True");
    EXPECT_EQ(Read("False"), "False");
}

TEST(Scanner, ReadsTheWholeRangeOfNumbers) {
    EXPECT_EQ(Read("2147483647"), "2147483647");
    EXPECT_EQ(Read("-2147483648"), "-2147483648");
    EXPECT_EQ(Complaint("2147483648"), "2147483648 is out of the range of a 32-bit number");
    EXPECT_EQ(Complaint("-2147483649"), "-2147483649 is out of the range of a 32-bit number");
    EXPECT_EQ(Complaint("0x100000000"), "0x100000000 is out of the range of a 32-bit number");
    EXPECT_EQ(Complaint("99999999999999999999"), "99999999999999999999 is out of the range of a 32-bit number");
}

TEST(Scanner, RefusesWhatIsNoValue) {
    EXPECT_EQ(Complaint(""), "a value is missing at the end");
    EXPECT_EQ(Complaint("true"), "true is no value");
    EXPECT_EQ(Complaint("12a"), "12a is no whole number");
    EXPECT_EQ(Complaint("-"), "- is no whole number");
    EXPECT_EQ(Complaint("0x"), "0x is no whole number");
    EXPECT_EQ(Complaint("0x-1"), "0x-1 is no whole number");
    EXPECT_EQ(Complaint("1."), "1. is no number");
    EXPECT_EQ(Complaint("-.5"), "-.5 is no number");
    EXPECT_EQ(Complaint("1.2.3"), "1.2.3 is no number");
    EXPECT_EQ(Complaint("\"open"), "the text has no closing quote");
    EXPECT_EQ(Complaint("\"open\"\""), "the text has no closing quote");
    EXPECT_EQ(Complaint("\"{256}\""), "{256} is no character");
    EXPECT_EQ(Complaint("1 2"), "nothing is expected where \"2\" stands");
    EXPECT_EQ(Complaint("(1)"), "a value is missing before \"(1)\"");
}

TEST(Scanner, ReadsReferences) {
    Scanner scanner("Velmarc.FSKeyDown( False ,True, \"A\",\"Ctrl+A\") rest");
    const Reference reference = scanner.AnyReference();
    ASSERT_EQ(reference.Parts.size(), 2u);
    EXPECT_FALSE(reference.Parts[0].Arguments);
    EXPECT_EQ(reference.Printed(), R"(Velmarc.FSKeyDown(False, True, "A", "Ctrl+A"))");
    EXPECT_EQ(scanner.Word(), "rest");
    EXPECT_TRUE(scanner.AtEnd());
}

TEST(Scanner, TellsNoArgumentsFromNone) {
    EXPECT_TRUE(Scanner("A()").AnyReference().Parts[0].Arguments);
    EXPECT_FALSE(Scanner("A").AnyReference().Parts[0].Arguments);
}

TEST(Scanner, ReadsElementsOfArraysWithWhatIsBehindThem) {
    EXPECT_EQ(Scanner("RadioVoice(0).Server").PlainReference(), "RadioVoice(0).Server");
}

TEST(Scanner, RefusesWhatIsNoReference) {
    EXPECT_THROW(Scanner("").AnyReference(), LineError);
    EXPECT_THROW(Scanner("9a").AnyReference(), LineError);
    EXPECT_THROW(Scanner("a.").AnyReference(), LineError);
    EXPECT_THROW(Scanner("a(1").AnyReference(), LineError);
    EXPECT_THROW(Scanner("a(1,)").AnyReference(), LineError);
}

TEST(Scanner, NamesWhatIsMissing) {
    Scanner scanner("= 1");
    EXPECT_THROW(scanner.Expect('('), LineError);
    scanner.Expect('=');
    EXPECT_EQ(scanner.WholeNumber(0, 2), 1);
    EXPECT_THROW(scanner.Word(), LineError);
    EXPECT_THROW(Scanner("3").WholeNumber(0, 2), LineError);
}

}  // namespace
}  // namespace orvelle::replay
