#include "tests/endtoend/MarkedProcesses.h"

#include <poll.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "adapters/linux/ProcessExecutable.h"
#include "adapters/shared/FileDescriptor.h"
#include "tests/linux/WaitUntil.h"

namespace orvelle {

namespace {

constexpr const char* Variable = "ORVELLE_TEST_MARK";

std::vector<std::string> Parts(const std::string& file) {
    std::ifstream stream(file, std::ios::binary);
    std::vector<std::string> parts;
    for (std::string part; std::getline(stream, part, '\0');) parts.push_back(part);
    return parts;
}

// Waits until its files are closed, its lock among them.
void End(pid_t process) {
    const FileDescriptor ended(static_cast<int>(syscall(SYS_pidfd_open, process, 0)));
    if (!ended) return;
    kill(process, SIGKILL);
    pollfd end{ended.Number(), POLLIN, 0};
    poll(&end, 1, -1);
}

}  // namespace

// A test that runs itself again as a child of its own keeps its parent's.
MarkedProcesses::MarkedProcesses() {
    setenv(Variable, std::to_string(getpid()).c_str(), 0);
    mark = Variable;
    mark += '=';
    mark += std::getenv(Variable);
}

MarkedProcesses::~MarkedProcesses() {
    unsetenv(Variable);
    linux::WaitUntil([this] {
        const std::vector<pid_t> left = Running();
        for (const pid_t process : left) End(process);
        return left.empty();
    });
}

std::vector<pid_t> MarkedProcesses::Running(const std::string& program) const {
    std::vector<pid_t> found;
    std::error_code failed;
    for (const auto& each : std::filesystem::directory_iterator("/proc", failed)) {
        const std::string name = each.path().filename();
        if (name.find_first_not_of("0123456789") != std::string::npos) continue;
        const pid_t process = std::stoi(name);
        const std::vector<std::string> environment = Parts(each.path() / "environ");
        const bool isMarked = std::ranges::find(environment, mark) != environment.end();
        if (isMarked && process != getpid() && (program.empty() || linux::ExecutableOf(process) == program))
            found.push_back(process);
    }
    return found;
}

std::vector<std::string> MarkedProcesses::WordsOf(pid_t process) {
    return Parts("/proc/" + std::to_string(process) + "/cmdline");
}

}  // namespace orvelle
