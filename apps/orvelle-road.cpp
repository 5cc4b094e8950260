// What ./run does without a display of the user's: the whole panel on a display of its own, played by itself. Exit
// status 0 if every step of the road came about.
#include <QTemporaryDir>
#include <cstdlib>
#include <iostream>

#include "adapters/looks/DesktopTheme.h"
#include "adapters/looks/Text.h"
#include "adapters/qt/services/Application.h"
#include "apps/Road.h"
#include "apps/ThisProcess.h"

int main() {
    using namespace orvelle;
    ThisProcess process;
    if (const std::string missing = process.MissingDisplay(); !missing.empty()) {
        std::cerr << "OrvelleCP: " << missing << "\n";
        return EXIT_FAILURE;
    }
    qt::Application application("orvelle-road", process.WindowSystem(),
                                [&](const std::exception& error) { process.EndByError(error); });
    const DesktopTheme theme;
    // Made anew under a name that nobody can guess, for this user alone.
    QTemporaryDir work;
    if (!work.isValid()) {
        std::cerr << "OrvelleCP: no folder to work in: " << FromQt(work.errorString()) << "\n";
        return EXIT_FAILURE;
    }
    const Ticket workGoes = process.AtEnd([&] { work.remove(); });
    PanelProgram panel(process, FromQt(work.filePath("settings.sqlite")));
    Road road(panel, work.path(), "build/pictures");
    return application.Run([&] {
        road.Prepare();
        panel.Open();
        if (road.Play()) panel.End();
        process.EndByError("the road is not passable");
    });
}
