// The door for another program, and where its window's messages go: to nobody until the tray icon is up, and then to
// the procedure that the tray replaced, never to the one that the door replaced itself.
#include "panel/Stub.h"

#include <gtest/gtest.h>

#include "platform/controls/Form.h"
#include "replay/peers/NotificationAreaPeer.h"
#include "replay/peers/WindowsPeer.h"
#include "tests/replay/PeerTest.h"

namespace orvelle {
namespace {

// A component whose window writes down which procedure a message reached.
template <typename Component>
struct Watched : Component {
    using Component::Component;

    static Long Own(Control& window, Long message, Long wParam, Long lParam) {
        return Write("own", window, message, wParam, lParam);
    }
    static Long BeforeTray(Control& window, Long message, Long wParam, Long lParam) {
        return Write("before tray", window, message, wParam, lParam);
    }
    static Long Write(const char* procedure, Control& window, Long message, Long wParam, Long lParam) {
        static_cast<Watched&>(window).Reached += std::string(procedure) + " " + std::to_string(message) + " " +
                                                 std::to_string(wParam) + " " + std::to_string(lParam) + "; ";
        return 0;
    }

    std::string Reached;
};

std::intptr_t Number(WindowProcedure procedure) { return reinterpret_cast<std::intptr_t>(procedure); }

class StubTest : public replay::PeerTest {
protected:
    StubTest() {
        windows.SetWindowLongA(door, WindowProcedureIndex, Number(&Watched<Stub>::Own));
        windows.SetWindowLongA(tray, WindowProcedureIndex, Number(&Watched<Stub>::BeforeTray));
        door.Terminate = [this] { ++terminations; };
    }

    Form form{"Form", ""};
    replay::WindowsPeer windows{"user32", transcript, answers};
    replay::NotificationAreaPeer shell{"shell32", transcript, answers};
    mSysTray module;
    Watched<Stub> door{form, "Stub1", windows, module};
    cSysTray tray{form, "ST", windows, shell, module, cSysTray::Mode::Run};
    int terminations = 0;
};

TEST_F(StubTest, ItsWindowIsNotWatchedBeforeTheStart) {
    windows.Deliver({&door, 1237, 0, 0});
    EXPECT_EQ(terminations, 0);
    EXPECT_EQ(door.Reached, "own 1237 0 0; ");
}

TEST_F(StubTest, TheMessageEndsWhateverItBrings) {
    door.EStart();
    windows.Deliver({&door, 1237, 0, 0});
    windows.Deliver({&door, 1237, -1, 1237});
    EXPECT_EQ(terminations, 2);
    windows.Deliver({&door, 1236, 1237, 1237});
    windows.Deliver({&door, 1125, 0, 513});
    EXPECT_EQ(terminations, 2);
}

TEST_F(StubTest, UntilTheTrayIsUpNoMessageIsHandedOn) {
    door.EStart();
    windows.Deliver({&door, 42, 1, 2});
    windows.Deliver({&door, 1237, 0, 0});
    EXPECT_EQ(door.Reached, "");
    EXPECT_EQ(terminations, 1);
}

TEST_F(StubTest, WithTheTrayUpMessagesGoWhereTheTraysWentBefore) {
    door.EStart();
    tray.InTray(true);
    windows.Deliver({&door, 42, 1, 2});
    windows.Deliver({&door, 1237, 3, 4});
    EXPECT_EQ(door.Reached, "before tray 42 1 2; before tray 1237 3 4; ");
    EXPECT_EQ(terminations, 1);
}

TEST_F(StubTest, AfterTheStopItsWindowHasItsOwnProcedureBack) {
    door.EStart();
    tray.InTray(true);
    door.EStop();
    windows.Deliver({&door, 1237, 0, 0});
    EXPECT_EQ(door.Reached, "own 1237 0 0; ");
    EXPECT_EQ(terminations, 0);
}

TEST(TrayProcedure, HandsEveryMessageOnAlsoTheOneThatItServes) {
    std::ostringstream out;
    replay::Transcript transcript{out};
    replay::Answers answers;
    replay::WindowsPeer windows{"user32", transcript, answers};
    replay::NotificationAreaPeer shell{"shell32", transcript, answers};
    mSysTray module;
    Form form{"Form", ""};
    Watched<cSysTray> tray{form, "ST", windows, shell, module, cSysTray::Mode::Run};
    windows.SetWindowLongA(tray, WindowProcedureIndex, Number(&Watched<cSysTray>::Own));
    tray.InTray(true);
    windows.Deliver({&tray, 1125, 0, 513});
    windows.Deliver({&tray, 1237, 5, 6});
    EXPECT_EQ(tray.Reached, "own 1125 0 513; own 1237 5 6; ");
}

}  // namespace
}  // namespace orvelle
