// Starts programs as strangers to this one and buries them when they have ended. A program gets a session of its own,
// /dev/null for standard input and outputs, and no file, blocked signal or ignored signal of ours; it goes on when this
// process ends.
#pragma once

#include <sys/types.h>

#include <map>
#include <string>
#include <vector>

#include "adapters/shared/FileDescriptor.h"

namespace orvelle::linux {

class StartedPrograms {
public:
    StartedPrograms();

    struct Result {
        int Error;      // 0 if the program runs, else the system's error number
        pid_t Session;  // of the program and all that it starts
    };

    // `file` is the program's path, `arguments` what it is told behind its name, `startupId` what names the start to
    // the program's toolkit, "" for nothing. Returns when the system has taken the program over or refused it.
    Result Start(const std::string& file, const std::vector<std::string>& arguments, const std::string& startupId);

    // Readable when a program has ended and Bury has something to do.
    int Descriptor() const { return ends.Number(); }
    void Bury();

private:
    FileDescriptor ends;
    std::map<pid_t, FileDescriptor> running;
};

}  // namespace orvelle::linux
