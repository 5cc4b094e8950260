// Shows the flight deck: asks the panel that runs to show it, or starts the panel first. For an entry of its own in the
// applications menu, as the panel itself reads no command line.
#include <poll.h>

#include <chrono>
#include <cstdlib>
#include <iostream>

#include "adapters/linux/InstanceLock.h"
#include "adapters/linux/OwnFile.h"
#include "adapters/linux/StartedPrograms.h"
#include "adapters/linux/WakeSocket.h"

using namespace orvelle;

namespace {

using Clock = std::chrono::steady_clock;
constexpr std::chrono::seconds Patience{20};  // with a panel that begins
constexpr int BetweenTries = 20;              // ms

// The name under which the desktop expects a window, for the panel, whose window it will be.
std::string StartupId() {
    const char* const id = std::getenv("DESKTOP_STARTUP_ID");
    return id ? id : "";
}

// False when a time is up that only a panel needs which can't begin, or when it has ended.
bool AskOnceItListens(const linux::WakeSocket& wake, const linux::StartedPrograms& panel) {
    const auto end = Clock::now() + Patience;
    for (bool runs = true; runs && Clock::now() < end;) {
        pollfd ended{panel.Descriptor(), POLLIN, 0};
        runs = poll(&ended, 1, BetweenTries) == 0;
        if (wake.Ask(Wish::ShowDeck)) return true;
    }
    return false;
}

}  // namespace

int main() {
    const linux::WakeSocket wake(linux::InstanceLock::OfThisSession().WakePath());
    if (wake.Ask(Wish::ShowDeck)) return EXIT_SUCCESS;
    linux::StartedPrograms panel;
    const std::string file = linux::BesideOwnFile("orvelle-panel");
    const bool isStarted = panel.Start(file, {}, StartupId()).Error == 0;
    if (isStarted && AskOnceItListens(wake, panel)) return EXIT_SUCCESS;
    std::cerr << "orvelle-deck: the panel " << file << " could not be started.\n";
    return EXIT_FAILURE;
}
