// One table of names serves whoever shows a key and whoever tells it over a link.
#include "adapters/shared/KeyNames.h"

#include <gtest/gtest.h>

#include <map>
#include <string_view>

#include "adapters/shared/ScanCodes.h"

namespace orvelle {
namespace {

// Code by name, of all keys.
std::map<std::string_view, Long> AllNames() {
    std::map<std::string_view, Long> names;
    for (Long code = 0; code < KeyCodes; ++code) {
        const std::string_view name = DescribeKey(code).Name;
        if (name.empty()) continue;
        const auto [other, isNew] = names.emplace(name, code);
        EXPECT_TRUE(isNew) << name << " is " << other->second << " and " << code;
    }
    return names;
}

TEST(KeyNames, EachKeyHasOneThatLeadsBackToIt) {
    const auto names = AllNames();
    EXPECT_GT(names.size(), 120U);
    for (const auto& [name, code] : names) {
        EXPECT_EQ(DescribeKey(code).Name, name);
        const Long key = LinuxKeyOfScanCode(code);
        EXPECT_NE(key, 0) << name;
        EXPECT_EQ(DescribeKey(ScanCodeOfLinuxKey(key)).Name, name);
    }
}

TEST(KeyNames, ACodeHasOneWhereThereIsAKey) {
    for (Long code = 0; code < KeyCodes; ++code)
        EXPECT_EQ(DescribeKey(code).Name.empty(), LinuxKeyOfScanCode(code) == 0) << code;
}

TEST(KeyNames, AreThoseOfAUsKeyboard) {
    const auto names = AllNames();
    for (const auto& [name, code] : std::map<std::string_view, Long>{{"Esc", 1},
                                                                     {"1", 2},
                                                                     {"A", 30},
                                                                     {"\\", 43},
                                                                     {"Ctrl", 29},
                                                                     {"Right Ctrl", 29 + ExtendedKey},
                                                                     {"Num 5", 76},
                                                                     {"Num Enter", 28 + ExtendedKey},
                                                                     {"Enter", 28},
                                                                     {"F8", 66},
                                                                     {"F24", 118},
                                                                     {"Pause", 69},
                                                                     {"Num Lock", 69 + ExtendedKey},
                                                                     {"Left Windows", 91 + ExtendedKey}})
        EXPECT_EQ(names.at(name), code) << name;
}

// Whatever else a layout changes, it leaves those of more than one letter alone; "Ro" and "Yen" stand for a character.
TEST(KeyNames, OfOneCharacterAreThoseOfCharacterKeys) {
    for (const auto& [name, code] : AllNames()) {
        const bool isCharacter = name.size() == 1 || name == "Ro" || name == "Yen";
        EXPECT_EQ(DescribeKey(code).IsCharacter, isCharacter) << name;
    }
}

TEST(KeyNames, OutOfRangeAreNone) {
    for (const Long code : {-1, 0, 84, 512, 100000}) {
        EXPECT_EQ(DescribeKey(code).Name, "");
        EXPECT_FALSE(DescribeKey(code).IsCharacter);
    }
}

}  // namespace
}  // namespace orvelle
