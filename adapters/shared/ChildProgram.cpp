#include "adapters/shared/ChildProgram.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <sstream>

namespace orvelle {

std::string FindProgram(const std::string& name) {
    const char* const path = std::getenv("PATH");
    std::istringstream folders(std::string(path ? path : "") + ":/usr/sbin:/usr/local/sbin");
    for (std::string folder; std::getline(folders, folder, ':');) {
        std::string file = folder + '/' + name;
        if (folder.starts_with('/') && access(file.c_str(), X_OK) == 0) return file;
    }
    return "";
}

void BecomeProgram(char* const* arguments, const ChildStreams& streams, pid_t parent) {
    // Whoever died before this was said is not told of any more.
    if (prctl(PR_SET_PDEATHSIG, SIGKILL) != 0 || getppid() != parent) _exit(NotStarted);
    setsid();
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    signal(SIGPIPE, SIG_DFL);
    signal(SIGHUP, SIG_DFL);
    const int nothing = open("/dev/null", O_RDWR);
    const auto orNothing = [nothing](int descriptor) { return descriptor < 0 ? nothing : descriptor; };
    dup2(orNothing(streams.Input), STDIN_FILENO);
    dup2(orNothing(streams.Output), STDOUT_FILENO);
    dup2(orNothing(streams.Errors), STDERR_FILENO);
    close_range(STDERR_FILENO + 1, ~0U, 0);
    execv(arguments[0], arguments);
    _exit(NotStarted);
}

}  // namespace orvelle
