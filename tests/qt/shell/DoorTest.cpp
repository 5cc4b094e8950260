// The door by which the outside asks the panel to end: a message to the hidden window.
#include <gtest/gtest.h>

#include <vector>

#include "adapters/x11/Door.h"
#include "platform/RuntimeError.h"
#include "platform/controls/Form.h"
#include "tests/qt/shell/Main.h"
#include "tests/qt/shell/RealInput.h"
#include "tests/qt/shell/ToleratedLeaks.h"
#include "tests/qt/shell/Waiting.h"

namespace orvelle::qt {
namespace {

constexpr Long TerminationMessage = 1237;

struct StubControl : Control {
    explicit StubControl(Form& form) : Control(form, "Stub1") {}
    std::vector<std::vector<Long>> Messages;
};

class DoorTest : public testing::Test {
protected:
    DoorTest() {
        Hook([](Control& control, Long message, Long wParam, Long lParam) -> Long {
            static_cast<StubControl&>(control).Messages.push_back({message, wParam, lParam});
            return 0;
        });
    }

    void Hook(WindowProcedure procedure) {
        table.SetLong(stub, WindowProcedureIndex, reinterpret_cast<std::intptr_t>(procedure));
    }

    WindowTable table;
    Form form{"form", ""};
    StubControl stub{form};
    RealInput input;
};

TEST_F(DoorTest, AMessageOfAnotherProgramReachesTheControl) {
    Door door(table, stub);
    ASSERT_TRUE(input.SendDoorMessage("OrvelleCP Stub1", TerminationMessage, 5, -6));
    EXPECT_TRUE(ComesTrue([this] { return !stub.Messages.empty(); }));
    EXPECT_EQ(stub.Messages, (std::vector<std::vector<Long>>{{TerminationMessage, 5, -6}}));
}

TEST_F(DoorTest, ClosesWithItsObject) {
    { Door door(table, stub); }
    EXPECT_TRUE(ComesTrue([this] { return !input.SendDoorMessage("OrvelleCP Stub1", TerminationMessage, 0, 0); }));
}

TEST_F(DoorTest, AnErrorOfTheHandlerIsTold) {
    [[maybe_unused]] const ToleratedLeaks leaks;
    Failures().clear();
    Hook([](Control&, Long, Long, Long) -> Long { throw RuntimeError(RuntimeError::Overflow); });
    Door door(table, stub);
    ASSERT_TRUE(input.SendDoorMessage("OrvelleCP Stub1", TerminationMessage, 0, 0));
    EXPECT_TRUE(ComesTrue([] { return !Failures().empty(); }));
}

}  // namespace
}  // namespace orvelle::qt
