#include "adapters/linux/BrokerChild.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <string_view>
#include <utility>

namespace orvelle::linux {

namespace {

constexpr std::array<const char*, 3> Places{"/usr/sbin/mosquitto", "/usr/bin/mosquitto", "/usr/local/sbin/mosquitto"};
constexpr Long FirstPause = 250;  // milliseconds, doubled up to the last
constexpr Long LastPause = 8000;
constexpr std::chrono::seconds Settled{10};  // served so long, it counts as started well
constexpr int NotStarted = 127;

const char* Program() {
    const auto found = std::ranges::find_if(Places, [](const char* place) { return access(place, X_OK) == 0; });
    return found != Places.end() ? *found : nullptr;
}

// What the child is before the broker's program runs. Whoever started it may be gone by the time it asks to go as well.
[[noreturn]] void Become(const char* program, const char* configuration, int output, pid_t parent) {
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    if (getppid() != parent) _exit(NotStarted);
    dup2(output, STDERR_FILENO);
    const int nothing = open("/dev/null", O_RDWR);
    dup2(nothing, STDIN_FILENO);
    dup2(nothing, STDOUT_FILENO);
    syscall(SYS_close_range, STDERR_FILENO + 1, ~0U, 0);
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    execl(program, "mosquitto", "-c", configuration, nullptr);
    _exit(NotStarted);
}

}  // namespace

void BrokerChild::Start() {
    again.End();
    const char* const program = Program();
    if (!program) return Tell("The set-up needs the broker mosquitto, which is not installed on this computer.");
    std::array<int, 2> pipe{};
    if (pipe2(pipe.data(), O_CLOEXEC | O_NONBLOCK) != 0) return Tell("The broker can't be started now.");
    errors = FileDescriptor(pipe[0]);
    const FileDescriptor writing(pipe[1]);
    const std::string file = configuration.string();
    const pid_t parent = getpid();
    startedAt = std::chrono::steady_clock::now();
    process = fork();
    if (process == 0) Become(program, file.c_str(), writing.Number(), parent);
    end = FileDescriptor(process > 0 ? static_cast<int>(syscall(SYS_pidfd_open, process, 0)) : -1);
    if (!end) return Tell("The broker can't be started now.");
    ended = loop.WhenReadable(end.Number(), [this] { Ended(); });
}

void BrokerChild::End() {
    again.End();
    ended.End();
    end.Close();
    if (process <= 0) return;
    kill(process, SIGTERM);
    waitpid(process, nullptr, 0);
    process = -1;
}

void BrokerChild::ReadKeysAgain() {
    if (process > 0) kill(process, SIGHUP);
}

void BrokerChild::StartAgain() {
    End();
    Start();
}

void BrokerChild::Ended() {
    ended.End();
    end.Close();
    waitpid(std::exchange(process, -1), nullptr, 0);
    if (std::chrono::steady_clock::now() - startedAt >= Settled) pause = 0;
    pause = std::clamp(2 * pause, FirstPause, LastPause);
    again = loop.After(pause, [this] { Start(); });
    const std::string words = LastWords();
    Tell("The broker has ended" + (words.empty() ? "." : ": " + words + "."));
}

void BrokerChild::Tell(const std::string& sentence) {
    if (std::exchange(told, sentence) != sentence) Told(sentence);
}

// The last line that tells of an error, without the time before it.
std::string BrokerChild::LastWords() {
    std::array<char, 4096> bytes;
    std::string text;
    for (ssize_t count = 0; (count = read(errors.Number(), bytes.data(), bytes.size())) > 0;)
        text.append(bytes.data(), static_cast<std::size_t>(count));
    constexpr std::string_view Mark = "Error: ";
    const std::size_t start = text.rfind(Mark);
    if (start == std::string::npos) return "";
    std::string words = text.substr(start + Mark.size());
    words.resize(std::min(words.find('\n'), words.size()));
    while (!words.empty() && (words.back() == '.' || words.back() == ' ')) words.pop_back();
    return words;
}

}  // namespace orvelle::linux
