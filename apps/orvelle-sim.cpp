// The program of the simulator's computer: it makes a set-up of several computers, brings its broker and serves it.
#include <unistd.h>

#include <cstdlib>
#include <iostream>

#include "adapters/linux/OwnFile.h"
#include "adapters/linux/PollEventLoop.h"
#include "adapters/linux/TerminationSignals.h"
#include "adapters/linux/WakeSocket.h"
#include "apps/SimulatorErrands.h"
#include "apps/SimulatorProgram.h"

using namespace orvelle;

namespace {

void Say(const std::string& sentence) { std::cerr << "orvelle-sim: " << sentence << std::endl; }

// Its end is an orderly one also where a signal asks for it.
int ServeWithoutWindow(linux::TerminationSignals& endings, const SimulatorCommand& command) {
    linux::PollEventLoop loop;
    SimulatorProgram program(loop, command);
    int status = EXIT_SUCCESS;
    program.Told = Say;
    program.Ends = [&](const std::string& sentence) {
        Say(sentence);
        status = EXIT_FAILURE;
        loop.Stop();
    };
    if (const std::string sentence = program.Open(); !sentence.empty()) {
        Say(sentence);
        return EXIT_FAILURE;
    }
    const Ticket ended = loop.WhenReadable(endings.Descriptor(), [&] {
        if (endings.Take() != 0) loop.Stop();
    });
    loop.Run();
    program.Close();
    return status;
}

// The one with a window is a program of its own, beside this one. It returns where there is none, or no display.
void BecomeProgramWithWindow(char** words) {
    if (std::getenv("DISPLAY") == nullptr && std::getenv("WAYLAND_DISPLAY") == nullptr)
        return Say("There is no display, so it serves without a window.");
    execv(linux::OwnProgram("orvelle-sim-window").c_str(), words);
    Say("Its window is not installed, so it serves without one.");
}

}  // namespace

int main(int count, char** words) {
    linux::TerminationSignals endings;
    const auto [command, sentence] = ReadSimulatorCommand(count, words);
    if (!command) {
        Say(sentence);
        return EXIT_FAILURE;
    }
    using Task = SimulatorCommand::Task;
    if (command->Serves() && IsServed(*command)) {
        // Another name for the set-up of the one that runs is an errand, too.
        if (!command->Name.empty()) return RunErrand(*command);
        if (command->What == Task::Serve &&
            linux::WakeSocket(ServingLock(*command).WakePath()).Ask(Wish::ShowSimulator))
            return EXIT_SUCCESS;
        Say("Another orvelle-sim serves this set-up already.");
        return EXIT_FAILURE;
    }
    if (!command->Serves()) return RunErrand(*command);
    if (command->What == Task::Serve) BecomeProgramWithWindow(words);
    return ServeWithoutWindow(endings, *command);
}
