#include "apps/FlightGearErrand.h"

#include <cstdlib>
#include <iostream>

#include "adapters/linux/PollEventLoop.h"
#include "apps/FlightGearSetting.h"
#include "apps/OneLine.h"
#include "apps/SimulatorErrands.h"
#include "simulators/directory/Channels.h"
#include "simulators/flightgear/FlightGearLine.h"

namespace orvelle {

namespace {

constexpr Long Patience = 2000;  // milliseconds for a line to come

int Fail(const std::string& sentence) {
    std::cerr << "orvelle-sim: " << sentence << "\n";
    return EXIT_FAILURE;
}

std::string Quoted(const simulators::SimulatorState& state) {
    std::string told = "FlightGear tells its radios";
    if (!state.Aircraft.empty()) told += ", of the aircraft " + OneLine(state.Aircraft);
    return told + ": COM1 " + directory::Megahertz(state.Radios[0].Kilohertz) + ", COM2 " +
           directory::Megahertz(state.Radios[1].Kilohertz) + " MHz.";
}

// Whether lines come. Which process they are from is no matter here.
std::string Hearing(const FlightGearSetting& setting, std::uint16_t port) {
    linux::PollEventLoop loop;
    simulators::FlightGearLine line(loop, simulators::ProcessQuestions(), setting.Aircraft, port);
    if (!line.PortProblem().empty()) return line.PortProblem();
    line.Changed = [&] {
        if (line.State()) loop.Stop();
    };
    const Ticket patience = loop.After(Patience, [&] { loop.Stop(); });
    loop.Run();
    if (line.State()) return Quoted(*line.State());
    if (line.Lines() > 0) return "What comes on FlightGear's port are no lines of the kind that the two options make.";
    return "FlightGear tells nothing now: it isn't running, or was started without the two lines.";
}

int Show(const SimulatorCommand& command, const FlightGearSetting& setting) {
    for (const std::string& line : setting.Options.Lines()) std::cout << line << "\n";
    std::cout.flush();
    const std::string file = setting.Options.File().string();
    std::cerr << (setting.Options.AreAdded() ? "Both lines are in " + file + "."
                                             : "They aren't in " + file + "; --add writes them there.")
              << "\n"
              << (IsServed(command) ? "Whether FlightGear tells anything is shown by the orvelle-sim that runs now."
                                    : Hearing(setting, command.FlightGearPort))
              << "\n";
    return EXIT_SUCCESS;
}

int Tell(const std::string& failure, const std::string& success) {
    if (!failure.empty()) return Fail(failure);
    std::cerr << success << "\n";
    return EXIT_SUCCESS;
}

}  // namespace

int RunFlightGearErrand(const SimulatorCommand& command) {
    using Task = SimulatorCommand::Task;
    const FlightGearSetting setting(command.Data, command.FlightGearPort);
    for (const std::string& trouble : setting.Troubles) Fail(trouble);
    const std::string file = setting.Options.File().string();
    if (command.What == Task::AddFlightGear)
        return Tell(setting.Options.Add(),
                    "Both lines are in " + file + "; FlightGear obeys them from its next start on.");
    if (command.What == Task::RemoveFlightGear)
        return Tell(setting.Options.TakeOut(), "The lines are not in " + file + " any more.");
    return Show(command, setting);
}

}  // namespace orvelle
