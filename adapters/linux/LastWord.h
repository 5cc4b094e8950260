// What this process says of its end to whoever outlives it: that it ends as it was asked to, or by which error. Who
// says nothing has crashed or was killed. It waits in a pipe whose reading end the key guard is given; it reads it when
// the process is gone. Only the first word counts, so it is said before the clean-ups, in which more may go wrong.
#pragma once

#include <optional>
#include <string>

#include "adapters/shared/FileDescriptor.h"

namespace orvelle::linux {

class LastWord {
public:
    // What the system gives no pipe for isn't said, and nobody is given it: Descriptor() is -1.
    LastWord();
    LastWord(const LastWord&) = delete;
    LastWord& operator=(const LastWord&) = delete;
    // An exit by a library, as by that of the window system, is an orderly one.
    ~LastWord() { SayOrderly(); }

    void SayOrderly() { Say(""); }
    // One or two sentences for the user.
    void SayFailed(const std::string& sentences) { Say(sentences); }

    int Descriptor() const { return reading.Number(); }

    // The sentences, "" for an orderly end; nothing if nothing was said.
    static std::optional<std::string> Read(int descriptor);

private:
    void Say(const std::string& text);

    FileDescriptor reading;
    FileDescriptor writing;
};

}  // namespace orvelle::linux
