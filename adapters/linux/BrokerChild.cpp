#include "adapters/linux/BrokerChild.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <system_error>
#include <utility>

#include "adapters/shared/ChildProgram.h"

namespace orvelle::linux {

namespace {

constexpr int MostEnds = 5;                // in a row
constexpr Long WellAgainAfter = 10'000;    // milliseconds without an end
constexpr Long FirstPause = 100;           // before it is started again, doubled each time
constexpr Long ReloadMilliseconds = 100;   // from when it says that it reads its files until it has surely read them
constexpr int EndMilliseconds = 3000;      // until an end is forced
constexpr std::size_t LongestLine = 4096;  // bytes; the broker itself cuts its lines before
constexpr std::size_t MostNames = 16;      // of one user; two are usual

std::string CantBeStarted() {
    return "The broker mosquitto can't be started: " + std::generic_category().message(errno) + ".";
}

}  // namespace

std::string BrokerChild::Start() {
    std::string file = FindProgram("mosquitto");
    if (file.empty()) return "The broker mosquitto is not installed on this computer.";
    std::string option = "-c";
    std::string name = configuration.string();
    const std::array<char*, 4> arguments{file.data(), option.data(), name.data(), nullptr};
    std::array<int, 2> pipeEnds{};
    // A pipe without room loses what is said; the broker must not wait for us.
    if (pipe2(pipeEnds.data(), O_CLOEXEC | O_NONBLOCK) != 0) return CantBeStarted();
    errors = FileDescriptor(pipeEnds[0]);
    const FileDescriptor theirs(pipeEnds[1]);
    const pid_t parent = getpid();
    process = fork();
    if (process == 0) BecomeProgram(arguments.data(), {.Errors = theirs.Number()}, parent);
    if (process < 0) return CantBeStarted();
    end = FileDescriptor(static_cast<int>(syscall(SYS_pidfd_open, process, 0)));
    part.clear();
    problem.clear();
    clients.clear();
    isSomebodyUnknown = false;
    readable = loop.WhenReadable(errors.Number(), [this] { Read(); });
    ended = loop.WhenReadable(end.Number(), [this] { Ended(); });
    return "";
}

void BrokerChild::Stop() {
    again.End();
    wellAgain.End();
    ended.End();
    readable.End();
    reloaded.End();
    serves = isReloading = false;
    if (process <= 0) return;
    kill(process, SIGTERM);
    pollfd awaited{end.Number(), POLLIN, 0};
    if (poll(&awaited, 1, EndMilliseconds) <= 0) kill(process, SIGKILL);
    waitpid(std::exchange(process, -1), nullptr, 0);
}

void BrokerChild::Restart() {
    Stop();
    if (const std::string sentence = Start(); !sentence.empty()) GaveUp(sentence);
}

void BrokerChild::Reload() {
    // It may have read the keys already, and would not live through a signal, while it starts; a signal while it reads
    // them would be lost.
    if (!serves || isReloading) {
        reloads = true;
        return;
    }
    isReloading = true;
    kill(process, SIGHUP);
}

BrokerChild::ClientNames BrokerChild::ClientsOf(const std::string& user) const {
    const auto found = clients.find(user);
    ClientNames names = found == clients.end() ? ClientNames{} : found->second;
    names.TooMany = names.TooMany || isSomebodyUnknown;
    return names;
}

bool BrokerChild::Read() {
    std::array<char, 4096> bytes{};
    const ssize_t count = read(errors.Number(), bytes.data(), bytes.size());
    if (count <= 0) {
        if (count == 0) readable.End();
        return false;
    }
    const pid_t before = process;
    part.append(bytes.data(), static_cast<std::size_t>(count));
    for (std::size_t feed; process == before && (feed = part.find('\n')) != std::string::npos;) {
        const std::string line = part.substr(0, feed);
        part.erase(0, feed + 1);
        TakeLine(line);
    }
    if (part.size() > LongestLine) part.clear();
    return process == before;
}

void BrokerChild::TakeLine(const std::string& line) {
    if (line.starts_with("Error")) problem = line;
    if (line.starts_with("New client connected from ")) return TakeClient(line);
    if (line == "Reloading config.") {
        reloaded = loop.After(ReloadMilliseconds, [this] {
            isReloading = false;
            if (std::exchange(reloads, false)) Reload();
            Reloaded();
        });
    }
    if (line.starts_with("mosquitto version ") && line.ends_with(" running")) {
        serves = true;
        wellAgain = loop.After(WellAgainAfter, [this] { ends = 0; });
        Served();
        if (std::exchange(reloads, false)) Reload();
    }
}

// "New client connected from ADDRESS:PORT as NAME (p5, c1, k5, u'c07')." The name may hold anything but a line's end,
// so the rest is found from both ends.
void BrokerChild::TakeClient(const std::string& line) {
    const std::size_t name = line.find(" as ");
    const std::size_t rest = line.rfind(" (p");
    const std::size_t user = line.rfind("u'");
    if (name == std::string::npos || rest == std::string::npos || user == std::string::npos || user < rest ||
        !line.ends_with("').")) {
        isSomebodyUnknown = true;
        return;
    }
    ClientNames& known = clients[line.substr(user + 2, line.size() - 3 - user - 2)];
    if (known.Names.size() < MostNames)
        known.Names.insert(line.substr(name + 4, rest - name - 4));
    else
        known.TooMany = true;
}

void BrokerChild::Ended() {
    while (Read()) continue;
    ended.End();
    readable.End();
    waitpid(std::exchange(process, -1), nullptr, 0);
    reloaded.End();
    isReloading = false;
    const bool hasServed = std::exchange(serves, false);
    if ((!hasServed && ends == 0) || ++ends > MostEnds) return GaveUp("The broker mosquitto ended: " + Reason() + ".");
    Told("The broker mosquitto ended by itself and is started again.");
    again = loop.After(FirstPause << ends, [this] {
        if (const std::string sentence = Start(); !sentence.empty()) GaveUp(sentence);
    });
}

std::string BrokerChild::Reason() const {
    if (problem.find("Address already in use") != std::string::npos)
        return "another program uses its port already; orvelle-sim --port PORT takes another one";
    if (problem.empty()) return "it gave no reason";
    return problem;
}

}  // namespace orvelle::linux
