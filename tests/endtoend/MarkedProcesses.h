// The processes that descend from a test, however they were started and whoever their parent has become: they have in
// their environment what this object puts into the test's. Those that are left when it goes are ended.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace orvelle {

class MarkedProcesses {
public:
    MarkedProcesses();
    MarkedProcesses(const MarkedProcesses&) = delete;
    MarkedProcesses& operator=(const MarkedProcesses&) = delete;
    ~MarkedProcesses();

    // Those that run a program of that file name; all for "". One that has ended is none, buried or not.
    std::vector<pid_t> Running(const std::string& program = "") const;
    // The words of its command line, the program's own first.
    static std::vector<std::string> WordsOf(pid_t process);

private:
    std::string mark;
};

}  // namespace orvelle
