#include "adapters/shared/ScanCodes.h"

#include <gtest/gtest.h>

namespace orvelle::qt {
namespace {

TEST(ScanCodesTest, EachKeyHasOneCodeAndComesBack) {
    int keys = 0;
    for (Long key = 0; key < KeyCodes; ++key) {
        const Long code = ScanCodeOfLinuxKey(key);
        if (code == 0) continue;
        ++keys;
        EXPECT_EQ(LinuxKeyOfScanCode(code), key);
    }
    for (Long code = 0; code < KeyCodes; ++code) {
        const Long key = LinuxKeyOfScanCode(code);
        EXPECT_TRUE(key == 0 || ScanCodeOfLinuxKey(key) == code) << code;
    }
    EXPECT_GT(keys, 120);
}

struct Pair {
    Long Key;
    Long Code;
};

TEST(ScanCodesTest, TheKeysOfACommonKeyboard) {
    for (const auto& [key, code] :
         {Pair{1, 1},     Pair{29, 29},   Pair{97, 285},  Pair{42, 42},   Pair{54, 54},   Pair{56, 56},
          Pair{100, 312}, Pair{119, 69},  Pair{69, 325},  Pair{70, 70},   Pair{99, 311},  Pair{103, 328},
          Pair{108, 336}, Pair{105, 331}, Pair{106, 333}, Pair{102, 327}, Pair{107, 335}, Pair{110, 338},
          Pair{111, 339}, Pair{104, 329}, Pair{109, 337}, Pair{96, 284},  Pair{98, 309},  Pair{55, 55},
          Pair{76, 76},   Pair{125, 347}, Pair{126, 348}, Pair{127, 349}, Pair{59, 59},   Pair{68, 68},
          Pair{87, 87},   Pair{88, 88},   Pair{183, 100}, Pair{86, 86}})
        EXPECT_EQ(ScanCodeOfLinuxKey(key), code) << "key " << key;
}

TEST(ScanCodesTest, OutOfRangeIsNoKey) {
    for (const Long number : {-1, 0, 512, 100000}) {
        EXPECT_EQ(ScanCodeOfLinuxKey(number), 0);
        EXPECT_EQ(LinuxKeyOfScanCode(number), 0);
    }
    EXPECT_EQ(LinuxKeyOfScanCode(511), 0);
}

}  // namespace
}  // namespace orvelle::qt
