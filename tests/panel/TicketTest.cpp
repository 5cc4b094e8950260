// Whoever attaches gets a ticket; its end ends the attachment.
#include "platform/Ticket.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace orvelle {
namespace {

class TicketTest : public testing::Test {
protected:
    Ticket Begin(const std::string& what) {
        return attachment->Begin([this, what](int number) { happened += what + std::to_string(number) + ";"; },
                                 [this] { happened += "end;"; });
    }

    std::optional<Attachment<int>> attachment{std::in_place};
    std::string happened;
};

TEST_F(TicketTest, IsCalledUntilItEndsAndEndsOnce) {
    Ticket ticket = Begin("call ");
    (*attachment)(1);
    (*attachment)(2);
    EXPECT_FALSE(attachment->HasEnded());
    ticket.End();
    EXPECT_TRUE(attachment->HasEnded());
    ticket.End();
    (*attachment)(3);
    EXPECT_EQ(happened, "call 1;call 2;end;");
}

TEST_F(TicketTest, EndsWithItsLastPlace) {
    {
        Ticket first = Begin("call ");
        const Ticket second = std::move(first);
        first.End();
        (*attachment)(1);
    }
    (*attachment)(2);
    EXPECT_EQ(happened, "call 1;end;");
}

TEST_F(TicketTest, EndsWhenAnotherTakesItsPlace) {
    Ticket ticket = Begin("call ");
    Attachment<int> other;
    ticket = other.Begin([this](int) { happened += "other;"; });
    (*attachment)(1);
    other(1);
    EXPECT_EQ(happened, "end;other;");
}

TEST_F(TicketTest, OutlivesTheSource) {
    Ticket ticket = Begin("call ");
    attachment.reset();
    EXPECT_EQ(happened, "");
    ticket.End();
    EXPECT_EQ(happened, "end;");
}

TEST_F(TicketTest, OfNothingEndsWithoutHarm) {
    Ticket ticket;
    ticket.End();
    EXPECT_TRUE(attachment->HasEnded());
    (*attachment)(1);
    EXPECT_EQ(happened, "");
}

TEST_F(TicketTest, EndsInsideTheCallWhichKeepsWhatItHolds) {
    const auto held = std::make_shared<std::string>("held;");
    Attachment<> source;
    Ticket ticket = source.Begin([&, held] {
        ticket.End();
        happened += source.HasEnded() ? "ended;" : "stands;";
        source();
        happened += *held;
    });
    source();
    EXPECT_EQ(happened, "ended;held;");
    EXPECT_EQ(held.use_count(), 1);
}

TEST_F(TicketTest, ACopyIsOfTheSameAttachment) {
    Ticket ticket = Begin("call ");
    const Attachment<int> copy = *attachment;
    attachment.reset();
    copy(1);
    ticket.End();
    copy(2);
    EXPECT_EQ(happened, "call 1;end;");
}

TEST_F(TicketTest, TheCallMayEndTheSource) {
    Ticket ticket = attachment->Begin([this](int) {
        attachment.reset();
        happened += "source gone;";
    });
    (*attachment)(1);
    EXPECT_EQ(happened, "source gone;");
}

}  // namespace
}  // namespace orvelle
