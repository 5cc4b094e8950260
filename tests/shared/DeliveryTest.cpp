#include <gtest/gtest.h>

#include <optional>
#include <vector>

#include "adapters/shared/Changes.h"
#include "adapters/shared/Delivery.h"
#include "tests/shared/HandLoop.h"

namespace orvelle {
namespace {

class DeliveryTest : public testing::Test {
protected:
    void Raise(int number) {
        delivery->Raise([this, number] { brought.push_back(number); });
    }

    HandLoop loop;
    std::optional<Delivery> delivery{loop};
    std::vector<int> brought;
};

TEST_F(DeliveryTest, BringsNothingInsideTheCall) {
    Raise(1);
    EXPECT_TRUE(brought.empty());
    loop.Run();
    EXPECT_EQ(brought, std::vector{1});
}

TEST_F(DeliveryTest, KeepsTheOrderWhenTheDelayShrinks) {
    delivery->SetDelay(500);
    Raise(1);
    delivery->SetDelay(0);
    Raise(2);
    loop.Run(500);
    EXPECT_EQ(brought, (std::vector{1, 2}));
}

TEST_F(DeliveryTest, WaitsForItsDelay) {
    delivery->SetDelay(500);
    Raise(1);
    loop.Run(499);
    EXPECT_TRUE(brought.empty());
    loop.Run(1);
    EXPECT_EQ(brought, std::vector{1});
}

TEST_F(DeliveryTest, ForgetsWhatWasDroppedAndTakesNewEvents) {
    Raise(1);
    delivery->RaiseAfter(0, [this] { brought.push_back(2); });
    delivery->Drop();
    Raise(3);
    loop.Run();
    EXPECT_EQ(brought, std::vector{3});
}

TEST_F(DeliveryTest, BringsNothingAfterItsEnd) {
    Raise(1);
    delivery->RaiseAfter(10, [this] { brought.push_back(2); });
    delivery.reset();
    loop.Run(100);
    EXPECT_TRUE(brought.empty());
}

TEST_F(DeliveryTest, EndsInsideAnEventOfItsOwn) {
    delivery->Raise([this] { delivery.reset(); });
    Raise(1);
    loop.Run();
    EXPECT_TRUE(brought.empty());
}

TEST(ChangesTest, TellsEachObserverOnceForABurst) {
    HandLoop loop;
    Changes changes(loop);
    int first = 0;
    int second = 0;
    const auto firstTicket = changes.Observe([&] { ++first; });
    auto secondTicket = changes.Observe([&] { ++second; });
    changes.Mark();
    changes.Mark();
    EXPECT_EQ(first, 0);
    loop.Run();
    EXPECT_EQ(first, 1);
    EXPECT_EQ(second, 1);
    secondTicket.End();
    changes.Mark();
    loop.Run();
    EXPECT_EQ(first, 2);
    EXPECT_EQ(second, 1);
}

TEST(ChangesTest, PostsNothingWithoutObservers) {
    HandLoop loop;
    Changes changes(loop);
    auto ticket = changes.Observe([] {});
    ticket.End();
    changes.Mark();
    EXPECT_TRUE(loop.Idle());
}

TEST(ChangesTest, AnObserverMayChangeThingsAndLetGo) {
    HandLoop loop;
    Changes changes(loop);
    int told = 0;
    Ticket ticket = changes.Observe([&] {
        if (++told == 1)
            changes.Mark();
        else
            ticket.End();
    });
    changes.Mark();
    loop.Run();
    changes.Mark();
    loop.Run();
    EXPECT_EQ(told, 2);
}

}  // namespace
}  // namespace orvelle
