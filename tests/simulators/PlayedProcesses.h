// Processes of this computer that a test plays: whose a port is, and when they end.
#pragma once

#include <map>
#include <utility>

#include "platform/Observers.h"
#include "simulators/ProcessQuestions.h"

namespace orvelle::simulators {

struct PlayedProcesses {
    ProcessQuestions Questions(std::function<pid_t(std::uint16_t port)> ownerOfPort) {
        return {[this, ownerOf = std::move(ownerOfPort)](std::uint16_t port) {
                    ++Asked;
                    return ownerOf(port);
                },
                [this](pid_t process, std::function<void()> task) { return endings[process].Attach(std::move(task)); }};
    }
    void End(pid_t process) { endings[process].Tell(); }

    int Asked = 0;  // how often, whose a port is

private:
    std::map<pid_t, Observers<>> endings;
};

}  // namespace orvelle::simulators
