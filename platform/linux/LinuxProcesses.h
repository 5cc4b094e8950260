// Starts programs and knows this one's file and working directory. A started program is nobody's child: it has a
// session of its own, standard input and outputs at /dev/null, no file and no signal state of ours, and leaves no
// zombie. WinExec returns when the system has taken the program over, or refused; it doesn't wait for what it does.
#pragma once

#include <functional>
#include <string>

#include "platform/Processes.h"

namespace orvelle {

class MinimisedStart;

class LinuxProcesses : public Processes {
public:
    static constexpr Long Started = 33;
    static constexpr Long NoSuchFile = 2;
    static constexpr Long NotPermitted = 5;
    static constexpr Long TooLong = 8;
    static constexpr Long NoProgram = 11;

    explicit LinuxProcesses(MinimisedStart& minimised) : minimised(minimised) {}

    // The panel shows nothing of a failed start; whoever wants to tell it listens here. One sentence.
    std::function<void(const std::string&)> StartFailed;

    // A program named without a "/" is searched in PATH. A path with blanks that is not quoted is found too, as the
    // shortest head of the line that is a file. Results: the constants above.
    Long WinExec(const std::string& commandLine, Long show) override;
    std::string GetModuleFileNameA() override;
    // "" if the path, with its closing zero, doesn't fit into `size`.
    std::string GetCurrentDirectoryA(Long size) override;
    // A directory that can't be entered leaves the working directory as it is.
    void SetCurrentDirectoryA(const std::string& path) override;

private:
    MinimisedStart& minimised;
};

}  // namespace orvelle
