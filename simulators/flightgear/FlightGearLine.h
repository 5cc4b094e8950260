// FlightGear, read by the lines that its generic output sends to a UDP socket of this computer's loopback, 20 a second,
// each the whole state. The protocol file orvelle.xml tells it what to put into a line; FlightGear opens no port for
// it. The socket takes what comes over loopback alone, from FlightGear or any other program of this computer; whoever
// owns the port that a line comes from is the simulator's process. While one is heard, lines of another one don't
// count, and that it is there is told as a problem.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "adapters/shared/FileDescriptor.h"
#include "simulators/AircraftOverrides.h"
#include "simulators/SimulatorLife.h"
#include "simulators/SimulatorSource.h"

namespace orvelle::simulators {

class FlightGearLine : public SimulatorSource {
public:
    static constexpr std::uint16_t UsualPort = 5601;

    // `port` 0 takes any free one, for tests. A port that can't be had is told by Problem, and tried again.
    FlightGearLine(EventLoop& eventLoop, ProcessQuestions questions, AircraftOverrides aircraft,
                   std::uint16_t port = UsualPort);

    std::string Name() const override { return "FlightGear"; }
    Presence Stands() const override { return life.Stands(); }
    int Run() const override { return life.Run(); }
    const std::optional<SimulatorState>& State() const override { return state; }
    std::vector<std::string> Programs() const override { return {"fgfs", "FlightGear"}; }
    std::string Problem() const override;
    // The port's part of it, for whoever doesn't wait until it can be had.
    std::string PortProblem() const { return problem.empty() ? "" : problem + "."; }
    // Lines come, but none that can be read.
    bool IsOtherKind() const { return isOtherKind; }

    std::uint16_t Port() const { return port; }
    // Lines so far, and those among them that were none and were left out.
    unsigned long Lines() const { return lines; }
    unsigned long Refused() const { return refused; }

private:
    void Listen();
    void Serve();
    bool Counts(std::uint16_t from);
    void HearSecond();
    void HearOtherKind();
    void Take(std::string_view line);
    void Follow();

    EventLoop& loop;
    const ProcessQuestions questions;
    const AircraftOverrides overrides;
    std::uint16_t port;
    FileDescriptor socket;
    std::uint16_t sender = 0;    // the port that is heard, 0 for none
    pid_t process = 0;           // which owns it, 0 for unknown
    std::uint16_t stranger = 0;  // the port whose lines don't count, 0 for none
    SimulatorLife life;
    std::optional<SimulatorState> state;
    unsigned long lines = 0;
    unsigned long refused = 0;
    std::string problem;         // of the port, without an end; "" for none
    bool isSecondThere = false;  // the stranger is another process, and was heard within ten seconds
    bool isOtherKind = false;    // heard within two seconds, and nothing that can be read since
    Ticket readable, again, second, otherKind;
};

}  // namespace orvelle::simulators
