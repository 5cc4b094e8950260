// Starts programs and knows this one's file and working directory. WinExec returns when the system has taken the
// program over or refused it, and doesn't wait for what it does. Its windows are kept minimised for as long as the
// watch over them lasts, and a program that has ended is buried, whenever the loop calls Serve.
#pragma once

#include <string>

#include "adapters/linux/MinimisedStart.h"
#include "adapters/linux/StartedPrograms.h"
#include "platform/Event.h"
#include "platform/Processes.h"

namespace orvelle::linux {

class LinuxProcesses : public Processes {
public:
    static constexpr Long Started = 33;
    static constexpr Long NoSuchFile = 2;
    static constexpr Long NotPermitted = 5;
    static constexpr Long TooLong = 8;
    static constexpr Long NoProgram = 11;

    // `display` "" is the environment's.
    explicit LinuxProcesses(std::string display);

    // For the loop: readable when Serve has something to do, the same one for the object's whole life.
    int Descriptor() const { return readiness.Number(); }
    void Serve();

    // The panel shows nothing of a start, be it done or failed; whoever wants to tell of it listens here. One sentence.
    Event<const std::string&> Told;

    // A program named without a "/" is searched in PATH. A path with blanks that is not quoted is found too, as the
    // shortest head of the line that is a file. Results: the constants above.
    Long WinExec(const std::string& commandLine, Long show) override;
    std::string GetModuleFileNameA() override;
    // "" if the path, with its closing zero, doesn't fit into `size`.
    std::string GetCurrentDirectoryA(Long size) override;
    // A directory that can't be entered leaves the working directory as it is.
    void SetCurrentDirectoryA(const std::string& path) override;

private:
    int Start(const std::string& file, const std::vector<std::string>& arguments, Long show);

    FileDescriptor readiness;
    StartedPrograms programs;
    MinimisedStart minimised;
};

}  // namespace orvelle::linux
