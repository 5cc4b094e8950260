#include "adapters/linux/MinimisedStart.h"

#include <sys/epoll.h>
#include <sys/timerfd.h>
#include <unistd.h>

namespace orvelle::linux {

namespace {

void Join(const FileDescriptor& readiness, int descriptor) {
    epoll_event interest{};
    interest.events = EPOLLIN;
    epoll_ctl(readiness.Number(), EPOLL_CTL_ADD, descriptor, &interest);
}

}  // namespace

MinimisedStart::MinimisedStart(std::string display, std::chrono::milliseconds patience)
    : display(std::move(display)),
      patience(patience),
      readiness(epoll_create1(EPOLL_CLOEXEC)),
      timer(timerfd_create(CLOCK_MONOTONIC, TFD_CLOEXEC | TFD_NONBLOCK)) {
    Join(readiness, timer.Number());
}

void MinimisedStart::SetTimer(std::chrono::milliseconds time) {
    itimerspec end{};
    end.it_value.tv_sec = time.count() / 1000;
    end.it_value.tv_nsec = time.count() % 1000 * 1000000;
    timerfd_settime(timer.Number(), 0, &end, nullptr);
}

void MinimisedStart::Begin() {
    windows.emplace(display);
    if (windows->IsConnected())
        Join(readiness, windows->Descriptor());
    else
        windows.reset();
}

void MinimisedStart::End() {
    SetTimer(std::chrono::milliseconds(0));
    windows.reset();  // its descriptor leaves the readiness as it closes
    stages.clear();
    sessions.clear();
    focused = XCB_NONE;
}

std::string MinimisedStart::Prepare() {
    if (!windows) Begin();
    if (windows) {
        SetTimer(patience);
        const xcb_window_t now = windows->Focused();
        Serve();  // what the server told before its answer: the window may be one of an earlier start
        const auto known = stages.find(now);
        const bool isIntruder =
            known != stages.end() && (known->second == Stage::Expected || known->second == Stage::Asked);
        if (!isIntruder) focused = now;
    }
    return "OrvelleCP-" + std::to_string(getpid()) + "-" + std::to_string(++starts) + "_TIME0";
}

void MinimisedStart::Watch(pid_t session) {
    sessions.insert(session);
    Serve();
}

void MinimisedStart::Cancel() {
    if (sessions.empty()) End();
}

void MinimisedStart::Serve() {
    std::uint64_t expirations;
    if (read(timer.Number(), &expirations, sizeof expirations) > 0) End();
    // A question to the server may have fetched changes from the descriptor already, so whoever asked one comes here.
    while (windows) {
        const auto change = windows->Next();
        if (!change) break;
        switch (change->What) {
            case TopLevelWindows::Change::Created:
                Meet(change->Window);
                break;
            case TopLevelWindows::Change::Destroyed:
                stages.erase(change->Window);
                break;
            case TopLevelWindows::Change::Altered:
                LookAt(change->Window);
                break;
            case TopLevelWindows::Change::List:
                for (const xcb_window_t window : windows->List()) Meet(window);
                break;
            case TopLevelWindows::Change::Focus:
                LookAtFocus();
                break;
        }
    }
    if (windows && !windows->IsConnected()) End();
}

void MinimisedStart::Meet(xcb_window_t window) {
    if (!stages.emplace(window, Stage::Nameless).second) return;
    windows->Observe(window);
    LookAt(window);
}

void MinimisedStart::LookAt(xcb_window_t window) {
    const auto known = stages.find(window);
    if (known == stages.end()) return;
    Stage& stage = known->second;
    if (stage == Stage::Nameless) {
        const pid_t process = windows->ProcessOf(window);
        if (process > 0) stage = sessions.contains(getsid(process)) ? Stage::Expected : Stage::Foreign;
    }
    if (stage == Stage::Expected || stage == Stage::Asked) {
        switch (windows->StateOf(window)) {
            case TopLevelWindows::State::NotShown:
                windows->AskToBeginAsIcon(window);
                break;
            case TopLevelWindows::State::Normal:
                if (stage == Stage::Expected) windows->AskToBecomeIcon(window);
                stage = Stage::Asked;
                LookAtFocus();
                break;
            case TopLevelWindows::State::Icon:
                LookAtFocus();
                stage = Stage::Done;
                break;
        }
    }
}

// Each window gives the focus back once; if it gets it again afterwards, the user wanted that.
void MinimisedStart::LookAtFocus() {
    const auto intruder = stages.find(windows->Focused());
    if (intruder == stages.end() || intruder->second != Stage::Asked) return;
    if (focused != XCB_NONE) windows->AskForFocus(focused);
    intruder->second = Stage::Done;
}

}  // namespace orvelle::linux
