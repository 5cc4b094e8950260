// The panel on this computer, with the flight deck beside it. It reads no command line and no configuration.
#include <cstdlib>
#include <iostream>

#include "adapters/looks/DesktopTheme.h"
#include "adapters/qt/services/Application.h"
#include "apps/PanelProgram.h"
#include "apps/ThisProcess.h"
#include "deck/FirstFlight.h"

int main() {
    using namespace orvelle;
    // So that a library's exit, as at the X server's death, is an end of its own too.
    static ThisProcess process;
    if (const std::string missing = process.MissingDisplay(); !missing.empty()) {
        std::cerr << "OrvelleCP: " << missing << "\n";
        return EXIT_FAILURE;
    }
    // The settings belong to the first instance.
    if (process.Program().PrevInstance()) {
        process.ShowRunning();
        process.Program().End();
    }

    qt::Application application("orvelle-panel", process.WindowSystem(),
                                [](const std::exception& error) { process.EndByError(error); });
    qt::Application::setDesktopFileName("net.orvelle.orvellecp");
    qt::Application::setApplicationVersion(ORVELLE_VERSION);
    const DesktopTheme theme;
    PanelProgram panel(process, UserSettings::File());
    return application.Run([&] {
        panel.Outside.WhenSoundIsKnown([&] {
            panel.Open();
            PrepareFirstFlight(panel.Outside.Practice.Sides());
        });
    });
}
