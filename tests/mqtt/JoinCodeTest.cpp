#include "adapters/mqtt/JoinCode.h"

#include <gtest/gtest.h>

namespace orvelle::mqtt {
namespace {

const JoinCode Seven{7, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}};
const std::string SevenText = "0W00-20G3-0G2G-C1R8-1450-P32A";

TEST(JoinCodeTest, IsANumberAndAKey) {
    EXPECT_EQ(WriteJoinCode(Seven), SevenText);
    EXPECT_EQ(ReadJoinCode(SevenText), Seven);
}

TEST(JoinCodeTest, GoesBothWaysForEveryComputer) {
    for (int number = 1; number <= 99; ++number) {
        JoinCode code{number, {}};
        for (std::size_t place = 0; place < code.Key.size(); ++place)
            code.Key[place] = static_cast<unsigned char>(255 - number * 37 - static_cast<int>(place) * 101);
        EXPECT_EQ(ReadJoinCode(WriteJoinCode(code)), code) << number;
    }
}

TEST(JoinCodeTest, MayBeTypedAsAPersonTypes) {
    for (const char* typed :
         {"0w00-20g3-0g2g-c1r8-1450-p32a", "0W0020G30G2GC1R81450P32A", "OWOO-2oG3-oG2G-CIR8-L450-P32A",
          "ow00-20g3-0g2g-clr8-i450-p32a", "  0W00 20G3 0G2G C1R8 1450 P32A\r\n",
          "0-W-0-0-2-0-G-3-0-G-2-G-C-1-R-8-1-4-5-0-P-3-2-A-", "0W00--20G3\t0G2G  C1R8-1450-P32A"})
        EXPECT_EQ(ReadJoinCode(typed), Seven) << typed;
}

TEST(JoinCodeTest, IsTakenForMistypedWhereAnyCharacterIsAnother) {
    const std::string digits = "0123456789ABCDEFGHJKMNPQRSTVWXYZ";
    for (std::size_t place = 0; place < SevenText.size(); ++place) {
        if (SevenText[place] == '-') continue;
        for (const char digit : digits + "U*_.") {
            std::string typed = SevenText;
            typed[place] = digit;
            EXPECT_EQ(ReadJoinCode(typed).has_value(), typed == SevenText) << typed;
        }
    }
}

TEST(JoinCodeTest, IsTakenForMistypedWhereNeighboursAreSwapped) {
    for (std::size_t place = 0; place + 1 < SevenText.size(); ++place) {
        std::string typed = SevenText;
        std::swap(typed[place], typed[place + 1]);
        const bool isSame = typed == SevenText || SevenText[place] == '-' || SevenText[place + 1] == '-';
        EXPECT_EQ(ReadJoinCode(typed).has_value(), isSame) << typed;
    }
}

TEST(JoinCodeTest, HasTwentyFourCharacters) {
    for (const std::string& typed :
         {std::string(), std::string("-"), SevenText.substr(1), SevenText + "0", SevenText + SevenText,
          SevenText.substr(0, 28), std::string(24, 'Z'), std::string(1000000, '0'), SevenText + std::string(1, '\0'),
          SevenText + "\xC2\xA0"})
        EXPECT_FALSE(ReadJoinCode(typed)) << typed.substr(0, 60);
}

TEST(JoinCodeTest, StandsForAComputerOfTheSetUp) {
    for (const int number : {0, 100, 255}) EXPECT_FALSE(ReadJoinCode(WriteJoinCode({number, Seven.Key}))) << number;
}

TEST(KeyTest, IsHexadecimalDigits) {
    EXPECT_EQ(WriteKey(Seven.Key), "000102030405060708090a0b0c");
    EXPECT_EQ(ReadKey("000102030405060708090a0b0c"), Seven.Key);
    EXPECT_EQ(ReadKey("000102030405060708090A0B0C"), Seven.Key);
    for (const char* text :
         {"", "00", "000102030405060708090a0b0", "000102030405060708090a0b0c0", "000102030405060708090a0b0c0d",
          "000102030405060708090a0b0g", " 00102030405060708090a0b0c"})
        EXPECT_FALSE(ReadKey(text)) << text;
}

}  // namespace
}  // namespace orvelle::mqtt
