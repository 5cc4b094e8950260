// What readers of simulators ask about processes of this computer. Answered by the program (adapters/linux); a test
// answers for processes of its own, or for none: nothing of any can be told then.
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <functional>

#include "platform/Ticket.h"

namespace orvelle::simulators {

struct ProcessQuestions {
    // Whose socket of UDP over IPv4 is bound to this port of this computer; 0 where that can't be told, as of another
    // user's process.
    std::function<pid_t(std::uint16_t port)> OwnerOfPort = [](std::uint16_t) { return 0; };
    // Runs the task once, from the loop, when the process has ended, also where it has ended already.
    std::function<Ticket(pid_t process, std::function<void()> task)> WhenEnded = [](pid_t, auto) { return Ticket(); };
};

}  // namespace orvelle::simulators
