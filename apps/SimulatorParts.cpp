#include "apps/SimulatorParts.h"

#include <algorithm>
#include <utility>

#include "adapters/linux/ProcessEnd.h"
#include "adapters/linux/ProcessOfPort.h"
#include "adapters/shared/PrivateFile.h"

namespace orvelle {

namespace {

constexpr std::size_t LongestCallsign = 100;  // bytes

simulators::ProcessQuestions QuestionsOn(EventLoop& loop) {
    return {linux::ProcessOfPort, [&loop](pid_t process, std::function<void()> task) {
                return linux::WhenProcessEnds(loop, process, std::move(task));
            }};
}

}  // namespace

SimulatorParts::SimulatorParts(EventLoop& loop, const std::filesystem::path& data, std::uint16_t flightGearPort,
                               NetworkSide& network)
    : DirectoryFiles(data / "directory.d"),
      FlightGear(data, flightGearPort),
      FlightGearLine(loop, QuestionsOn(loop), FlightGear.Aircraft, flightGearPort),
      XPlane(loop, QuestionsOn(loop), {.Aircraft = FlightGear.Aircraft}),
      Logins(data / "directory-logins.json"),
      Folder(loop, DirectoryFiles),
      Addresses(loop, data),
      Topics(loop),
      Session(loop, Choice, Directories, Logins, network),
      callsignFile(data / "callsign") {
    troubles = FlightGear.Troubles;
    if (std::string trouble = Logins.Read(); !trouble.empty()) troubles.push_back(std::move(trouble));
    if (const PrivateText kept = ReadPrivateFile(callsignFile, LongestCallsign); kept.Text)
        Session.SetOwnCallsign(*kept.Text);
    Session.Changed = [this] {
        TellProblems();
        Changed();
    };
    Addresses.Told = [this](const std::string& sentence) { Tell(sentence); };
}

void SimulatorParts::TellTroubles() {
    isHeard = true;
    for (const std::string& trouble : std::exchange(troubles, {})) Told(trouble);
    TellProblems();
}

void SimulatorParts::Tell(const std::string& sentence) {
    if (isHeard)
        Told(sentence);
    else
        troubles.push_back(sentence);
}

void SimulatorParts::SetOwnCallsign(const std::string& callsign) {
    Session.SetOwnCallsign(callsign);
    if (const std::string why = WritePrivateFile(callsignFile, callsign); !why.empty())
        Told("Your callsign can't be kept in " + callsignFile.string() + ", since " + why + ".");
}

void SimulatorParts::TellProblems() {
    std::vector<std::string> problems = {FlightGearLine.Problem(), XPlane.Problem()};
    std::erase(problems, "");
    for (const std::string& problem : problems)
        if (std::ranges::find(toldProblems, problem) == toldProblems.end()) Tell(problem);
    toldProblems = std::move(problems);
}

}  // namespace orvelle
