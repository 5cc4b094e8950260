// Another program as a child of this one: where it is found, and what the child does between fork and exec. It must not
// outlive this program, however that ends, and what ends this one by its terminal doesn't end it before. Called by
// whoever starts one and waits for its end.
#pragma once

#include <sys/types.h>

#include <string>

namespace orvelle {

// Its file on the program path, or where systems have what a usual user's path doesn't lead to. "" for none.
std::string FindProgram(const std::string& name);

// Descriptors; -1 for nothing to read, and for what shall be thrown away.
struct ChildStreams {
    int Input = -1;
    int Output = -1;
    int Errors = -1;
};

constexpr int NotStarted = 127;  // exit status of a child that could not become the program

// Called by the child alone. `parent` is the process that forked; no other descriptor stays open. Nothing but system
// calls, since other threads of the parent may have held locks.
[[noreturn]] void BecomeProgram(char* const* arguments, const ChildStreams& streams, pid_t parent);

}  // namespace orvelle
