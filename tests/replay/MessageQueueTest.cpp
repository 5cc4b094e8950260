#include "replay/peers/MessageQueuePeer.h"

#include "platform/controls/Form.h"
#include "tests/replay/PeerTest.h"

namespace orvelle::replay {
namespace {

// What the procedure of the test's window saw.
std::string seen;

Long Note(Control&, Long message, Long wParam, Long lParam) {
    seen += std::to_string(message) + "(" + std::to_string(wParam) + ", " + std::to_string(lParam) + ") ";
    return 0;
}

class MessageQueueTest : public PeerTest {
protected:
    MessageQueueTest() {
        seen.clear();
        windows.SetWindowLongA(form, WindowProcedureIndex, reinterpret_cast<std::intptr_t>(Note));
        timer.Tick = [] { seen += "tick "; };
    }

    // Takes all messages that wait now as a capture does: key messages are kept from their windows.
    std::string Keys() {
        std::string keys;
        for (WindowMessage message; queue.PeekMessageA(message, RemoveMessage);) {
            if (message.Number == KeyDownMessage)
                keys += std::to_string(message.LParam >> 16) + " ";
            else {
                queue.TranslateMessage(message);
                queue.DispatchMessageA(message);
            }
        }
        return keys;
    }
    static WindowMessage KeyDown(Long code) { return {nullptr, KeyDownMessage, 0, code << 16 | 1}; }
    static Task Say(const std::string& word) {
        return [word] { seen += word + " "; };
    }

    Form form{"Form", ""};
    Timer timer{form, "Ticking", 1000};
    VirtualTime time;
    WindowsPeer windows{"user32", transcript, answers};
    MessageQueuePeer queue{transcript, time, windows};
};

TEST_F(MessageQueueTest, HandsOverKeyMessages) {
    queue.Put(KeyDown(29));
    queue.Put(KeyDown(511));
    EXPECT_EQ(Keys(), "29 511 ");
    EXPECT_EQ(Keys(), "");
}

TEST_F(MessageQueueTest, HandsOverWhatIsDueInOrderOfTime) {
    time.TurnOn(timer);
    time.Schedule(1100, Say("later"));
    time.Schedule(900, WindowMessage{&form, 1237, 1, 2});
    time.Schedule(950, KeyDown(46));
    time.MoveTo(1100);
    EXPECT_EQ(Keys(), "46 ");
    EXPECT_EQ(seen, "1237(1, 2) tick later ");
    EXPECT_EQ(Printed(), "! Ticking\n");
}

TEST_F(MessageQueueTest, KeepsWhatIsNotDueYet) {
    time.Schedule(100, KeyDown(46));
    time.MoveTo(99);
    EXPECT_EQ(Keys(), "");
    time.MoveTo(100);
    EXPECT_EQ(Keys(), "46 ");
}

TEST_F(MessageQueueTest, DispatchingAMessageOfTheThreadDoesNothing) {
    queue.DispatchMessageA({nullptr, 260, 0, 1});
    EXPECT_EQ(seen, "");
}

TEST_F(MessageQueueTest, DoEventsServesWhatWaitsAndDropsKeyMessages) {
    queue.Put(KeyDown(29));
    time.Schedule(0, KeyDown(30));
    time.Schedule(0, Say("now"));
    time.Schedule(1, Say("later"));
    queue.DoEvents();
    EXPECT_EQ(seen, "now ");
    EXPECT_EQ(Keys(), "");
}

TEST_F(MessageQueueTest, AdvanceServesInOrderOfTimeAndLosesKeyMessages) {
    time.TurnOn(timer);
    queue.Put(KeyDown(29));
    time.Schedule(500, Say("first"));
    time.Schedule(600, KeyDown(30));
    time.Schedule(1500, WindowMessage{&form, 7, 0, 0});
    queue.Advance(2000);
    EXPECT_EQ(seen, "first tick 7(0, 0) tick ");
    EXPECT_EQ(time.Elapsed(), 2000);
    EXPECT_EQ(Keys(), "");
}

TEST_F(MessageQueueTest, AStimulusThatWaitsDuringAnAdvanceTakesItsTimeFromIt) {
    time.Schedule(500, [this] { time.MoveTo(time.Elapsed() + 1000); });
    time.Schedule(1200, Say("late"));
    queue.Advance(2000);
    EXPECT_EQ(seen, "late ");
    EXPECT_EQ(time.Elapsed(), 2000);
}

TEST_F(MessageQueueTest, ServesAStimulusThatPumpsMessagesItself) {
    time.Schedule(10, [this] {
        time.MoveTo(50);
        seen += "[" + Keys() + "] ";
    });
    time.Schedule(20, KeyDown(29));
    time.Schedule(30, Say("inner"));
    queue.Advance(100);
    EXPECT_EQ(seen, "inner [29 ] ");
}

}  // namespace
}  // namespace orvelle::replay
