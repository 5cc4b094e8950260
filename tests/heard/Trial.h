// A computer's voice engine in a process of its own, for a test: voice-trial, with the devices of one computer of the
// rig. Tells what it told. Ends with the object.
#pragma once

#include <sys/types.h>

#include <filesystem>
#include <string>
#include <vector>

#include "tests/linux/ChildProcess.h"

namespace orvelle::heard {

struct TrialFiles {
    std::filesystem::path Program;
    std::filesystem::path Module;
};
TrialFiles OwnTrialFiles();  // of the build that the test is of
TrialFiles TrialFilesIn(const std::filesystem::path& build);

class Trial {
public:
    // Has started its engine; no tones of its own, and all is heard: squelch 0.
    explicit Trial(int computer, const TrialFiles& files = OwnTrialFiles());
    Trial(const Trial&) = delete;
    Trial& operator=(const Trial&) = delete;
    ~Trial();

    void Say(const std::string& command) { process.WriteLine(command); }
    // Waits for a line that begins so, after those that were waited for before. False where it does not come, at once
    // where the process has ended.
    bool Await(const std::string& beginning);
    // The same, but gives the line; "" where it does not come.
    std::string Line(const std::string& beginning);
    // A room that is joined and heard in the headset.
    bool Join(int room, const std::string& address);

    std::string Told() const;
    pid_t Id() const { return process.Id(); }
    void Kill(int signal) { process.Kill(signal); }

private:
    void Read();

    const int computer;
    std::filesystem::path folder;
    linux::ChildProcess process;
    std::string unread;
    std::vector<std::string> lines;
    std::size_t next = 0;
};

}  // namespace orvelle::heard
