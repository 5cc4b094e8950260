// Shows the flight deck: asks the panel that runs to show it, or starts the panel first. For an entry of its own in the
// applications menu, as the panel itself reads no command line.
#include <poll.h>

#include <algorithm>
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
constexpr std::chrono::seconds PatienceWithAnother{3};
constexpr int BetweenTries = 20;  // ms

// The name under which the desktop expects a window, for the panel, whose window it will be.
std::string StartupId() {
    const char* const id = std::getenv("DESKTOP_STARTUP_ID");
    return id ? id : "";
}

// False when the time is up. A panel that ended may have found another one that is just beginning.
bool AskOnceItListens(const linux::WakeSocket& wake, const linux::StartedPrograms& panel) {
    auto end = Clock::now() + Patience;
    for (bool runs = true; Clock::now() < end;) {
        pollfd ended{panel.Descriptor(), POLLIN, 0};
        if (poll(&ended, runs ? 1 : 0, BetweenTries) > 0) {
            runs = false;
            end = std::min(end, Clock::now() + PatienceWithAnother);
        }
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
