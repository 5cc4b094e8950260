// What an event loop of this system does with descriptors, and with real time.
#pragma once

#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <string>

#include "platform/RuntimeError.h"
#include "tests/shared/EventLoopRig.h"

namespace orvelle {

template <typename Driver>
class EventLoopDescriptors : public EventLoopRig<Driver> {
protected:
    // Two connected ends, which neither block nor stay open behind the test.
    struct Line {
        Line() { EXPECT_EQ(socketpair(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0, Ends.data()), 0); }
        Line(const Line&) = delete;
        Line& operator=(const Line&) = delete;
        ~Line() {
            close(Near());
            if (Ends[1] >= 0) close(Ends[1]);
        }

        int Near() const { return Ends[0]; }
        void Say(const std::string& text) {
            EXPECT_EQ(write(Ends[1], text.data(), text.size()), static_cast<ssize_t>(text.size()));
        }
        void HangUp() {
            close(Ends[1]);
            Ends[1] = -1;
        }
        // One character, "" at the end.
        std::string Take() {
            char character = 0;
            return read(Near(), &character, 1) == 1 ? std::string(1, character) : "";
        }
        // Until the near end takes no more.
        void Fill() {
            const std::array<char, 4096> bytes{};
            while (write(Near(), bytes.data(), bytes.size()) > 0) {
            }
        }
        // All that was written at the near end.
        void Drain() {
            std::array<char, 4096> bytes;
            while (read(Ends[1], bytes.data(), bytes.size()) > 0) {
            }
        }

        std::array<int, 2> Ends{-1, -1};
    };

    // Lets the loop look at its descriptors for some turns.
    void LookAround() {
        for (int turn = 0; turn < 5; ++turn) this->Settle(1);
    }

    Line line;
    std::string taken;
};
TYPED_TEST_SUITE_P(EventLoopDescriptors);

TYPED_TEST_P(EventLoopDescriptors, RunTheirTaskForAsLongAsThereIsSomethingToRead) {
    const Ticket ticket = this->loop->WhenReadable(this->line.Near(), [this] { this->taken += this->line.Take(); });
    this->LookAround();
    this->line.Say("ab");
    EXPECT_TRUE(this->RunUntil([this] { return this->taken == "ab"; }));
    this->line.Say("c");
    EXPECT_TRUE(this->RunUntil([this] { return this->taken == "abc"; }));
}

TYPED_TEST_P(EventLoopDescriptors, AreReadableAtTheirEnd) {
    Ticket ticket = this->loop->WhenReadable(this->line.Near(), [&] {
        EXPECT_EQ(this->line.Take(), "");
        this->ran.push_back(1);
        ticket.End();
    });
    this->line.HangUp();
    EXPECT_TRUE(this->RunUntil([this] { return !this->ran.empty(); }));
    this->LookAround();
    EXPECT_EQ(this->ran, std::vector{1});
}

TYPED_TEST_P(EventLoopDescriptors, RunTheirTaskForAsLongAsTheyTakeWhatIsWritten) {
    this->line.Fill();
    const Ticket ticket = this->loop->WhenWritable(this->line.Near(), this->Note(1));
    this->LookAround();
    EXPECT_TRUE(this->ran.empty());
    this->line.Drain();
    EXPECT_TRUE(this->RunUntil([this] { return this->ran.size() >= 2; }));
}

TYPED_TEST_P(EventLoopDescriptors, AreReadAndWrittenAtATime) {
    Ticket writing;
    const Ticket reading = this->loop->WhenReadable(this->line.Near(), [this] { this->taken += this->line.Take(); });
    writing = this->loop->WhenWritable(this->line.Near(), [&] {
        this->ran.push_back(1);
        writing.End();
    });
    this->line.Say("a");
    EXPECT_TRUE(this->RunUntil([this] { return this->taken == "a" && !this->ran.empty(); }));
    this->LookAround();
    EXPECT_EQ(this->ran, std::vector{1});
}

TYPED_TEST_P(EventLoopDescriptors, AreLeftAloneWhenTheTicketHasEnded) {
    Ticket reading = this->loop->WhenReadable(this->line.Near(), this->Note(1));
    Ticket writing = this->loop->WhenWritable(this->line.Near(), this->Note(2));
    this->line.Say("a");
    reading.End();
    writing.End();
    this->LookAround();
    EXPECT_TRUE(this->ran.empty());
    reading = this->loop->WhenReadable(this->line.Near(), [this] { this->taken += this->line.Take(); });
    EXPECT_TRUE(this->RunUntil([this] { return this->taken == "a"; }));
}

TYPED_TEST_P(EventLoopDescriptors, MayBeClosedByTheTaskThatEndsItsTicket) {
    const auto kept = std::make_shared<int>();
    Ticket ticket = this->loop->WhenReadable(this->line.Near(), [&, kept] {
        ticket.End();
        this->ran.push_back(kept.use_count() > 1 ? 1 : 0);
        close(this->line.Ends[0]);
        this->line.Ends[0] = dup(this->line.Ends[1]);  // which may take the same number
    });
    this->line.Say("ab");
    EXPECT_TRUE(this->RunUntil([this] { return !this->ran.empty(); }));
    this->LookAround();
    EXPECT_EQ(this->ran, std::vector{1});
    EXPECT_EQ(kept.use_count(), 1);
}

TYPED_TEST_P(EventLoopDescriptors, ReadyAtOneMomentMayCancelOneAnother) {
    typename TestFixture::Line other;
    Ticket first;
    Ticket second;
    const auto task = [&] {
        this->ran.push_back(1);
        first.End();
        second.End();
    };
    first = this->loop->WhenReadable(this->line.Near(), task);
    second = this->loop->WhenReadable(other.Near(), task);
    this->line.Say("a");
    other.Say("b");
    EXPECT_TRUE(this->RunUntil([this] { return !this->ran.empty(); }));
    this->LookAround();
    EXPECT_EQ(this->ran, std::vector{1});
}

TYPED_TEST_P(EventLoopDescriptors, AreLetGoByALoopThatEnds) {
    Ticket reading = this->loop->WhenReadable(this->line.Near(), this->Note(1));
    const Ticket writing = this->loop->WhenWritable(this->line.Near(), this->Note(2));
    this->line.Say("a");
    this->loop.reset();
    this->loop = this->driver.NewLoop();
    this->LookAround();
    reading.End();
    this->LookAround();
    EXPECT_TRUE(this->ran.empty());
}

TYPED_TEST_P(EventLoopDescriptors, WhoseTaskFailsHandTheErrorOn) {
    const Ticket ticket = this->loop->WhenReadable(this->line.Near(), [this] {
        this->taken += this->line.Take();
        if (this->taken == "a") throw RuntimeError(RuntimeError::TypeMismatch);
    });
    this->line.Say("ab");
    EXPECT_TRUE(this->RunUntil([this] { return this->taken == "ab"; }));
    EXPECT_EQ(this->driver.Failures, std::vector<int>{RuntimeError::TypeMismatch});
}

TYPED_TEST_P(EventLoopDescriptors, AreServedBesideATaskThatAlwaysPostsItself) {
    const std::function<void()> again = [&] { this->loop->Post(again); };
    this->loop->Post(again);
    const Ticket reading = this->loop->WhenReadable(this->line.Near(), [this] { this->taken += this->line.Take(); });
    const Ticket later = this->loop->After(5, this->Note(1));
    this->line.Say("a");
    EXPECT_TRUE(this->RunUntil([this] { return this->taken == "a" && !this->ran.empty(); }));
}

TYPED_TEST_P(EventLoopDescriptors, DoNotMakeALaterTaskEarly) {
    using Clock = std::chrono::steady_clock;
    const Ticket reading = this->loop->WhenReadable(this->line.Near(), [] {});
    this->line.Say("a");
    const auto start = Clock::now();
    auto ranAt = start;
    const Ticket ticket = this->loop->After(50, [&ranAt] { ranAt = Clock::now(); });
    EXPECT_TRUE(this->RunUntil([&] { return ranAt != start; }));
    EXPECT_GE(ranAt - start, std::chrono::milliseconds(50));
}

REGISTER_TYPED_TEST_SUITE_P(EventLoopDescriptors, RunTheirTaskForAsLongAsThereIsSomethingToRead, AreReadableAtTheirEnd,
                            RunTheirTaskForAsLongAsTheyTakeWhatIsWritten, AreReadAndWrittenAtATime,
                            AreLeftAloneWhenTheTicketHasEnded, MayBeClosedByTheTaskThatEndsItsTicket,
                            ReadyAtOneMomentMayCancelOneAnother, AreLetGoByALoopThatEnds, WhoseTaskFailsHandTheErrorOn,
                            AreServedBesideATaskThatAlwaysPostsItself, DoNotMakeALaterTaskEarly);

}  // namespace orvelle
