#include "platform/linux/Launch.h"

#include <fcntl.h>
#include <linux/close_range.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <string_view>

#include "platform/linux/FileDescriptor.h"

namespace orvelle {

namespace {

std::vector<char*> Pointers(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    for (std::string& text : texts) pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

// Ours, but for what named the start of this program to its own toolkit.
std::vector<std::string> Environment(const std::string& startupId) {
    std::vector<std::string> variables;
    for (char** variable = environ; variable && *variable; ++variable) {
        const std::string_view text = *variable;
        if (!text.starts_with("DESKTOP_STARTUP_ID=") && !text.starts_with("XDG_ACTIVATION_TOKEN="))
            variables.emplace_back(text);
    }
    if (!startupId.empty()) variables.push_back("DESKTOP_STARTUP_ID=" + startupId);
    return variables;
}

// Runs in the new process and allocates nothing, since another thread of the copied program may have held the heap.
// Every signal is blocked until here, so that no handler of ours runs in it.
[[noreturn]] void BecomeProgram(const char* file, char* const* arguments, char* const* environment, int errorPipe) {
    struct sigaction byDefault {};
    byDefault.sa_handler = SIG_DFL;
    for (int signal = 1; signal < NSIG; ++signal) sigaction(signal, &byDefault, nullptr);

    const int nothing = open("/dev/null", O_RDWR);
    for (int standard = 0; standard < 3; ++standard) dup2(nothing, standard);
    close_range(3, ~0U, CLOSE_RANGE_CLOEXEC);

    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    execve(file, arguments, environment);
    const int error = errno;
    [[maybe_unused]] const ssize_t told = write(errorPipe, &error, sizeof error);
    _exit(127);
}

void Bury(pid_t process) {
    while (waitpid(process, nullptr, 0) < 0 && errno == EINTR) {
    }
}

}  // namespace

LaunchResult Launch(const std::string& file, const std::vector<std::string>& arguments, const std::string& startupId) {
    std::vector<std::string> words{file};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<std::string> variables = Environment(startupId);
    const std::vector<char*> argumentPointers = Pointers(words);
    const std::vector<char*> variablePointers = Pointers(variables);

    std::array<int, 2> ends;
    if (pipe2(ends.data(), O_CLOEXEC) != 0) return {errno, 0};
    const FileDescriptor reading(ends[0]);
    FileDescriptor writing(ends[1]);

    sigset_t all;
    sigset_t before;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before);
    // The process between us and the program leads the new session and ends at once, which leaves the program to the
    // system's first process.
    const pid_t between = fork();
    if (between == 0) {
        setsid();
        const pid_t program = fork();
        if (program == 0)
            BecomeProgram(file.c_str(), argumentPointers.data(), variablePointers.data(), writing.Number());
        const int error = errno;
        [[maybe_unused]] ssize_t told = 0;
        if (program < 0) told = write(writing.Number(), &error, sizeof error);
        _exit(0);
    }
    const int forkError = errno;
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
    if (between < 0) return {forkError, 0};
    Bury(between);

    writing.Close();
    int error = 0;
    ssize_t got;
    while ((got = read(reading.Number(), &error, sizeof error)) < 0 && errno == EINTR) {
    }
    return {got > 0 ? error : 0, between};
}

}  // namespace orvelle
