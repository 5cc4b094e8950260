#include "adapters/linux/ProcessEnd.h"

#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <fstream>
#include <iterator>
#include <memory>
#include <sstream>
#include <string>
#include <utility>

#include "adapters/shared/FileDescriptor.h"

namespace orvelle::linux {

namespace {

// When the process began, in the kernel's ticks, which tells it from a later one of its number; "" for one that has
// ended, also where its parent has yet to hear of it.
std::string BeginOf(pid_t process) {
    std::ifstream file("/proc/" + std::to_string(process) + "/stat");
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    const std::size_t name = text.rfind(')');  // a program's name may hold anything
    if (name == std::string::npos) return "";
    std::istringstream words(text.substr(name + 1));
    std::string word;
    words >> word;
    if (word == "Z" || word == "X") return "";
    constexpr int WordsToBegin = 19;
    for (int count = 0; count < WordsToBegin; ++count) words >> word;
    return word;
}

class Watch {
public:
    Watch(EventLoop& eventLoop, pid_t watched) : loop(eventLoop), process(watched) {}
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

    void Begin(EndToldBy how) {
        if (how == EndToldBy::Kernel) {
            descriptor = FileDescriptor(static_cast<int>(syscall(SYS_pidfd_open, process, 0)));
            if (descriptor) {
                next = loop.WhenReadable(descriptor.Number(), [this] { Tell(); });
                return;
            }
        }
        begin = BeginOf(process);
        LookAfter(begin.empty() ? 0 : ProcessLookMilliseconds);
    }

    Attachment<> Ended;

private:
    void LookAfter(Long milliseconds) {
        next = loop.After(milliseconds, [this] { Look(); });
    }
    void Look() { begin.empty() || BeginOf(process) != begin ? Tell() : LookAfter(ProcessLookMilliseconds); }
    // The task may end the ticket, and with it this object.
    void Tell() {
        next.End();
        Ended();
    }

    EventLoop& loop;
    const pid_t process;
    FileDescriptor descriptor;
    std::string begin;
    Ticket next;
};

}  // namespace

Ticket WhenProcessEnds(EventLoop& loop, pid_t process, std::function<void()> task, EndToldBy how) {
    const auto watch = std::make_shared<Watch>(loop, process);
    // Kept by the ticket.
    Ticket ticket = watch->Ended.Begin(std::move(task), [watch] {});
    watch->Begin(how);
    return ticket;
}

}  // namespace orvelle::linux
