#include "simulators/flightgear/FlightGearLine.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <array>
#include <cerrno>
#include <system_error>
#include <utility>

namespace orvelle::simulators {

namespace {

constexpr Long AgainMilliseconds = 1000;
constexpr int MostDatagramsInTurn = 100;            // so that a flood leaves the loop to others
constexpr std::size_t LongestDatagram = 64 * 1024;  // bytes

struct Loopback {
    explicit Loopback(std::uint16_t port) {
        address.sin_family = AF_INET;
        address.sin_port = htons(port);
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    }
    sockaddr* Address() { return reinterpret_cast<sockaddr*>(&address); }
    std::uint16_t Port() const { return ntohs(address.sin_port); }

    sockaddr_in address{};
    socklen_t Length = sizeof(address);
};

std::string ProblemOf(std::uint16_t port, int error) {
    const std::string why = error == EADDRINUSE ? "another program has it" : std::generic_category().message(error);
    return "FlightGear's lines can't be heard on port " + std::to_string(port) + ", since " + why +
           "; it is tried again each second.";
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

std::string FlightGearLine::Problem() const { return problem; }

void FlightGearLine::Listen() {
    Loopback own(port);
    FileDescriptor opened(::socket(AF_INET, SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
    if (!opened || bind(opened.Number(), own.Address(), own.Length) != 0) {
        const std::string told = ProblemOf(port, errno);
        again = loop.After(AgainMilliseconds, [this] { Listen(); });
        if (std::exchange(problem, told) != told) Changed();
        return;
    }
    getsockname(opened.Number(), own.Address(), &own.Length);
    port = own.Port();
    socket = std::move(opened);
    readable = loop.WhenReadable(socket.Number(), [this] { Serve(); });
    if (!std::exchange(problem, "").empty()) Changed();
}

void FlightGearLine::Serve() {
    std::array<char, LongestDatagram> bytes;
    for (int count = 0; count < MostDatagramsInTurn; ++count) {
        Loopback from(0);
        const ssize_t length = recvfrom(socket.Number(), bytes.data(), bytes.size(), 0, from.Address(), &from.Length);
        if (length < 0) return;
        if (!Counts(from.Port())) continue;
        std::string_view rest(bytes.data(), static_cast<std::size_t>(length));
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
    if (isHeard && from == stranger) return false;

    const pid_t owner = questions.OwnerOfPort(from);
    if (isHeard && (owner == 0 || owner != process)) {
        stranger = from;
        return false;
    }
    sender = from;
    process = owner;
    stranger = 0;
    return true;
}

void FlightGearLine::Take(std::string_view line) {
    ++lines;
    const std::optional<FlightGearWords> words = ReadFlightGearLine(line);
    if (!words) {
        ++refused;
        return;
    }
    std::optional<SimulatorState> next = overrides.Apply(*words);
    const bool differs = state != next;
    state = std::move(next);
    // With the state already told, as another process is told with its own.
    isTold = false;
    life.Hear(process);
    if (differs && !isTold) Changed();
}

void FlightGearLine::Follow() {
    isTold = true;
    if (life.Stands() == Presence::Absent) {
        state.reset();
        sender = 0;
        process = 0;
        // What its process has left would be taken for a simulator of an unknown process.
        std::array<char, 1> byte{};
        while (recv(socket.Number(), byte.data(), byte.size(), 0) >= 0) continue;
    }
    Changed();
}

}  // namespace orvelle::simulators
