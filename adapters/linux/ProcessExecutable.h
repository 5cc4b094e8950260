// Which program a process of this computer runs, told by the name of its file without the folder. For whoever wants to
// know an application by its process.
#pragma once

#include <sys/types.h>

#include <string>

namespace orvelle::linux {

// "" for a process that isn't there. Of another user's process the system tells no more than the first 15 bytes.
std::string ExecutableOf(pid_t process);

}  // namespace orvelle::linux
