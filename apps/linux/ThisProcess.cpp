// This process where it runs on Linux.
#include "apps/ThisProcess.h"

#include <utility>

#include "adapters/linux/ProcessProgram.h"
#include "adapters/linux/TerminationSignals.h"
#include "adapters/linux/WakeSocket.h"
#include "apps/EndSentences.h"
#include "apps/WindowSystem.h"
#include "platform/EventLoop.h"
#include "platform/RuntimeError.h"

namespace orvelle {

struct ThisProcess::Parts {
    const orvelle::WindowSystem Windows = FindWindowSystem();
    linux::TerminationSignals Endings;
    linux::ProcessProgram Program{linux::InstanceLock::OfThisSession()};
    linux::WakeSocket Wake{linux::InstanceLock::OfThisSession().WakePath()};
    Attachment<const std::string&, std::string&> Explanation;
};

ThisProcess::ThisProcess() : parts(std::make_unique<Parts>()) {}
ThisProcess::~ThisProcess() = default;

std::string ThisProcess::MissingDisplay() const { return parts->Windows.Missing; }
std::string ThisProcess::WindowSystem() const { return parts->Windows.Name; }

orvelle::Program& ThisProcess::Program() { return parts->Program; }
std::string ThisProcess::Problem() const { return parts->Program.Problem(); }

void ThisProcess::ShowRunning() const { parts->Wake.Ask(Wish::ShowPanel); }

Ticket ThisProcess::WhenAsked(EventLoop& loop, std::function<void(Wish)> grant) {
    // Where it may not be the only one it doesn't take the place of another.
    if (!Problem().empty()) return {};
    parts->Wake.Listen();
    if (parts->Wake.Descriptor() < 0) return {};
    return loop.WhenReadable(parts->Wake.Descriptor(), [this, grant = std::move(grant)] {
        if (const auto wish = parts->Wake.Take()) grant(*wish);
    });
}

void ThisProcess::EndByError(const std::exception& error) {
    const auto* runtimeError = dynamic_cast<const RuntimeError*>(&error);
    const std::string name = runtimeError ? linux::ProcessProgram::NameOfError(runtimeError->Number)
                                          : std::string("internal error: ") + error.what();
    std::string sentences = EndByOwnError(name);
    if (runtimeError) parts->Explanation(name, sentences);
    parts->Program.Last.SayFailed(sentences);
    EndByError(name);
}

void ThisProcess::EndByError(const std::string& reason) { parts->Program.Fail(reason); }
int ThisProcess::LastWord() const { return parts->Program.Last.Descriptor(); }
Ticket ThisProcess::Explain(std::function<void(const std::string&, std::string&)> explain) {
    return parts->Explanation.Begin(std::move(explain));
}
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
