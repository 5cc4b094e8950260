// The loop that tests drive by hand passes the cases of the real ones.
#include "tests/shared/HandLoop.h"

#include "platform/RuntimeError.h"
#include "tests/shared/EventLoopTaskCases.h"

namespace orvelle {
namespace {

struct HandDriver {
    static std::unique_ptr<EventLoop> NewLoop() { return std::make_unique<HandLoop>(); }
    bool Until(EventLoop& loop, const std::function<bool()>& isTrue) {
        constexpr int Bound = 20000;  // milliseconds of the loop's own clock
        for (int millisecond = 0; millisecond < Bound && !isTrue(); ++millisecond) try {
                static_cast<HandLoop&>(loop).Run(1);
            } catch (const RuntimeError& error) {
                Failures.push_back(error.Number);
            }
        return isTrue();
    }

    std::vector<int> Failures;
};

INSTANTIATE_TYPED_TEST_SUITE_P(ByHand, EventLoopTasks, HandDriver);

TEST(HandLoopTest, ADescriptorIsReadyWhenTheTestSaysSo) {
    HandLoop loop;
    std::vector<int> ran;
    Ticket reading = loop.WhenReadable(3, [&] { ran.push_back(1); });
    const Ticket writing = loop.WhenWritable(3, [&] { ran.push_back(2); });
    loop.Run(10);
    EXPECT_TRUE(ran.empty());
    loop.BringReadable(3);
    loop.BringWritable(3);
    loop.BringReadable(4);
    EXPECT_EQ(ran, (std::vector{1, 2}));
    reading.End();
    loop.BringReadable(3);
    EXPECT_EQ(ran, (std::vector{1, 2}));
}

TEST(HandLoopTest, IsIdleWhenAllThatWaitsIsCancelled) {
    HandLoop loop;
    Ticket ticket = loop.After(10, [] {});
    EXPECT_FALSE(loop.Idle());
    ticket.End();
    EXPECT_TRUE(loop.Idle());
    loop.Post([] {});
    EXPECT_FALSE(loop.Idle());
}

}  // namespace
}  // namespace orvelle
