#include "tests/linux/ChildProcess.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <stdexcept>

#include "tests/linux/WaitUntil.h"

namespace orvelle::linux {

namespace {

struct Pipe {
    Pipe() {
        std::array<int, 2> ends{-1, -1};
        [[maybe_unused]] const int result = pipe2(ends.data(), O_CLOEXEC);
        Reading = FileDescriptor(ends[0]);
        Writing = FileDescriptor(ends[1]);
    }
    FileDescriptor Reading;
    FileDescriptor Writing;
};

std::string Joined(const std::vector<std::string>& words) {
    std::string joined;
    for (const std::string& word : words) joined += (joined.empty() ? "" : " ") + word;
    return joined;
}

}  // namespace

ChildProcess::ChildProcess(std::vector<std::string> commandLine)
    : command(Joined(commandLine)), errors(memfd_create("errors", MFD_CLOEXEC)) {
    Pipe toProgram;
    Pipe fromProgram;
    std::vector<char*> arguments;
    arguments.reserve(commandLine.size() + 1);
    for (std::string& word : commandLine) arguments.push_back(word.data());
    arguments.push_back(nullptr);

    process = fork();
    if (process == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        setpgid(0, 0);
        dup2(toProgram.Reading.Number(), 0);
        dup2(fromProgram.Writing.Number(), 1);
        dup2(errors.Number(), 2);
        execvp(arguments[0], arguments.data());
        _exit(127);
    }
    setpgid(process, process);
    input = std::move(toProgram.Writing);
    output = std::move(fromProgram.Reading);
}

ChildProcess::~ChildProcess() {
    Kill(SIGKILL);
    Wait();
}

void ChildProcess::WriteLine(const std::string& line) {
    const std::string text = line + "\n";
    [[maybe_unused]] const ssize_t written = write(input.Number(), text.data(), text.size());
}

std::string ChildProcess::ReadLine() {
    std::string line;
    char character;
    while (read(output.Number(), &character, 1) == 1 && character != '\n') line += character;
    return line;
}

std::string ChildProcess::Ask(const std::string& line) {
    WriteLine(line);
    return ReadLine();
}

void ChildProcess::Kill(int signal) {
    if (process > 0) kill(process, signal);
}

int ChildProcess::Wait() {
    if (process > 0) waitpid(process, &status, 0);
    process = -1;
    return status;
}

std::string ChildProcess::Errors() {
    std::string text(static_cast<std::size_t>(lseek(errors.Number(), 0, SEEK_END)), ' ');
    const ssize_t got = pread(errors.Number(), text.data(), text.size(), 0);
    text.resize(got > 0 ? static_cast<std::size_t>(got) : 0);
    return text;
}

std::string ChildProcess::HowItEnded() {
    siginfo_t end{};
    waitid(P_PID, static_cast<id_t>(process), &end, WEXITED | WNOHANG | WNOWAIT);
    if (end.si_pid == 0) return "";
    const char* const by = end.si_code == CLD_EXITED ? "' ended with status " : "' ended by signal ";
    return "'" + command + by + std::to_string(end.si_status) + ": " + Errors();
}

void Await(const std::vector<ChildProcess*>& processes, const std::function<bool()>& isSo) {
    const bool isOver = WaitUntil([&] {
        if (isSo()) return true;
        for (ChildProcess* const process : processes)
            if (const std::string how = process->HowItEnded(); !how.empty()) throw std::runtime_error(how);
        return false;
    });
    if (isOver) return;
    std::string why = "it takes very long: ";
    for (ChildProcess* const process : processes) why += process->Errors();
    throw std::runtime_error(why);
}

}  // namespace orvelle::linux
