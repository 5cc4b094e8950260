#include "adapters/linux/KeyGuard.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>

#include <array>
#include <csignal>

#include "adapters/linux/HeldKeys.h"
#include "adapters/linux/SpawnPreparation.h"

namespace orvelle::linux {

namespace {

// A copy whose number is none of those that the guard is to find its own things under.
FileDescriptor OutOfTheWay(int number) { return FileDescriptor(fcntl(number, F_DUPFD_CLOEXEC, 10)); }

// What the guard process is before its program runs: a session of its own, so that nothing sent to our group reaches
// it; every signal blocked; no file open but its two.
void Prepare(SpawnPreparation& start, int pipe, int held) {
    posix_spawn_file_actions_adddup2(&start.Files, pipe, KeyGuard::PipeDescriptor);
    posix_spawn_file_actions_adddup2(&start.Files, held, KeyGuard::HeldKeysDescriptor);
    posix_spawn_file_actions_addclosefrom_np(&start.Files, KeyGuard::HeldKeysDescriptor + 1);
    posix_spawn_file_actions_addchdir_np(&start.Files, "/");

    posix_spawnattr_setflags(&start.Attributes, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK);
    sigset_t all;
    sigfillset(&all);
    posix_spawnattr_setsigmask(&start.Attributes, &all);
}

}  // namespace

bool KeyGuard::Runs() const {
    pollfd end{pipe.Number(), 0, 0};
    return pipe && poll(&end, 1, 0) == 0;
}

bool KeyGuard::Watch(const HeldKeys& held) {
    if (Runs()) return true;
    pipe.Close();
    if (process > 0) waitpid(process, nullptr, 0);  // somebody killed the one before
    process = -1;

    std::array<int, 2> ends;
    if (held.Descriptor() < 0 || pipe2(ends.data(), O_CLOEXEC) != 0) return false;
    const FileDescriptor reading(ends[0]);
    FileDescriptor writing(ends[1]);
    const FileDescriptor theirs = OutOfTheWay(reading.Number());
    const FileDescriptor keys = OutOfTheWay(held.Descriptor());
    if (!theirs || !keys) return false;

    SpawnPreparation start;
    Prepare(start, theirs.Number(), keys.Number());
    std::array<char*, 3> arguments{file.data(), display.data(), nullptr};
    // From its success on the process is the guard's own, whatever becomes of this one.
    const int error = posix_spawn(&process, file.c_str(), &start.Files, &start.Attributes, arguments.data(), environ);
    if (error != 0) {
        process = -1;
        return false;
    }
    pipe = std::move(writing);
    return true;
}

}  // namespace orvelle::linux
