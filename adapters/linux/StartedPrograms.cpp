#include "adapters/linux/StartedPrograms.h"

#include <sys/epoll.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <string_view>

#include "adapters/linux/SpawnPreparation.h"

namespace orvelle::linux {

namespace {

std::vector<char*> Pointers(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
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

// A session of its own, no other file of ours, and no signal blocked or ignored.
void Prepare(SpawnPreparation& start) {
    posix_spawn_file_actions_addclosefrom_np(&start.Files, 3);

    posix_spawnattr_setflags(&start.Attributes, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    sigset_t signals;
    sigemptyset(&signals);
    posix_spawnattr_setsigmask(&start.Attributes, &signals);
    sigfillset(&signals);
    posix_spawnattr_setsigdefault(&start.Attributes, &signals);
}

}  // namespace

StartedPrograms::StartedPrograms() : ends(epoll_create1(EPOLL_CLOEXEC)) {}

StartedPrograms::Result StartedPrograms::Start(const std::string& file, const std::vector<std::string>& arguments,
                                               const std::string& startupId) {
    Bury();
    std::vector<std::string> words{file};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<std::string> variables = Environment(startupId);
    SpawnPreparation start;
    Prepare(start);
    pid_t process = -1;
    const int error = posix_spawn(&process, file.c_str(), &start.Files, &start.Attributes, Pointers(words).data(),
                                  Pointers(variables).data());
    if (error != 0) return {error, -1};

    FileDescriptor end(static_cast<int>(syscall(SYS_pidfd_open, process, 0)));
    epoll_event interest{};
    interest.events = EPOLLIN;
    epoll_ctl(ends.Number(), EPOLL_CTL_ADD, end.Number(), &interest);
    running.emplace(process, std::move(end));
    return {0, process};
}

void StartedPrograms::Bury() {
    std::erase_if(running, [](const auto& program) { return waitpid(program.first, nullptr, WNOHANG) != 0; });
}

}  // namespace orvelle::linux
