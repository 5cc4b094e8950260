// A program that a test starts, with a pipe to its input and one from its output. It is killed and waited for when the
// object goes, and dies with the test.
#pragma once

#include <sys/types.h>

#include <functional>
#include <string>
#include <vector>

#include "adapters/shared/FileDescriptor.h"

namespace orvelle::linux {

class ChildProcess {
public:
    // The program gets a process group of its own. `input` open keeps it waiting for lines.
    explicit ChildProcess(std::vector<std::string> commandLine);
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;
    ~ChildProcess();

    pid_t Id() const { return process; }
    void WriteLine(const std::string& line);
    // Without its line feed; "" at the end.
    std::string ReadLine();
    // Its standard output, for whoever does not wait for lines.
    int Output() const { return output.Number(); }
    // Writes a line and waits for the answering one.
    std::string Ask(const std::string& line);
    void Kill(int signal);
    // Waits for the end; the status as waitpid gives it.
    int Wait();
    // Everything written to standard error; all of it after the end.
    std::string Errors();
    // "" while it runs, else by what status or signal it ended, and what it wrote to standard error. Before Wait.
    std::string HowItEnded();

private:
    const std::string command;
    pid_t process = -1;
    int status = 0;
    FileDescriptor input;
    FileDescriptor output;
    FileDescriptor errors;
};

// Waits until it is so, which these bring about. std::runtime_error, which ends a test at once, with what they wrote to
// standard error, where one of them ends before, or it takes very long.
void Await(const std::vector<ChildProcess*>& processes, const std::function<bool()>& isSo);

}  // namespace orvelle::linux
