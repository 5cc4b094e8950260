// Tasks of an event loop: their order, their tickets and their errors.
#pragma once

#include <optional>

#include "platform/RuntimeError.h"
#include "tests/shared/EventLoopRig.h"

namespace orvelle {

template <typename Driver>
class EventLoopTasks : public EventLoopRig<Driver> {};
TYPED_TEST_SUITE_P(EventLoopTasks);

TYPED_TEST_P(EventLoopTasks, RunInOrderAndNeverInsideTheCall) {
    Ticket fourth;
    this->loop->Post([&] {
        this->ran.push_back(1);
        this->loop->Post(this->Note(3));
        fourth = this->loop->After(0, this->Note(4));
        this->loop->Post(this->Note(5));
        this->ran.push_back(2);
    });
    EXPECT_TRUE(this->ran.empty());
    EXPECT_TRUE(this->RunUntil([this] { return this->ran.size() == 5; }));
    EXPECT_EQ(this->ran, (std::vector{1, 2, 3, 4, 5}));
}

TYPED_TEST_P(EventLoopTasks, LaterOnesRunByTheirTimeAndThoseOfOneMomentInOrder) {
    std::vector<Ticket> tickets;
    tickets.push_back(this->loop->After(60, this->Note(4)));
    for (const int number : {1, 2, 3}) tickets.push_back(this->loop->After(20, this->Note(number)));
    tickets.push_back(this->loop->After(-5, this->Note(0)));
    EXPECT_TRUE(this->ran.empty());
    EXPECT_TRUE(this->RunUntil([this] { return this->ran.size() == 5; }));
    EXPECT_EQ(this->ran, (std::vector{0, 1, 2, 3, 4}));
}

TYPED_TEST_P(EventLoopTasks, RunOnceThoughTheTicketIsKept) {
    const Ticket now = this->loop->After(0, this->Note(1));
    const Ticket later = this->loop->After(1, this->Note(2));
    this->Settle(5);
    this->Settle(5);
    EXPECT_EQ(this->ran, (std::vector{1, 2}));
}

TYPED_TEST_P(EventLoopTasks, ThatAreCancelledBeforeDoNotRun) {
    for (const Long time : {0, 5}) {
        Ticket ended = this->loop->After(time, this->Note(1));
        Ticket replaced = this->loop->After(time, this->Note(2));
        replaced = this->loop->After(time, this->Note(3));
        { const Ticket left = this->loop->After(time, this->Note(4)); }
        ended.End();
        this->Settle(time);
        EXPECT_EQ(this->ran, std::vector{3});
        this->ran.clear();
    }
}

TYPED_TEST_P(EventLoopTasks, MayEndTheirOwnTicket) {
    for (const Long time : {0, 5}) {
        std::optional<Ticket> ticket;
        auto number = std::make_shared<int>(7);
        ticket = this->loop->After(time, [this, &ticket, number] {
            ticket.reset();
            this->ran.push_back(*number);
        });
        this->Settle(time);
        EXPECT_EQ(this->ran, std::vector{7});
        EXPECT_EQ(number.use_count(), 1);
        this->ran.clear();
    }
}

TYPED_TEST_P(EventLoopTasks, MayCancelOthersOfTheSameMoment) {
    for (const Long time : {0, 5}) {
        Ticket other;
        const Ticket first = this->loop->After(time, [&] {
            this->ran.push_back(1);
            other.End();
        });
        other = this->loop->After(time, this->Note(2));
        const Ticket last = this->loop->After(time, this->Note(3));
        this->Settle(time);
        EXPECT_EQ(this->ran, (std::vector{1, 3}));
        this->ran.clear();
    }
}

TYPED_TEST_P(EventLoopTasks, AreDestroyedWithTheirTicket) {
    const auto kept = std::make_shared<int>();
    Ticket now = this->loop->After(0, [kept] {});
    Ticket later = this->loop->After(5, [kept] {});
    EXPECT_EQ(kept.use_count(), 3);
    now.End();
    later.End();
    EXPECT_EQ(kept.use_count(), 1);
}

TYPED_TEST_P(EventLoopTasks, AreCancelledAfterTheirRunWithoutHarm) {
    Ticket ticket = this->loop->After(1, this->Note(1));
    this->Settle(5);
    ticket.End();
    ticket.End();
    this->Settle(5);
    EXPECT_EQ(this->ran, std::vector{1});
}

TYPED_TEST_P(EventLoopTasks, GoWithTheLoopBeforeTheirTickets) {
    this->loop->Post(this->Note(1));
    Ticket now = this->loop->After(0, this->Note(2));
    Ticket later = this->loop->After(1, this->Note(3));
    this->loop.reset();
    this->loop = this->driver.NewLoop();
    this->Settle(5);
    now.End();
    this->Settle(5);
    EXPECT_TRUE(this->ran.empty());
}

TYPED_TEST_P(EventLoopTasks, ThatFailHandTheErrorOnAndLeaveTheOthers) {
    this->loop->Post([] { throw RuntimeError(RuntimeError::TypeMismatch); });
    this->loop->Post(this->Note(1));
    const Ticket failing = this->loop->After(5, [] { throw RuntimeError(RuntimeError::Overflow); });
    const Ticket later = this->loop->After(5, this->Note(2));
    EXPECT_TRUE(this->RunUntil([this] { return this->ran.size() == 2; }));
    EXPECT_EQ(this->ran, (std::vector{1, 2}));
    EXPECT_EQ(this->driver.Failures, (std::vector<int>{RuntimeError::TypeMismatch, RuntimeError::Overflow}));
}

REGISTER_TYPED_TEST_SUITE_P(EventLoopTasks, RunInOrderAndNeverInsideTheCall,
                            LaterOnesRunByTheirTimeAndThoseOfOneMomentInOrder, RunOnceThoughTheTicketIsKept,
                            ThatAreCancelledBeforeDoNotRun, MayEndTheirOwnTicket, MayCancelOthersOfTheSameMoment,
                            AreDestroyedWithTheirTicket, AreCancelledAfterTheirRunWithoutHarm,
                            GoWithTheLoopBeforeTheirTickets, ThatFailHandTheErrorOnAndLeaveTheOthers);

}  // namespace orvelle
