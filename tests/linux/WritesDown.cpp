// Writes down how it was started, one thing a line, into the file that WRITES_DOWN_INTO names. The file appears under
// its name when it is complete.
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

int main(int count, char** arguments) {
    const std::string name = std::getenv("WRITES_DOWN_INTO");
    std::string open;
    for (int number = 0; number < 1024; ++number) {
        std::error_code error;
        const auto target = std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(number), error);
        if (!error) open += " " + std::to_string(number) + "=" + target.string();
    }
    std::ofstream file(name + ".new");
    for (int argument = 1; argument < count; ++argument) file << "argument [" << arguments[argument] << "]\n";
    file << "files" << open << "\n";
    file << "directory " << std::filesystem::current_path().string() << "\n";
    file << "session " << getsid(0) << "\n";

    sigset_t blocked;
    sigprocmask(SIG_BLOCK, nullptr, &blocked);
    for (int signal = 1; signal < NSIG; ++signal) {
        struct sigaction action;
        if (sigismember(&blocked, signal) == 1) file << "blocked " << signal << "\n";
        if (sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN)
            file << "ignored " << signal << "\n";
    }
    const char* const id = std::getenv("DESKTOP_STARTUP_ID");
    file << "startup id " << (id ? id : "none") << "\n";
    file.close();
    std::rename((name + ".new").c_str(), name.c_str());
    return 0;
}
