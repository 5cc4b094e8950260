// The process that lets go of the keys when this program can't do so itself, because it was killed or hangs. It sleeps
// while no key is held; while one is, it looks whether this program's beat goes on. It has a session of its own, takes
// no signal that can be refused, and leaves this program's control group where the system allows it. One that ended is
// replaced; what keeps it from running is told by Problem(). As it outlives this program, it is also the one that has
// the user told of an end without a word (LastWord.h).
#pragma once

#include <sys/types.h>

#include <chrono>
#include <string>

#include "adapters/shared/FileDescriptor.h"

namespace orvelle::linux {

class HeldKeys;

class KeyGuard {
public:
    // Where the guard finds what it is given.
    static constexpr int LineDescriptor = 3;
    static constexpr int HeldKeysDescriptor = 4;
    static constexpr int KernelDescriptor = 5;    // none where keys are those of the X server
    static constexpr int LastWordDescriptor = 6;  // none where nobody is to be told of the end

    // `file` is the guard's program; `display` the X server that it releases keys on; `lastWord` this program's last
    // word, -1 where nobody is to be told of its end.
    KeyGuard(std::string file, std::string display, int lastWord = -1);

    // Starts the guard unless it runs. Returns when it is sure to do its work, or Problem() tells why it won't. The
    // keys are those of a keyboard in the kernel by its descriptor, or of the X server where that is -1.
    void Watch(const HeldKeys& held, int kernelDescriptor);
    // Has the guard look at the set, into which the first key came.
    void Wake();

    // For the loop: readable when the guard has ended and Replace has something to do.
    int Descriptor() const { return ending.Number(); }
    // Starts another, but not for ever where each ends at once; the next Watch tries again.
    void Replace(const HeldKeys& held, int kernelDescriptor);

    // Why a key stays down if this program is killed; one sentence, "" if all is well.
    std::string Problem() const;

private:
    using Clock = std::chrono::steady_clock;

    bool Runs() const;
    bool RanForAWhile() const;
    void Bury();
    bool Start(const HeldKeys& held, int kernelDescriptor);

    std::string file;
    std::string display;
    std::string program;  // this one's own file, by which the user may start it again
    int lastWord;
    FileDescriptor ending;
    FileDescriptor line;
    pid_t process = -1;
    Clock::time_point started;
    int endsAtOnce = 0;  // one after another
    bool couldStart = true;
};

}  // namespace orvelle::linux
