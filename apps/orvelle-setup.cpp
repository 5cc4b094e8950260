// Lets this computer join a set-up of several computers and leave it: by commands for scripts, else in a window.
#include <QIcon>
#include <cstdlib>
#include <iostream>

#include "adapters/looks/DesktopTheme.h"
#include "adapters/qt/services/Application.h"
#include "adapters/qt/services/QtEventLoop.h"
#include "adapters/qt/widgets/StatusImage.h"
#include "apps/SetUpCommands.h"
#include "apps/SetUpDesk.h"
#include "apps/WindowSystem.h"
#include "deck/join/JoinDialog.h"

namespace orvelle {
namespace {

int ShowWindow(const SetUpCommand& command) {
    const WindowSystem windows = FindWindowSystem();
    if (!windows.Missing.empty()) {
        std::cerr << "orvelle-setup: " << windows.Missing
                  << " Without a window there are commands: orvelle-setup --help.\n";
        return EXIT_FAILURE;
    }
    qt::Application application("orvelle-setup", windows.Name, [](const std::exception& error) {
        std::cerr << "orvelle-setup: internal error: " << error.what() << "\n";
        std::_Exit(EXIT_FAILURE);
    });
    qt::Application::setQuitOnLastWindowClosed(true);
    qt::Application::setDesktopFileName("net.orvelle.orvellecp.setup");
    qt::Application::setWindowIcon(qt::StatusIcon("VVVVVV"));
    const DesktopTheme theme;
    qt::QtEventLoop loop;
    SetUpDesk desk(loop, command.DataFolder);
    deck::JoinDialog dialog(desk);
    return application.Run([&] { dialog.show(); });
}

}  // namespace
}  // namespace orvelle

int main(int argumentCount, char** arguments) {
    using namespace orvelle;
    auto command = ReadSetUpCommand({arguments + 1, arguments + argumentCount});
    if (!command) {
        std::cerr << "orvelle-setup: this can't be read; orvelle-setup --help tells what can.\n";
        return EXIT_FAILURE;
    }
    if (command->DataFolder.empty()) command->DataFolder = SetUpDesk::DataFolder();
    if (command->Wanted == SetUpCommand::Kind::Window) return ShowWindow(*command);
    return RunSetUpCommand(*command, std::cout, std::cerr);
}
