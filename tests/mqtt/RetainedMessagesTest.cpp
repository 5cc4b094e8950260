// How much a computer can make a panel keep.
#include "adapters/mqtt/RetainedMessages.h"

#include <gtest/gtest.h>

#include "adapters/mqtt/Bounds.h"

namespace orvelle::mqtt {
namespace {

Topic Record(int identity, Long number) {
    return {.Identity = identity, .From = Program::Panel, .Kind = TopicKind::Record, .Record = number};
}

TEST(RetainedMessages, RecordsOfOneComputerAreBoundedByTheirNumber) {
    RetainedMessages kept;
    Long number = 0;
    while (++number <= static_cast<Long>(bounds::RecordsOfOneComputer)) ASSERT_TRUE(kept.Take(Record(3, number), "{}"));
    EXPECT_FALSE(kept.Take(Record(3, number), "{}"));
    EXPECT_TRUE(kept.Take(Record(3, 1), R"({"a":1})")) << "one that is kept may change";
    EXPECT_TRUE(kept.Take(Record(4, number), "{}")) << "others have room";
    EXPECT_TRUE(kept.Take(Record(3, 7), ""));
    EXPECT_TRUE(kept.Take(Record(3, number), "{}")) << "what ends makes room";
    EXPECT_EQ(kept.All().size(), bounds::RecordsOfOneComputer + 1);
    kept.Clear();
    EXPECT_TRUE(kept.Take(Record(3, 5), "{}"));
}

TEST(RetainedMessages, RecordsOfOneComputerAreBoundedByTheirBytes) {
    RetainedMessages kept;
    const std::string greatest(bounds::Payload, ' ');
    const auto fitting = static_cast<Long>(bounds::BytesOfOneComputer / bounds::Payload);
    for (Long number = 1; number <= fitting; ++number) ASSERT_TRUE(kept.Take(Record(3, number), greatest));
    EXPECT_FALSE(kept.Take(Record(3, fitting + 1), "{}"));
    EXPECT_TRUE(kept.Take(Record(3, 1), "{}")) << "a smaller one in its place";
    EXPECT_TRUE(kept.Take(Record(3, fitting + 1), "{}"));
    EXPECT_FALSE(kept.Take(Record(3, 1), greatest));
    EXPECT_EQ(kept.All().at(WriteTopic(Record(3, 1))), "{}") << "what stood there stays";
}

TEST(RetainedMessages, EndsOfWhatIsNotThereCountForNothing) {
    RetainedMessages kept;
    for (int round = 0; round < 3; ++round) EXPECT_TRUE(kept.Take(Record(3, 1), ""));
    const Topic session{.Identity = 3, .From = Program::Simulator, .Kind = TopicKind::Session};
    EXPECT_TRUE(kept.Take(session, "{}"));
    EXPECT_TRUE(kept.Take(session, ""));
    EXPECT_TRUE(kept.All().empty());
    for (Long number = 1; number <= static_cast<Long>(bounds::RecordsOfOneComputer); ++number)
        ASSERT_TRUE(kept.Take(Record(3, number), "{}"));
}

}  // namespace
}  // namespace orvelle::mqtt
