#include "adapters/linux/KeyGuard.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/epoll.h>
#include <sys/socket.h>
#include <sys/wait.h>

#include <array>
#include <csignal>

#include "adapters/linux/HeldKeys.h"
#include "adapters/linux/OwnFile.h"
#include "adapters/linux/SpawnPreparation.h"

namespace orvelle::linux {

namespace {

constexpr std::chrono::seconds AWhile{1};
constexpr int MostEndsAtOnce = 5;

// A copy whose number is none of those that the guard is to find its own things under.
FileDescriptor OutOfTheWay(int number) { return FileDescriptor(fcntl(number, F_DUPFD_CLOEXEC, 10)); }

// What the guard process is before its program runs: a session of its own, so that nothing sent to our group reaches
// it; every signal blocked; no file open but its own.
void Prepare(SpawnPreparation& start, const std::array<int, 4>& own) {
    int number = KeyGuard::LineDescriptor;
    for (const int each : own) {
        if (each >= 0)
            posix_spawn_file_actions_adddup2(&start.Files, each, number);
        else
            posix_spawn_file_actions_addclose(&start.Files, number);
        ++number;
    }
    posix_spawn_file_actions_addclosefrom_np(&start.Files, number);
    posix_spawn_file_actions_addchdir_np(&start.Files, "/");

    posix_spawnattr_setflags(&start.Attributes, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK);
    sigset_t all;
    sigfillset(&all);
    posix_spawnattr_setsigmask(&start.Attributes, &all);
}

}  // namespace

KeyGuard::KeyGuard(std::string file, std::string display, int lastWord)
    : file(std::move(file)),
      display(std::move(display)),
      program(OwnFile()),
      lastWord(lastWord),
      ending(epoll_create1(EPOLL_CLOEXEC)) {}

// The guard never says anything, so all that can come along the line is its end.
bool KeyGuard::Runs() const {
    pollfd end{line.Number(), 0, 0};
    return line && poll(&end, 1, 0) == 0;
}

bool KeyGuard::RanForAWhile() const { return Clock::now() - started >= AWhile; }

void KeyGuard::Bury() {
    line.Close();
    if (process < 0) return;
    waitpid(process, nullptr, 0);
    process = -1;
    endsAtOnce = RanForAWhile() ? 0 : endsAtOnce + 1;
}

void KeyGuard::Watch(const HeldKeys& held, int kernelDescriptor) {
    if (Runs()) {
        if (RanForAWhile()) endsAtOnce = 0;
        return;
    }
    Bury();
    couldStart = Start(held, kernelDescriptor);
}

void KeyGuard::Replace(const HeldKeys& held, int kernelDescriptor) {
    if (Runs()) return;
    Bury();
    if (endsAtOnce < MostEndsAtOnce) couldStart = Start(held, kernelDescriptor);
}

bool KeyGuard::Start(const HeldKeys& held, int kernelDescriptor) {
    std::array<int, 2> ends;
    if (held.Descriptor() < 0 || socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) return false;
    FileDescriptor ours(ends[0]);
    const FileDescriptor theirs(ends[1]);
    const FileDescriptor theirLine = OutOfTheWay(theirs.Number());
    const FileDescriptor keys = OutOfTheWay(held.Descriptor());
    const FileDescriptor kernel = OutOfTheWay(kernelDescriptor);
    const FileDescriptor word = OutOfTheWay(lastWord);
    if (!theirLine || !keys || (kernelDescriptor >= 0 && !kernel)) return false;

    SpawnPreparation start;
    Prepare(start, {theirLine.Number(), keys.Number(), kernel.Number(), word.Number()});
    std::array<char*, 4> arguments{file.data(), display.data(), program.data(), nullptr};
    // From its success on the process is the guard's own, whatever becomes of this one.
    if (posix_spawn(&process, file.c_str(), &start.Files, &start.Attributes, arguments.data(), environ) != 0) {
        process = -1;
        return false;
    }
    started = Clock::now();
    line = std::move(ours);
    epoll_event end{};  // is told without being asked for
    epoll_ctl(ending.Number(), EPOLL_CTL_ADD, line.Number(), &end);
    return true;
}

void KeyGuard::Wake() {
    const char byte = 0;
    if (line) send(line.Number(), &byte, 1, MSG_NOSIGNAL | MSG_DONTWAIT);
}

std::string KeyGuard::Problem() const {
    const std::string harm = ", so a key that is held down stays down if the panel is killed.";
    if (!couldStart) return "The program " + file + " can't be started" + harm;
    if (endsAtOnce >= MostEndsAtOnce) return "The program " + file + " ends as soon as it is started" + harm;
    return "";
}

}  // namespace orvelle::linux
