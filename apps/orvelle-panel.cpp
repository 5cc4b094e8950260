// The panel on this computer, with the flight deck beside it. It reads no command line and no configuration.
#include <cstdlib>
#include <iostream>

#include "adapters/looks/Theme.h"
#include "adapters/qt/services/Application.h"
#include "adapters/x11/Display.h"
#include "adapters/x11/KeyRepeat.h"
#include "apps/PanelProgram.h"
#include "deck/FirstFlight.h"

int main() {
    using namespace orvelle;
    linux::TerminationSignals endings;
    if (const std::string missing = MissingDisplay(); !missing.empty()) {
        std::cerr << "OrvelleCP: " << missing << "\n";
        return EXIT_FAILURE;
    }
    linux::ProcessProgram program(linux::InstanceLock::OfThisSession());
    // The settings belong to the first instance.
    if (program.PrevInstance()) program.End();

    qt::Application application("orvelle-panel", [&](const std::exception& error) { EndByError(program, error); });
    qt::Application::setDesktopFileName("net.orvelle.OrvelleCP");
    ApplyTheme(SystemScheme());
    TellRepeatsAsPresses();
    PanelProgram panel(program, endings, SettingsFile());
    return application.Run([&] {
        panel.Open();
        PrepareFirstFlight(panel.SetUp);
    });
}
