// What ./run does without a display of the user's: the whole panel on a display of its own, played by itself. Exit
// status 0 if every step of the road came about.
#include <QTemporaryDir>
#include <cstdlib>
#include <iostream>

#include "adapters/looks/Theme.h"
#include "adapters/qt/services/Application.h"
#include "adapters/x11/Display.h"
#include "apps/Road.h"

int main() {
    using namespace orvelle;
    linux::TerminationSignals endings;
    if (const std::string missing = MissingDisplay(); !missing.empty()) {
        std::cerr << "OrvelleCP: " << missing << "\n";
        return EXIT_FAILURE;
    }
    linux::ProcessProgram program(linux::InstanceLock::OfThisSession());
    qt::Application application("orvelle-road", [&](const std::exception& error) { EndByError(program, error); });
    ApplyTheme(SystemScheme());
    QTemporaryDir settings;
    const Ticket removal = program.AtEnd([&] { settings.remove(); });
    PanelProgram panel(program, endings, settings.filePath("settings.sqlite").toStdString());
    Road road(panel, "build/pictures");
    return application.Run([&] {
        road.Prepare();
        panel.Open();
        const bool played = road.Play();
        // Out by the door; it does not return.
        if (played) panel.Table.Deliver(panel.Panel.Stub1, Stub::TerminationMessage, 0, 0);
        program.Fail("the road is not passable");
    });
}
