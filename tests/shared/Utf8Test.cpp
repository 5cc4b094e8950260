#include "adapters/shared/Utf8.h"

#include <gtest/gtest.h>

namespace orvelle {
namespace {

TEST(Utf8Test, IsWhatUnicodeSays) {
    for (const std::string_view text :
         {"", "F8", "\x7F", "\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xED\x9F\xBF", "\xEE\x80\x80", "\xEF\xBF\xBF",
          "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF", "M\xC3\xBCnchen"})
        EXPECT_TRUE(IsUtf8(text)) << text;
    EXPECT_TRUE(IsUtf8(std::string(3, '\0')));
}

TEST(Utf8Test, IsNothingElse) {
    for (const std::string_view text : {
             "\x80",              // a continuation alone
             "M\xFCnchen",        // Latin-1
             "\xC3",              // no end
             "\xC3(",             // another character instead of the end
             "\xC0\xAF",          // two bytes where one does
             "\xC1\xBF",          // the same
             "\xE0\x9F\xBF",      // three where two do
             "\xF0\x8F\xBF\xBF",  // four where three do
             "\xED\xA0\x80",      // a surrogate
             "\xED\xBF\xBF",      // the last of them
             "\xF4\x90\x80\x80",  // beyond the last character
             "\xF5\x80\x80\x80",  // the same
             "\xE2\x82",          // no end
             "\xF0\x9F\x98",      // the same
             "\xFF",
         })
        EXPECT_FALSE(IsUtf8(text)) << text;
}

TEST(Utf8Test, ATextThatIsNoneIsTakenForLatin1) {
    EXPECT_EQ(ToUtf8("M\xC3\xBCnchen"), "M\xC3\xBCnchen");
    EXPECT_EQ(ToUtf8("M\xFCnchen"), "M\xC3\xBCnchen");
    EXPECT_EQ(ToUtf8("\x7F\x80\xBF\xC0\xFF"), "\x7F\xC2\x80\xC2\xBF\xC3\x80\xC3\xBF");
    EXPECT_EQ(ToUtf8(""), "");
    for (int byte = 0; byte < 256; ++byte) EXPECT_TRUE(IsUtf8(ToUtf8(std::string(3, static_cast<char>(byte))))) << byte;
}

TEST(Utf8Test, CountsAndCutsCharacters) {
    const std::string text = "a\xC3\xBC\xE2\x82\xAC\xF0\x9F\x98\x80";
    EXPECT_EQ(CharactersOf(text), 4U);
    EXPECT_EQ(CharactersOf(""), 0U);
    EXPECT_EQ(FirstCharacters(text, 0), "");
    EXPECT_EQ(FirstCharacters(text, 1), "a");
    EXPECT_EQ(FirstCharacters(text, 3), "a\xC3\xBC\xE2\x82\xAC");
    EXPECT_EQ(FirstCharacters(text, 4), text);
    EXPECT_EQ(FirstCharacters(text, 5), text);
}

}  // namespace
}  // namespace orvelle
