#include "adapters/mqtt/HeardDirectories.h"

#include <gtest/gtest.h>

#include "adapters/mqtt/Bounds.h"

namespace orvelle::mqtt {
namespace {

using Keys = std::vector<HeardDirectories::Key>;

TEST(HeardDirectoriesTest, ThoseThatTheBrokerHasNoMoreAreNamedOnce) {
    HeardDirectories heard;
    EXPECT_TRUE(heard.Take({1, "a"}, 10));
    EXPECT_TRUE(heard.Take({1, "b"}, 10));
    EXPECT_TRUE(heard.Take({2, "a"}, 10));
    heard.Begin();
    EXPECT_TRUE(heard.Take({1, "b"}, 20));
    EXPECT_TRUE(heard.Take({3, "new"}, 20));
    EXPECT_EQ(heard.End(), (Keys{{1, "a"}, {2, "a"}}));
    EXPECT_EQ(heard.End(), Keys());
    heard.Begin();
    EXPECT_TRUE(heard.Take({3, "new"}, 0));
    EXPECT_EQ(heard.End(), (Keys{{1, "b"}}));
}

TEST(HeardDirectoriesTest, AComputerHoldsNoMoreThanItMay) {
    HeardDirectories heard;
    for (std::size_t number = 0; number < bounds::DirectoriesOfOneComputer; ++number)
        EXPECT_TRUE(heard.Take({1, std::to_string(number)}, 1));
    EXPECT_FALSE(heard.Take({1, "one more"}, 1));
    EXPECT_TRUE(heard.Take({1, "7"}, 2)) << "it is there already";
    EXPECT_TRUE(heard.Take({2, "one more"}, bounds::Directory));
    EXPECT_FALSE(heard.Take({2, "a byte more"}, 1));
    EXPECT_FALSE(heard.Take({3, "too long"}, bounds::Directory + 1));
    EXPECT_TRUE(heard.Take({2, "one more"}, 0));
    EXPECT_TRUE(heard.Take({2, "a byte more"}, 1));
}

}  // namespace
}  // namespace orvelle::mqtt
