// The panel on this computer, with the flight deck beside it. It reads no command line and no configuration.
#include <cstdlib>
#include <iostream>

#include "apps/PanelProgram.h"
#include "deck/FirstFlight.h"
#include "platform/qt/Application.h"
#include "platform/qt/Display.h"
#include "platform/qt/Theme.h"

int main() {
    using namespace orvelle;
    TerminationSignals endings;
    if (const std::string missing = MissingDisplay(); !missing.empty()) {
        std::cerr << "OrvelleCP: " << missing << "\n";
        return EXIT_FAILURE;
    }
    ProcessProgram program(InstanceLock::OfThisSession());
    // The settings belong to the first instance.
    if (program.PrevInstance()) program.End();

    Application application("orvelle-panel", [&](const std::exception& error) { EndByError(program, error); });
    Application::setDesktopFileName("net.orvelle.OrvelleCP");
    ApplyTheme(SystemScheme());
    PanelProgram panel(program, endings, SettingsFile());
    return application.Run([&] {
        panel.Open();
        PrepareFirstFlight(panel.SetUp);
    });
}
