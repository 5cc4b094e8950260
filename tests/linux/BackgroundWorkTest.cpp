// Work on a thread of its own, for a real loop.
#include "adapters/shared/BackgroundWork.h"

#include <gtest/gtest.h>

#include <future>
#include <optional>
#include <thread>

#include "tests/linux/ServeUntil.h"
#include "tests/linux/WithoutThreads.h"

namespace orvelle::linux {
namespace {

class BackgroundWorkTest : public testing::Test {
protected:
    void Begin(std::function<void()> task) {
        work.emplace(loop, std::move(task), [this] {
            ++done;
            work.reset();
        });
    }
    // Until another one's end was told.
    void Settle() {
        bool isOver = false;
        const BackgroundWork other(
            loop, [] {}, [&isOver] { isOver = true; });
        EXPECT_TRUE(ServeUntil(loop, [&isOver] { return isOver; }));
    }

    PollEventLoop loop;
    std::optional<BackgroundWork> work;
    int done = 0;
};

TEST_F(BackgroundWorkTest, IsDoneElsewhereAndToldOnceFromTheLoop) {
    std::promise<std::thread::id> where;
    Begin([&where] { where.set_value(std::this_thread::get_id()); });
    EXPECT_NE(where.get_future().get(), std::this_thread::get_id());
    EXPECT_EQ(done, 0);
    EXPECT_TRUE(ServeUntil(loop, [this] { return done == 1; }));
    Settle();
    EXPECT_EQ(done, 1);
}

TEST_F(BackgroundWorkTest, MayOutliveItsAsker) {
    const auto gate = std::make_shared<std::promise<void>>();
    const auto ended = std::make_shared<std::promise<void>>();
    Begin([gate, ended] {
        gate->get_future().wait();
        ended->set_value();
    });
    work.reset();
    gate->set_value();
    ended->get_future().wait();
    Settle();
    EXPECT_EQ(done, 0);
}

TEST_F(BackgroundWorkTest, ItsEndIsToldAlsoWhereItCannotBegin) {
    const WithoutThreads without;
    bool isDone = false;
    Begin([&isDone] { isDone = true; });
    EXPECT_EQ(done, 0);
    EXPECT_TRUE(ServeUntil(loop, [this] { return done == 1; }));
    EXPECT_FALSE(isDone);
}

}  // namespace
}  // namespace orvelle::linux
