// The lock by which a second instance of the program knows that it is the second, of the same user on the same
// display. The system drops it when the process that holds it is gone, however it ended, so a file that was left behind
// does no harm and no process number is compared.
#pragma once

#include <string>

#include "adapters/shared/FileDescriptor.h"

namespace orvelle::linux {

class InstanceLock {
public:
    // `folder` belongs to the user alone; `name` tells the display or session. Both are ways to one lock file.
    InstanceLock(std::string folder, std::string name) : folder(std::move(folder)), name(std::move(name)) {}

    // The user's runtime folder, or where the system has none a folder of the user's own under /tmp, and the display.
    static InstanceLock OfThisSession();

    // False if another process holds it. True if this one does, and where no lock can be had at all: rather two
    // panels than none. Problem() then tells why.
    bool Take();
    // Where the first instance listens to the others (WakeSocket.h); of use where it holds the lock.
    std::string WakePath() const { return folder + "/" + name + ".wake"; }
    // Why another instance may run beside this one; one sentence, "" if none does.
    const std::string& Problem() const { return problem; }

private:
    bool GoOnWithout(const std::string& reason);

    std::string folder;
    std::string name;
    std::string problem;
    FileDescriptor file;
};

}  // namespace orvelle::linux
