// The process that lets go of the keys when this program can't do so itself, because it was killed. It is started when
// the first key goes down, sleeps until this program's end of a pipe closes, and then releases on the X server what the
// shared set still holds. It has a session of its own and takes no signal that can be refused.
#pragma once

#include <sys/types.h>

#include <string>

#include "adapters/linux/FileDescriptor.h"

namespace orvelle::linux {

class HeldKeys;

class KeyGuard {
public:
    // Where the guard finds what it is given.
    static constexpr int PipeDescriptor = 3;
    static constexpr int HeldKeysDescriptor = 4;

    // `file` is the guard's program; `display` the X server that it releases keys on.
    KeyGuard(std::string file, std::string display) : file(std::move(file)), display(std::move(display)) {}

    // Starts the guard unless it runs; false if it can't be started. Returns when it is sure to do its work.
    bool Watch(const HeldKeys& held);
    const std::string& File() const { return file; }

private:
    bool Runs() const;

    std::string file;
    std::string display;
    pid_t process = -1;
    FileDescriptor pipe;
};

}  // namespace orvelle::linux
