// A list of observers tolerates all that an observer may do while it is told.
#include "platform/Observers.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "platform/RuntimeError.h"

namespace orvelle {
namespace {

class ObserversTest : public testing::Test {
protected:
    Ticket Attach(const std::string& name) {
        return observers->Attach([this, name](int number) { happened += name + std::to_string(number) + ";"; });
    }

    std::optional<Observers<int>> observers{std::in_place};
    std::string happened;
};

TEST_F(ObserversTest, AreToldInTheirOrderForAsLongAsTheirTicketsLive) {
    const Ticket first = Attach("a");
    Ticket second = Attach("b");
    const Ticket third = Attach("c");
    observers->Tell(1);
    second.End();
    observers->Tell(2);
    second = Attach("d");
    observers->Tell(3);
    EXPECT_EQ(happened, "a1;b1;c1;a2;c2;a3;c3;d3;");
}

TEST_F(ObserversTest, AreNoneWhenAllTicketsHaveEnded) {
    EXPECT_TRUE(observers->IsEmpty());
    Ticket ticket = Attach("a");
    EXPECT_FALSE(observers->IsEmpty());
    ticket.End();
    EXPECT_TRUE(observers->IsEmpty());
}

TEST_F(ObserversTest, MayEndAnyTicketWhileTheyAreTold) {
    Ticket before = Attach("a");
    Ticket behind;
    Ticket own = observers->Attach([&](int) {
        before.End();
        own.End();
        behind.End();
        happened += "ends;";
    });
    behind = Attach("b");
    const Ticket last = Attach("c");
    observers->Tell(1);
    observers->Tell(2);
    EXPECT_EQ(happened, "a1;ends;c1;c2;");
}

TEST_F(ObserversTest, MayAttachOthersWhichHearOfTheNext) {
    std::vector<Ticket> more;
    const Ticket first = observers->Attach([&](int number) {
        for (int count = 0; number == 1 && count < 20; ++count) more.push_back(Attach("."));
    });
    const Ticket second = Attach("b");
    observers->Tell(1);
    EXPECT_EQ(happened, "b1;");
    more.resize(1);
    observers->Tell(2);
    EXPECT_EQ(happened, "b1;b2;.2;");
}

TEST_F(ObserversTest, MayHaveSomethingToldInTurn) {
    Ticket late;
    const Ticket first = observers->Attach([&](int number) {
        if (number > 1) return;
        late = Attach("late");
        observers->Tell(2);
    });
    const Ticket second = Attach("b");
    observers->Tell(1);
    EXPECT_EQ(happened, "b2;late2;b1;");
}

TEST_F(ObserversTest, MayEndTheObjectThatTells) {
    const Ticket first = observers->Attach([this](int) {
        observers.reset();
        happened += "gone;";
    });
    const Ticket second = Attach("b");
    observers->Tell(1);
    EXPECT_EQ(happened, "gone;");
}

TEST_F(ObserversTest, PassAnErrorOnAndAreToldOfTheNext) {
    const Ticket first = observers->Attach([](int number) {
        if (number == 1) throw RuntimeError(RuntimeError::Overflow);
    });
    Ticket second = Attach("b");
    EXPECT_THROW(observers->Tell(1), RuntimeError);
    second.End();
    const Ticket third = Attach("c");
    observers->Tell(2);
    EXPECT_EQ(happened, "c2;");
}

TEST_F(ObserversTest, OutliveTheirObject) {
    Ticket ticket = Attach("a");
    observers.reset();
    ticket.End();
    EXPECT_EQ(happened, "");
}

}  // namespace
}  // namespace orvelle
