#include "adapters/linux/LastWord.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <memory>

namespace orvelle::linux {
namespace {

TEST(LastWordTest, IsNothingUntilItIsSaid) {
    const LastWord word;
    EXPECT_EQ(LastWord::Read(word.Descriptor()), std::nullopt);
}

TEST(LastWordTest, IsWhatTheProcessFailedBy) {
    LastWord word;
    word.SayFailed("It failed.");
    word.SayOrderly();
    EXPECT_EQ(LastWord::Read(word.Descriptor()), "It failed.");
}

TEST(LastWordTest, OfAnOrderlyEndStaysOrderly) {
    LastWord word;
    word.SayOrderly();
    word.SayFailed("A clean-up failed.");
    EXPECT_EQ(LastWord::Read(word.Descriptor()), "");
}

TEST(LastWordTest, OfAnExitThatDestroysItIsOrderly) {
    auto word = std::make_unique<LastWord>();
    const FileDescriptor outlives(dup(word->Descriptor()));
    word.reset();
    EXPECT_EQ(LastWord::Read(outlives.Number()), "");
}

TEST(LastWordTest, ThatIsLongIsCut) {
    LastWord word;
    word.SayFailed(std::string(100'000, 'x'));
    EXPECT_EQ(LastWord::Read(word.Descriptor()), std::string(4095, 'x'));
}

}  // namespace
}  // namespace orvelle::linux
