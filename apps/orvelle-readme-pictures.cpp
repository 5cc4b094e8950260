// Takes the pictures of README.md, for tools/readme-pictures: orvelle-readme-pictures FOLDER light|dark
#include <QTemporaryDir>
#include <cstdlib>
#include <iostream>
#include <string>

#include "adapters/looks/Text.h"
#include "adapters/looks/Theme.h"
#include "adapters/qt/services/Application.h"
#include "apps/ReadmePictures.h"
#include "apps/ThisProcess.h"

int main(int count, char** values) {
    using namespace orvelle;
    const std::string palette = count == 3 ? values[2] : "";
    if (palette != "light" && palette != "dark") {
        std::cerr << "usage: orvelle-readme-pictures FOLDER light|dark\n";
        return 2;
    }
    ThisProcess process;
    if (const std::string missing = process.MissingDisplay(); !missing.empty()) {
        std::cerr << "OrvelleCP: " << missing << "\n";
        return EXIT_FAILURE;
    }
    qt::Application application("orvelle-readme-pictures", process.WindowSystem(),
                                [&](const std::exception& error) { process.EndByError(error); });
    ApplyTheme(palette == "dark" ? Scheme::Dark : Scheme::Light);
    QTemporaryDir work;
    if (!work.isValid()) {
        std::cerr << "OrvelleCP: no folder to work in: " << FromQt(work.errorString()) << "\n";
        return EXIT_FAILURE;
    }
    const Ticket workGoes = process.AtEnd([&] { work.remove(); });
    PanelProgram panel(process, FromQt(work.filePath("settings.sqlite")));
    ReadmePictures pictures(panel, QDir(values[1]), ToQt(palette));
    return application.Run([&] {
        pictures.Prepare();
        panel.Open();
        if (pictures.Take()) panel.End();
        process.EndByError("the pictures could not be taken");
    });
}
