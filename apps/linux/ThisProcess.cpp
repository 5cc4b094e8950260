// This process where it runs on Linux.
#include "apps/ThisProcess.h"

#include <utility>

#include "adapters/linux/ProcessProgram.h"
#include "adapters/linux/TerminationSignals.h"
#include "apps/WindowSystem.h"
#include "platform/EventLoop.h"
#include "platform/RuntimeError.h"

namespace orvelle {

struct ThisProcess::Parts {
    const orvelle::WindowSystem Windows = FindWindowSystem();
    linux::TerminationSignals Endings;
    linux::ProcessProgram Program{linux::InstanceLock::OfThisSession()};
};

ThisProcess::ThisProcess() : parts(std::make_unique<Parts>()) {}
ThisProcess::~ThisProcess() = default;

std::string ThisProcess::MissingDisplay() const { return parts->Windows.Missing; }
std::string ThisProcess::WindowSystem() const { return parts->Windows.Name; }

orvelle::Program& ThisProcess::Program() { return parts->Program; }
std::string ThisProcess::Problem() const { return parts->Program.Problem(); }

void ThisProcess::EndByError(const std::exception& error) {
    if (const auto* runtimeError = dynamic_cast<const RuntimeError*>(&error)) parts->Program.Fail(runtimeError->Number);
    EndByError(std::string("internal error: ") + error.what());
}

void ThisProcess::EndByError(const std::string& reason) { parts->Program.Fail(reason); }
Ticket ThisProcess::AtEnd(std::function<void()> cleanUp) { return parts->Program.AtEnd(std::move(cleanUp)); }

Ticket ThisProcess::WhenEndIsAsked(EventLoop& loop, std::function<void()> end) {
    return loop.WhenReadable(parts->Endings.Descriptor(), [this, end = std::move(end)] {
        const int signal = parts->Endings.Take();
        if (signal == 0) return;
        end();
        parts->Program.EndBySignal(signal);
    });
}

}  // namespace orvelle
