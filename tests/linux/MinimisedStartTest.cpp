#include "adapters/linux/MinimisedStart.h"

#include <gtest/gtest.h>
#include <poll.h>

#include <algorithm>
#include <functional>
#include <optional>

#include "adapters/linux/LinuxProcesses.h"
#include "tests/linux/ChildProcess.h"
#include "tests/linux/WaitUntil.h"
#include "tests/linux/XClient.h"
#include "tests/linux/XServer.h"

namespace orvelle::linux {
namespace {

using State = TopLevelWindows::State;

class Desktop : public testing::Test {
protected:
    Desktop() { setenv("DISPLAY", server.Display().c_str(), 1); }

    bool ServeUntil(const std::function<bool()>& condition) {
        return WaitUntil([&] {
            pollfd ready{processes.Descriptor(), POLLIN, 0};
            if (poll(&ready, 1, 0) > 0) processes.Serve();
            return condition();
        });
    }

    // The windows that are there beside `known`.
    std::vector<xcb_window_t> Others(xcb_window_t known) {
        std::vector<xcb_window_t> list = windows.List();
        std::erase(list, known);
        return list;
    }

    XServer server;
    LinuxProcesses processes{""};
    TopLevelWindows windows{server.Display()};
};

class MinimisedStartUnderAManager : public Desktop {
protected:
    MinimisedStartUnderAManager() {
        std::optional<XClient> client(server.Display());
        EXPECT_TRUE(WaitUntil([&] { return client->HasWindowManager(); }));
        program.emplace(std::vector<std::string>{SHOWS_WINDOW});
        EXPECT_TRUE(WaitUntil([&] { return windows.List().size() == 2; }));
        // Its window leaves the list, and the focus goes and comes, when the manager has seen to it.
        client.reset();
        EXPECT_TRUE(WaitUntil([&] {
            user = windows.Focused();
            return user != XCB_NONE && windows.List() == std::vector{user};
        }));
    }

    ChildProcess manager{{"openbox"}};
    std::optional<ChildProcess> program;  // whose window the user works in
    xcb_window_t user = XCB_NONE;
};

TEST_F(MinimisedStartUnderAManager, TurnsTheWindowIntoAnIconAndLeavesTheFocus) {
    ASSERT_EQ(processes.WinExec(SHOWS_WINDOW, 7), LinuxProcesses::Started);
    ASSERT_TRUE(ServeUntil([&] { return Others(user).size() == 1; }));
    const xcb_window_t started = Others(user).front();
    EXPECT_TRUE(ServeUntil([&] { return windows.StateOf(started) == State::Icon; }));
    EXPECT_TRUE(ServeUntil([&] { return windows.Focused() == user; }));
    EXPECT_EQ(windows.StateOf(user), State::Normal);
}

TEST_F(MinimisedStartUnderAManager, KnowsWindowsOfProcessesThatTheProgramStarts) {
    ASSERT_EQ(processes.WinExec(SHOWS_WINDOW " --by-child", 7), LinuxProcesses::Started);
    ASSERT_TRUE(ServeUntil([&] { return Others(user).size() == 1; }));
    const xcb_window_t started = Others(user).front();
    EXPECT_TRUE(ServeUntil([&] { return windows.StateOf(started) == State::Icon; }));
    EXPECT_TRUE(ServeUntil([&] { return windows.Focused() == user; }));
}

TEST_F(MinimisedStartUnderAManager, LooksAfterTwoStartsAtOnce) {
    ASSERT_EQ(processes.WinExec(SHOWS_WINDOW, 7), LinuxProcesses::Started);
    ASSERT_EQ(processes.WinExec(SHOWS_WINDOW, 7), LinuxProcesses::Started);
    ASSERT_TRUE(ServeUntil([&] { return Others(user).size() == 2; }));
    EXPECT_TRUE(ServeUntil([&] {
        const auto started = Others(user);
        return std::all_of(started.begin(), started.end(),
                           [&](xcb_window_t window) { return windows.StateOf(window) == State::Icon; });
    }));
    EXPECT_TRUE(ServeUntil([&] { return windows.Focused() == user; }));
}

TEST_F(MinimisedStartUnderAManager, LeavesOtherProgramsAlone) {
    ASSERT_EQ(processes.WinExec("/bin/true", 7), LinuxProcesses::Started);
    const ChildProcess other({SHOWS_WINDOW});
    ASSERT_TRUE(ServeUntil([&] { return Others(user).size() == 1; }));
    const xcb_window_t shown = Others(user).front();
    // The started program's window comes after the other's, so what would happen to that one has happened then.
    ASSERT_EQ(processes.WinExec(SHOWS_WINDOW, 7), LinuxProcesses::Started);
    ASSERT_TRUE(ServeUntil([&] { return Others(user).size() == 2; }));
    const auto both = Others(user);
    const xcb_window_t started = both.front() == shown ? both.back() : both.front();
    EXPECT_TRUE(ServeUntil([&] { return windows.StateOf(started) == State::Icon; }));
    EXPECT_EQ(windows.StateOf(shown), State::Normal);
}

TEST_F(MinimisedStartUnderAManager, LeavesTheWindowToAUserWhoTakesItUp) {
    ASSERT_EQ(processes.WinExec(SHOWS_WINDOW, 7), LinuxProcesses::Started);
    ASSERT_TRUE(ServeUntil([&] { return Others(user).size() == 1; }));
    const xcb_window_t started = Others(user).front();
    ASSERT_TRUE(ServeUntil([&] { return windows.StateOf(started) == State::Icon && windows.Focused() == user; }));
    // The watch has to have seen all that before the user acts.
    processes.Serve();
    windows.AskForFocus(started);
    windows.Next();
    EXPECT_TRUE(ServeUntil([&] { return windows.Focused() == started; }));
    processes.Serve();
    EXPECT_EQ(windows.StateOf(started), State::Normal);
}

TEST_F(MinimisedStartUnderAManager, DoesNothingForAShowThatIsNotMinimised) {
    ASSERT_EQ(processes.WinExec(SHOWS_WINDOW, 1), LinuxProcesses::Started);
    ASSERT_TRUE(ServeUntil([&] { return Others(user).size() == 1; }));
    const xcb_window_t started = Others(user).front();
    EXPECT_TRUE(ServeUntil([&] { return windows.Focused() == started; }));
    EXPECT_EQ(windows.StateOf(started), State::Normal);
}

// Of the watch itself.
class MinimisedStartWithoutAManager : public testing::Test {
protected:
    XServer server;
    MinimisedStart minimised{server.Display(), std::chrono::hours(1)};
};

TEST_F(MinimisedStartWithoutAManager, WatchesFromAStartOn) {
    EXPECT_FALSE(minimised.IsWatching());
    EXPECT_TRUE(minimised.Prepare().ends_with("_TIME0"));
    EXPECT_TRUE(minimised.IsWatching());
    minimised.Watch(getpid());
    EXPECT_TRUE(minimised.IsWatching());
}

TEST_F(MinimisedStartWithoutAManager, WatchesNoLongerThanItsTime) {
    MinimisedStart impatient{server.Display(), std::chrono::milliseconds(100)};
    for (int start = 0; start < 2; ++start) {
        impatient.Prepare();
        impatient.Watch(getpid());
        pollfd ready{impatient.Descriptor(), POLLIN, 0};
        while (impatient.IsWatching() && poll(&ready, 1, 60'000) > 0) impatient.Serve();
        EXPECT_FALSE(impatient.IsWatching());
        EXPECT_EQ(poll(&ready, 1, 0), 0);
    }
}

TEST_F(MinimisedStartWithoutAManager, WatchesNothingAfterAFailedStart) {
    minimised.Prepare();
    minimised.Cancel();
    EXPECT_FALSE(minimised.IsWatching());

    minimised.Prepare();
    minimised.Watch(getpid());
    minimised.Prepare();
    minimised.Cancel();
    EXPECT_TRUE(minimised.IsWatching());
}

TEST_F(MinimisedStartWithoutAManager, EndsWithTheServer) {
    MinimisedStart patient(server.Display());
    patient.Prepare();
    patient.Watch(getpid());
    server.End();
    pollfd ready{patient.Descriptor(), POLLIN, 0};
    EXPECT_GT(poll(&ready, 1, 30000), 0);
    patient.Serve();
    EXPECT_FALSE(patient.IsWatching());
    patient.Prepare();
    EXPECT_FALSE(patient.IsWatching());
}

}  // namespace
}  // namespace orvelle::linux
