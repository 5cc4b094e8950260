// The simulator's program with its window; orvelle-sim becomes it where there is a display.
#include <QMessageBox>
#include <iostream>

#include "adapters/linux/TerminationSignals.h"
#include "adapters/linux/WakeSocket.h"
#include "adapters/looks/DesktopTheme.h"
#include "adapters/looks/Text.h"
#include "adapters/qt/services/Application.h"
#include "adapters/qt/services/QtEventLoop.h"
#include "apps/SimulatorErrands.h"
#include "apps/SimulatorProgram.h"
#include "apps/SimulatorWindow.h"
#include "apps/WindowSystem.h"

using namespace orvelle;

namespace {

[[noreturn]] void FailBy(const std::exception& error) {
    std::cerr << "orvelle-sim: internal error: " << error.what() << std::endl;
    std::exit(EXIT_FAILURE);
}

}  // namespace

int main(int count, char** words) {
    linux::TerminationSignals endings;
    const auto [command, sentence] = ReadSimulatorCommand(count, words);
    if (command && !command->Serves()) return RunErrand(*command);
    const WindowSystem windows = FindWindowSystem();
    if (!command || !windows.Missing.empty()) {
        std::cerr << "orvelle-sim: " << (command ? windows.Missing : sentence) << std::endl;
        return EXIT_FAILURE;
    }
    qt::Application application("orvelle-sim", windows.Name, FailBy);
    qt::Application::setDesktopFileName("net.orvelle.orvellecp.simulator");
    const DesktopTheme theme;
    qt::QtEventLoop loop;
    SimulatorProgram program(loop, *command);
    SimulatorWindow window(program);
    program.Told = [&](const std::string& told) { window.Tell(told); };
    program.Ends = [&](const std::string& reason) {
        std::cerr << "orvelle-sim: " << reason << std::endl;
        QMessageBox::critical(&window, window.windowTitle(), ToQt(reason));
        qt::Application::exit(EXIT_FAILURE);
    };
    window.EndAsked = [] { qt::Application::exit(EXIT_SUCCESS); };
    const Ticket ended = loop.WhenReadable(endings.Descriptor(), [&] {
        if (endings.Take() != 0) qt::Application::exit(EXIT_SUCCESS);
    });
    linux::WakeSocket wake(ServingLock(*command).WakePath());
    Ticket woken;
    const int status = application.Run([&] {
        window.show();
        // From the loop: what hasn't begun to run can't be ended.
        loop.Post([&] {
            if (const std::string reason = program.Open(); !reason.empty()) return program.Ends(reason);
            wake.Listen();
            if (wake.Descriptor() < 0) return;
            woken = loop.WhenReadable(wake.Descriptor(), [&] {
                if (wake.Take() == Wish::ShowSimulator) window.BringUp();
            });
        });
    });
    program.Close();
    return status;
}
