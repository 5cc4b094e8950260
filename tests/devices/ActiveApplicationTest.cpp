#include "adapters/x11/ActiveApplication.h"

#include <optional>

#include "adapters/linux/ProcessExecutable.h"
#include "adapters/x11/TopLevelWindows.h"
#include "tests/devices/DeviceRig.h"
#include "tests/linux/ChildProcess.h"
#include "tests/linux/WaitUntil.h"
#include "tests/linux/XClient.h"
#include "tests/linux/XServer.h"

namespace orvelle {
namespace {

// The program that shows a window plays the simulator.
const std::vector<std::string> Simulators{"no-such-simulator", "shows-window"};

class ActiveApplicationTest : public DeviceRig {
protected:
    ActiveApplicationTest() { setenv("DISPLAY", server.Display().c_str(), 1); }

    void Watch() { active.emplace(loop, side, Simulators, linux::ExecutableOf, server.Display()); }
    std::optional<linux::ChildProcess> Show() {
        return std::optional<linux::ChildProcess>(std::in_place, std::vector<std::string>{SHOWS_WINDOW});
    }
    void Manage() {
        manager.emplace(std::vector<std::string>{"openbox"});
        windows.emplace(server.Display());
        // It is ready when it has taken a window into its list.
        const linux::XClient client(server.Display());
        ASSERT_TRUE(linux::WaitUntil([&] { return windows->List().size() == 1; }));
    }
    xcb_window_t WindowOf(const linux::ChildProcess& program) {
        xcb_window_t found = XCB_NONE;
        EXPECT_TRUE(Until([&] {
            for (const xcb_window_t window : windows->List())
                if (windows->ProcessOf(window) == program.Id()) found = window;
            return found != XCB_NONE;
        }));
        return found;
    }
    void AskForFocus(xcb_window_t window) {
        windows->AskForFocus(window);
        while (windows->Next()) {
        }
    }

    linux::XServer server;
    std::optional<linux::ChildProcess> manager;
    std::optional<TopLevelWindows> windows;
    std::optional<ActiveApplication> active;
};

TEST_F(ActiveApplicationTest, IsTheSimulatorWhileItsWindowHasTheFocusAndAlsoWhenItIsGone) {
    Manage();
    Watch();
    EXPECT_TRUE(side.SimulatorActive());
    auto simulator = Show();
    const xcb_window_t simulators = WindowOf(*simulator);
    const linux::XClient other(server.Display());
    EXPECT_TRUE(Until([&] { return !side.SimulatorActive(); }));
    AskForFocus(simulators);
    EXPECT_TRUE(Until([&] { return side.SimulatorActive(); }));
    for (const xcb_window_t window : windows->List())
        if (window != simulators) AskForFocus(window);
    EXPECT_TRUE(Until([&] { return !side.SimulatorActive(); }));
    simulator.reset();
    EXPECT_TRUE(Until([&] { return side.SimulatorActive(); }));
}

TEST_F(ActiveApplicationTest, TellsWhichSimulatorItWasLast) {
    Manage();
    Watch();
    int changes = 0;
    active->Changed = [&] { ++changes; };
    EXPECT_EQ(active->LastSimulator(), "");
    auto simulator = Show();
    AskForFocus(WindowOf(*simulator));
    EXPECT_TRUE(Until([&] { return active->LastSimulator() == "shows-window"; }));
    const linux::XClient other(server.Display());
    EXPECT_TRUE(Until([&] { return !side.SimulatorActive(); }));
    EXPECT_EQ(active->LastSimulator(), "shows-window");
    EXPECT_EQ(changes, 1);
}

TEST_F(ActiveApplicationTest, IsFoundAtTheStart) {
    Manage();
    auto simulator = Show();
    const xcb_window_t simulators = WindowOf(*simulator);
    const linux::XClient other(server.Display());
    ASSERT_TRUE(Until([&] { return windows->Focused() != XCB_NONE && windows->Focused() != simulators; }));
    Watch();
    EXPECT_FALSE(side.SimulatorActive());
}

TEST_F(ActiveApplicationTest, IsToldByTheInputFocusWithoutAManager) {
    Watch();
    auto simulator = Show();
    std::optional<linux::XClient> other(server.Display());
    EXPECT_TRUE(Until([&] { return !side.SimulatorActive(); }));
    other.reset();
    simulator.reset();
    EXPECT_TRUE(Until([&] { return side.SimulatorActive(); }));
}

TEST_F(ActiveApplicationTest, CountsAsTheSimulatorWithoutAServer) {
    Manage();
    auto simulator = Show();
    WindowOf(*simulator);
    const linux::XClient other(server.Display());
    Watch();
    ASSERT_TRUE(Until([&] { return !side.SimulatorActive(); }));
    server.End();
    EXPECT_TRUE(Until([&] { return side.SimulatorActive(); }));
}

TEST(ExecutableOfTest, IsTheNameOfTheFileThatAProcessRuns) {
    const linux::ChildProcess sleeps({"/usr/bin/sleep", "60"});
    EXPECT_TRUE(linux::WaitUntil([&] { return linux::ExecutableOf(sleeps.Id()) == "sleep"; }));
    EXPECT_EQ(linux::ExecutableOf(0), "");
}

}  // namespace
}  // namespace orvelle
