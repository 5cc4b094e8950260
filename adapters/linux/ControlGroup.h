// The control group (cgroup v2) that this process belongs to. What kills a whole group, a service manager or the
// guard against too little memory, then misses a process that left it.
#pragma once

#include <string>

namespace orvelle::linux {

// Moves this process into a group of that name beside its own, which is made where it is missing and stays empty behind
// it. False, with nothing changed, where the system does not allow it: this user may not write to the group above, or
// there is none.
bool LeaveControlGroup(const std::string& name);

}  // namespace orvelle::linux
