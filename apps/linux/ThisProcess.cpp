// This process where it runs on Linux.
#include "apps/ThisProcess.h"

#include <QLibraryInfo>
#include <filesystem>
#include <utility>

#include "adapters/linux/ProcessProgram.h"
#include "adapters/linux/TerminationSignals.h"
#include "adapters/linux/WaylandDisplay.h"
#include "adapters/looks/Text.h"
#include "adapters/x11/Display.h"
#include "platform/EventLoop.h"
#include "platform/RuntimeError.h"

namespace orvelle {

namespace {

bool HasWaylandWindows() {
    const std::filesystem::path plugins = FromQt(QLibraryInfo::path(QLibraryInfo::PluginsPath));
    return exists(plugins / "platforms" / "libqwayland-generic.so");
}

}  // namespace

struct ThisProcess::Parts {
    const std::string MissingServer = orvelle::MissingDisplay();  // before Qt would abort the program for want of one
    const bool IsWayland = !MissingServer.empty() && linux::HasWaylandDisplay();
    linux::TerminationSignals Endings;
    linux::ProcessProgram Program{linux::InstanceLock::OfThisSession()};
};

ThisProcess::ThisProcess() : parts(std::make_unique<Parts>()) {}
ThisProcess::~ThisProcess() = default;

// A Wayland session is reached through the X server that it brings along, where it does: there windows are placed.
std::string ThisProcess::MissingDisplay() const {
    if (!parts->IsWayland) return parts->MissingServer;
    return HasWaylandWindows() ? "" : "this Wayland session has no X server, and the package qt6-wayland is missing";
}

std::string ThisProcess::WindowSystem() const { return parts->IsWayland ? "wayland" : "xcb"; }

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
