// The two ends of this process: whether it may begin, and every way in which it ends by its own will. Each of the ends
// runs the clean-ups that the adapters registered, the last one first, and then ends the process at once. What is left
// are ends that nobody can attend, for which the key guard is there. Each end says its last word first.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "adapters/linux/InstanceLock.h"
#include "adapters/linux/LastWord.h"
#include "platform/Processes.h"
#include "platform/Ticket.h"

namespace orvelle::linux {

class ProcessProgram : public Program {
public:
    static constexpr int ExitOfRunTimeError = 70;
    // "run-time error 13: type mismatch"
    static std::string NameOfError(int errorNumber);

    explicit ProcessProgram(InstanceLock lock) : lock(std::move(lock)) {}

    bool PrevInstance() override { return !lock.Take(); }
    // Why PrevInstance may be wrong in finding none; one sentence, "" if it is right.
    const std::string& Problem() const { return lock.Problem(); }
    // Exit status 0.
    [[noreturn]] void End() override;
    // For a run-time error that nobody caught, by its number, or another error by its reason: one line on standard
    // error and exit status 70. An orderly end to whoever outlives the process, unless the last word said otherwise.
    [[noreturn]] void Fail(int errorNumber);
    [[noreturn]] void Fail(const std::string& reason);
    // For a signal that asks for the end; the process ends by this signal, so that whoever waits for it can tell.
    [[noreturn]] void EndBySignal(int signal);

    // The clean-up runs if the process ends while the ticket is kept. It must not throw; one that does is given up and
    // the next one runs.
    [[nodiscard]] Ticket AtEnd(std::function<void()> cleanUp) {
        return cleanUps.emplace_back().Begin(std::move(cleanUp));
    }

    LastWord Last;

private:
    void CleanUp();

    InstanceLock lock;
    std::vector<Attachment<>> cleanUps;
};

}  // namespace orvelle::linux
