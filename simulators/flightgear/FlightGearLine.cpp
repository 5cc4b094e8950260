#include "simulators/flightgear/FlightGearLine.h"

#include <netinet/in.h>

#include <array>
#include <cerrno>
#include <system_error>
#include <utility>

#include "simulators/UdpSocket.h"
#include "simulators/flightgear/FlightGearText.h"

namespace orvelle::simulators {

namespace {

constexpr Long AgainMilliseconds = 1000;
constexpr int MostDatagramsInTurn = 100;            // so that a flood leaves the loop to others
constexpr std::size_t LongestDatagram = 64 * 1024;  // bytes

std::string ProblemOf(std::uint16_t port, int error) {
    const std::string why = error == EADDRINUSE ? "another program has it" : std::generic_category().message(error);
    return "FlightGear's lines can't be heard on port " + std::to_string(port) + ", since " + why;
}

std::string OfSecond(std::uint16_t port) {
    return "Another FlightGear sends lines to port " + std::to_string(port) +
           ", too; they are left out while the first one is heard.";
}

}  // namespace

FlightGearLine::FlightGearLine(EventLoop& eventLoop, ProcessQuestions processQuestions, AircraftOverrides aircraft,
                               std::uint16_t usedPort)
    : loop(eventLoop),
      questions(std::move(processQuestions)),
      overrides(std::move(aircraft)),
      port(usedPort),
      life(eventLoop, questions) {
    life.Changed = [this] { Follow(); };
    Listen();
}

std::string FlightGearLine::Problem() const {
    if (problem.empty()) return isSecondThere ? OfSecond(port) : "";
    return problem + "; it is tried again each second.";
}

void FlightGearLine::Listen() {
    FileDescriptor opened = OpenUdp();
    if (!opened || !BindUdp(opened, {INADDR_LOOPBACK, port})) {
        const std::string told = ProblemOf(port, errno);
        again = loop.After(AgainMilliseconds, [this] { Listen(); });
        if (std::exchange(problem, told) != told) Changed();
        return;
    }
    port = PlaceOf(opened).Port;
    socket = std::move(opened);
    readable = loop.WhenReadable(socket.Number(), [this] { Serve(); });
    if (!std::exchange(problem, "").empty()) Changed();
}

void FlightGearLine::Serve() {
    std::array<char, LongestDatagram> bytes;
    for (int count = 0; count < MostDatagramsInTurn; ++count) {
        const std::optional<UdpPacket> packet = ReceiveUdp(socket, bytes);
        if (!packet) return;
        if (!Counts(packet->Sender.Port)) continue;
        std::string_view rest = packet->Bytes;
        while (!rest.empty()) {
            const std::size_t end = rest.find('\n');
            const std::size_t line = end == std::string_view::npos ? rest.size() : end + 1;
            Take(rest.substr(0, std::min(line, LongestFlightGearLine)));
            rest.remove_prefix(line);
        }
    }
}

// A simulator that begins anew, or is reset, sends from another port. Who owns a port is asked once for each, as the
// answer takes a look at all processes.
bool FlightGearLine::Counts(std::uint16_t from) {
    if (from == sender) return true;
    const bool isHeard = life.Stands() == Presence::Live;
    if (isHeard && from == stranger) {
        if (isSecondThere) HearSecond();
        return false;
    }

    const pid_t owner = questions.OwnerOfPort(from);
    if (isHeard && (owner == 0 || owner != process)) {
        stranger = from;
        // Two that aren't known may be one that was reset.
        if (owner != process) HearSecond();
        return false;
    }
    sender = from;
    if (std::exchange(process, owner) != owner) isSecondThere = false;
    stranger = 0;
    return true;
}

// One that loads is silent for seconds.
void FlightGearLine::HearSecond() {
    second = loop.After(SimulatorLife::ForgottenMilliseconds, [this] {
        if (std::exchange(isSecondThere, false)) Changed();
    });
    if (!std::exchange(isSecondThere, true)) Changed();
}

// Among lines that can be read it is no news.
void FlightGearLine::HearOtherKind() {
    if (life.Stands() == Presence::Live) return;
    otherKind = loop.After(SimulatorLife::QuietMilliseconds, [this] {
        isOtherKind = false;
        Changed();
    });
    if (!std::exchange(isOtherKind, true)) Changed();
}

void FlightGearLine::Take(std::string_view line) {
    ++lines;
    const std::optional<FlightGearWords> words = ReadFlightGearLine(line);
    if (!words) {
        ++refused;
        return HearOtherKind();
    }
    isOtherKind = false;
    otherKind.End();
    std::optional<SimulatorState> next = overrides.Apply(
        AircraftOf::FlightGear, words->State, [&](const std::string& property) { return words->Other(property); });
    const bool differs = state != next;
    state = std::move(next);
    if (life.Hear(process) == SimulatorLife::Told::Nothing && differs) Changed();
}

void FlightGearLine::Follow() {
    if (life.Stands() == Presence::Absent) {
        state.reset();
        sender = 0;
        process = 0;
        isSecondThere = false;
        // What its process has left would be taken for a simulator of an unknown process.
        LeaveOutUdp(socket);
    }
    Changed();
}

}  // namespace orvelle::simulators
