#include "apps/SimulatorCommand.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>
#include <utility>

#include "adapters/linux/BaseFolders.h"
#include "adapters/mqtt/OwnSetUp.h"
#include "adapters/mqtt/SetUpFile.h"
#include "adapters/mqtt/Topics.h"

namespace orvelle {

namespace {

using Task = SimulatorCommand::Task;

constexpr std::string_view FlightGear = "flightgear";

// The same that Qt calls GenericDataLocation, without Qt.
std::filesystem::path UsualData() { return linux::BaseFolders::OfThisUser().Data.front() / "OrvelleCP"; }

// 0 for none.
int PortOf(std::string_view text) {
    int port = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), port);
    return error == std::errc() && end == text.data() + text.size() && port >= 1 && port <= 65535 ? port : 0;
}

std::optional<Task> TaskOf(std::string_view word) {
    if (word == "--add") return Task::Add;
    if (word == "--list") return Task::List;
    if (word == "--remove") return Task::Remove;
    if (word == "--check") return Task::Check;
    if (word == "--no-window") return Task::ServeWithoutWindow;
    if (word == "--version") return Task::Version;
    return std::nullopt;
}

// It may stand anywhere, but values of options and files that are checked may be called so, too.
bool IsFlightGearSaid(int count, const char* const* words) {
    constexpr std::array<std::string_view, 5> WithValue{"--data", "--name", "--port", "--flightgear-port", "--host"};
    bool isFile = false;
    for (int index = 1; index < count; ++index) {
        const std::string_view word = words[index];
        if (word.starts_with("--")) isFile = word == "--check";
        if (std::ranges::find(WithValue, word) != WithValue.end())
            ++index;
        else if (word == FlightGear && !isFile)
            return true;
    }
    return false;
}

// Beside that word.
std::optional<Task> FlightGearTaskOf(std::string_view word) {
    if (word == "--add") return Task::AddFlightGear;
    if (word == "--remove") return Task::RemoveFlightGear;
    return std::nullopt;
}

}  // namespace

const char* SimulatorCommand::Help() {
    return R"(orvelle-sim: the simulator's computer of a set-up of several computers

It makes the set-up at its first start, brings the broker, and serves until it is ended.

  orvelle-sim [OPTION...]     serve
  orvelle-sim --no-window     serve without a display
  orvelle-sim --add           add a computer; prints the code to type on it, alone on one line
  orvelle-sim --list          print the computers: identity, name or "-", "there" or "away", parted by tabs
  orvelle-sim --remove c07    take a computer out of the set-up; it is cut off at once
  orvelle-sim --check FILE... hold directories of voice channels against the rules; "-" is standard input
  orvelle-sim flightgear      print the two lines that make FlightGear tell its radios, for ~/.fgfsrc, and say whether
                              they are there, and whether FlightGear tells anything now
  orvelle-sim flightgear --add, --remove
                              write them into ~/.fgfsrc, keeping a copy of it, or take them out
  orvelle-sim --help, --version

  --data FOLDER               keep everything in this folder (usually ~/.local/share/OrvelleCP)
  --name NAME                 call the set-up so from now on (at first it has this computer's name); beside a
                              running orvelle-sim it is that one's set-up that is called so
  --port N                    the broker's port from now on (8883 at first)
  --host HOST[:PORT]          use the broker that runs there instead of bringing one; it needs the keys and the
                              access list that lie in FOLDER/broker
  --flightgear-port N         hear FlightGear's lines on this port (usually 5601), and name it in its two lines
  --own                       serve a set-up of this computer's own, leaving the one that it has joined

A set-up has up to 99 computers. --add, --list and --remove work beside a running orvelle-sim or without one. A
computer that has joined another one's set-up serves there, and brings no broker.
--check prints a line for each mistake, "FILE:LINE: FIELD: ...", one for each oddity, "FILE:LINE: note: FIELD: ...",
and one that sums up.
Exit status: 0, or 1 with one line on standard error; of --check 1 where there is a mistake.
)";
}

ReadCommand ReadSimulatorCommand(int count, const char* const* words) {
    SimulatorCommand command;
    command.Data = UsualData();
    const bool isOfFlightGear = IsFlightGearSaid(count, words);
    if (isOfFlightGear) command.What = Task::FlightGear;
    bool hasTask = isOfFlightGear;
    bool isSaid = false;
    for (int index = 1; index < count; ++index) {
        const std::string_view word = words[index];
        if (word == "--help") {
            command.What = Task::Help;
            return {command, ""};
        }
        if (isOfFlightGear && word == FlightGear && !std::exchange(isSaid, true)) continue;
        if (const std::optional<Task> task = FlightGearTaskOf(word); task && command.What == Task::FlightGear) {
            command.What = *task;
            continue;
        }
        const auto value = [&] { return std::string_view(index + 1 < count ? words[++index] : ""); };
        if (const std::optional<Task> task = TaskOf(word)) {
            if (hasTask) return {std::nullopt, "one task at a time"};
            hasTask = true;
            command.What = *task;
            if (task == Task::Check)
                while (index + 1 < count && !std::string_view(words[index + 1]).starts_with("--"))
                    command.Files.emplace_back(words[++index]);
            if (task == Task::Check && command.Files.empty()) return {std::nullopt, "--check needs a file"};
            if (task != Task::Remove) continue;
            const std::string_view identity = value();
            command.Identity = mqtt::ReadIdentity(identity).value_or(0);
            if (command.Identity == 0)
                return {std::nullopt, "\"" + std::string(identity) + "\" is no computer; they are c01 to c99"};
        } else if (word == "--data") {
            command.Data = value();
            if (command.Data.empty()) return {std::nullopt, "--data needs a folder"};
        } else if (word == "--name") {
            command.Name = value();
            if (!mqtt::IsSetUpName(command.Name))
                return {std::nullopt, "--name needs a name of 1 to 63 bytes, without control characters"};
        } else if (word == "--own") {
            command.Own = true;
        } else if (word == "--port") {
            command.Port = PortOf(value());
            if (command.Port == 0) return {std::nullopt, "--port needs a number from 1 to 65535"};
        } else if (word == "--flightgear-port") {
            command.FlightGearPort = static_cast<std::uint16_t>(PortOf(value()));
            if (command.FlightGearPort == 0) return {std::nullopt, "--flightgear-port needs a number from 1 to 65535"};
        } else if (word == "--host") {
            command.Broker = ReadHostAndPort(value(), mqtt::UsualPort);
            if (!command.Broker) return {std::nullopt, "--host needs HOST or HOST:PORT"};
        } else {
            return {std::nullopt, "\"" + std::string(word) + "\" is not understood; --help tells what is"};
        }
    }
    if (command.IsOfFlightGear() && (!command.Name.empty() || command.Port != 0 || command.Broker))
        return {std::nullopt, "--name, --port and --host are for a set-up, not for flightgear"};
    if (command.Own && !command.Serves()) return {std::nullopt, "--own is for an orvelle-sim that serves"};
    if (command.Broker && command.Port != 0)
        return {std::nullopt, "--port is for a broker that orvelle-sim brings; with --host it is HOST:PORT"};
    return {command, ""};
}

}  // namespace orvelle
