// An index that an array lacks is a run-time error, where the language itself would read somebody else's memory.
#include "platform/CheckedArray.h"

#include <gtest/gtest.h>

#include <string>

namespace orvelle {
namespace {

TEST(CheckedArrayTest, HoldsWhatWasPutAndIsEmptyAtFirst) {
    CheckedArray<std::string, 2> texts;
    EXPECT_EQ(texts[0] + texts[1], "");
    texts[1] = "COM2";
    const CheckedArray<std::string, 2>& read = texts;
    EXPECT_EQ(read[1], "COM2");
    texts.Fill("both");
    EXPECT_EQ(read[0] + read[1], "bothboth");
}

TEST(CheckedArrayTest, AnIndexBeyondItIsASubscriptError) {
    CheckedArray<bool, 3> flags;
    for (const Long index : {-1, 3, 100}) {
        try {
            flags[index] = true;
            FAIL() << "there is an element " << index;
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.Number, 9);
        }
    }
}

}  // namespace
}  // namespace orvelle
