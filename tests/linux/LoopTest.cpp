#include "adapters/linux/PollEventLoop.h"
#include "platform/RuntimeError.h"
#include "tests/shared/EventLoopDescriptorCases.h"
#include "tests/shared/EventLoopTaskCases.h"

namespace orvelle::linux {
namespace {

// Looks at the condition every millisecond, as the loop's own task.
class PollDriver {
public:
    static std::unique_ptr<EventLoop> NewLoop() { return std::make_unique<PollEventLoop>(); }

    bool Until(EventLoop& loop, const std::function<bool()>& isTrue) {
        constexpr Long Bound = 60'000;
        auto& served = static_cast<PollEventLoop&>(loop);
        bool isOver = isTrue();
        const Ticket bound = served.After(Bound, [&] {
            isOver = true;
            served.Stop();
        });
        Ticket look;
        const std::function<void()> lookAgain = [&] {
            isOver = isTrue();
            if (isOver)
                served.Stop();
            else
                look = served.After(1, lookAgain);
        };
        look = served.After(0, lookAgain);
        while (!isOver) try {
                served.Run();
            } catch (const RuntimeError& error) {
                Failures.push_back(error.Number);
            }
        return isTrue();
    }

    std::vector<int> Failures;
};

}  // namespace
}  // namespace orvelle::linux

namespace orvelle {
namespace {

INSTANTIATE_TYPED_TEST_SUITE_P(ByPoll, EventLoopTasks, linux::PollDriver);
INSTANTIATE_TYPED_TEST_SUITE_P(ByPoll, EventLoopDescriptors, linux::PollDriver);

TEST(PollEventLoopTest, WhatWaitsWhenItIsStoppedStaysForTheNextRun) {
    linux::PollEventLoop loop;
    std::vector<int> ran;
    loop.Post([&] {
        ran.push_back(1);
        loop.Stop();
        ran.push_back(2);
    });
    loop.Post([&] {
        ran.push_back(3);
        loop.Stop();
    });
    loop.Run();
    EXPECT_EQ(ran, (std::vector{1, 2}));
    loop.Run();
    EXPECT_EQ(ran, (std::vector{1, 2, 3}));
}

TEST(PollEventLoopTest, IsStoppedByALaterTaskAndByADescriptor) {
    linux::PollEventLoop loop;
    const Ticket later = loop.After(1, [&] { loop.Stop(); });
    loop.Run();
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe(ends.data()), 0);
    {
        const Ticket writable = loop.WhenWritable(ends[1], [&] { loop.Stop(); });
        loop.Run();
    }
    for (const int end : ends) close(end);
}

}  // namespace
}  // namespace orvelle
