// orvelle-flightgear-times TELNET_PORT LINES_PORT COUNT AIRCRAFT_FILE: how long a change of a radio in a FlightGear
// that runs takes until its reader tells it, and what the aircraft's own panel means; bench/flightgear runs it. A time
// begins as the change is sent to FlightGear's telnet.
#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

#include <array>
#include <chrono>
#include <cstdio>
#include <iostream>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include "adapters/linux/PollEventLoop.h"
#include "simulators/flightgear/FlightGearLine.h"
#include "tests/heard/Median.h"

namespace orvelle {

namespace {

using Clock = std::chrono::steady_clock;
using simulators::SimulatorState;

constexpr Long StartPatience = 600'000;  // milliseconds until FlightGear tells its first line
constexpr Long Loading = 30'000;         // after it FlightGear goes on loading, and tells nothing for seconds
constexpr Long ChangePatience = 2'000;   // until a change counts as lost

// FlightGear's own interface for setting properties, in its mode without a prompt.
class Telnet {
public:
    Telnet(EventLoop& loop, std::uint16_t port) : socket(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_port = htons(port);
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        const int on = 1;
        setsockopt(socket.Number(), IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
        if (connect(socket.Number(), reinterpret_cast<sockaddr*>(&address), sizeof address) != 0)
            throw std::runtime_error("FlightGear's telnet can't be reached");
        answers = loop.WhenReadable(socket.Number(), [this] {
            std::array<char, 4096> unread;
            if (recv(socket.Number(), unread.data(), unread.size(), 0) <= 0)
                throw std::runtime_error("FlightGear ended");
        });
        Send("data");
    }
    void Set(const std::string& property, const std::string& value) { Send("set " + property + " " + value); }

private:
    void Send(const std::string& command) {
        const std::string line = command + "\r\n";
        if (send(socket.Number(), line.data(), line.size(), MSG_NOSIGNAL) != static_cast<ssize_t>(line.size()))
            throw std::runtime_error("FlightGear ended");
    }

    FileDescriptor socket;
    Ticket answers;
};

class Measurement {
public:
    Measurement(std::uint16_t linesPort, simulators::AircraftOverrides aircraft)
        : line(loop, simulators::ProcessQuestions(), std::move(aircraft), linesPort) {
        if (!line.Problem().empty()) throw std::runtime_error(line.Problem());
    }

    void Run(std::uint16_t telnetPort, int count) {
        const auto start = Clock::now();
        if (!Await(StartPatience, [](const SimulatorState&) { return true; }))
            throw std::runtime_error("no line has come");
        std::printf("first line after %.1f s, aircraft %s\n", Milliseconds(start) / 1000,
                    line.State()->Aircraft.c_str());
        Pause(Loading);
        Telnet telnet(loop, telnetPort);
        Tune(telnet, count);
        if (line.State()->Aircraft.starts_with("c172p")) ShowPanel(telnet);
        std::printf("%lu lines, %lu of them refused\n", line.Lines(), line.Refused());
    }

private:
    static double Milliseconds(Clock::time_point since) {
        return std::chrono::duration<double, std::milli>(Clock::now() - since).count();
    }
    template <typename Condition>
    bool Await(Long patience, const Condition& isSo) {
        const auto holds = [&] { return line.State() && isSo(*line.State()); };
        if (holds()) return true;
        line.Changed = [&] {
            if (holds()) loop.Stop();
        };
        const Ticket late = loop.After(patience, [&] { loop.Stop(); });
        loop.Run();
        line.Changed = [] {};
        return holds();
    }
    void Pause(Long milliseconds) {
        const Ticket over = loop.After(milliseconds, [&] { loop.Stop(); });
        loop.Run();
    }

    // Channels of 25 kHz, which no radio names in another way; at moments that have nothing to do with the frames.
    void Tune(Telnet& telnet, int count) {
        std::mt19937 random(1);
        std::vector<double> times;
        int lost = 0;
        for (int index = 0; index < count; ++index) {
            const int kilohertz = 118000 + 25 * (index * 7 % 700);
            char megahertz[16];
            std::snprintf(megahertz, sizeof megahertz, "%d.%03d", kilohertz / 1000 % 1000, kilohertz % 1000);
            const auto start = Clock::now();
            telnet.Set("/instrumentation/comm[0]/frequencies/selected-mhz", megahertz);
            if (Await(ChangePatience,
                      [&](const SimulatorState& state) { return state.Radios[0].Kilohertz == kilohertz; }))
                times.push_back(Milliseconds(start));
            else
                ++lost;
            Pause(static_cast<Long>(20 + random() % 100));
        }
        if (times.empty()) throw std::runtime_error("no change has come");
        const auto share = [&](double part) { return heard::PartOf(times, part); };
        std::printf("change to reader, ms: least %.1f, median %.1f, p95 %.1f, greatest %.1f; lost %d of %d\n", share(0),
                    share(0.5), share(0.95), share(1), lost, count);
    }

    void ShowPanel(Telnet& telnet) {
        for (const char* property : {"/controls/switches/master-bat", "/controls/switches/master-avionics",
                                     "/instrumentation/comm[0]/power-btn", "/instrumentation/comm[1]/power-btn"})
            telnet.Set(property, "true");
        for (const char* property :
             {"/instrumentation/comm[0]/volume-selected", "/instrumentation/comm[1]/volume-selected"})
            telnet.Set(property, "0.7");
        std::puts("knob auto com1 com2   heard, talks");
        for (const auto& [knob, automatic, first, second] :
             std::vector<std::array<const char*, 4>>{{"-1", "0", "0", "0"},
                                                     {"0", "0", "0", "0"},
                                                     {"1", "0", "0", "0"},
                                                     {"-1", "1", "0", "0"},
                                                     {"0", "-1", "0", "0"},
                                                     {"1", "1", "0", "0"},
                                                     {"-1", "0", "1", "0"},
                                                     {"-1", "0", "0", "-1"},
                                                     {"0", "0", "1", "1"}}) {
            const std::string panel = "/instrumentation/kma20/";
            telnet.Set(panel + "knob", knob);
            telnet.Set(panel + "auto", automatic);
            telnet.Set(panel + "com1", first);
            telnet.Set(panel + "com2", second);
            Pause(500);
            const SimulatorState& state = *line.State();
            std::printf("%4s %4s %4s %4s   %s%s%s\n", knob, automatic, first, second,
                        state.Radios[0].IsHeard ? "COM1 " : "", state.Radios[1].IsHeard ? "COM2 " : "",
                        state.Transmits == 0 ? ", none" : (", COM" + std::to_string(state.Transmits)).c_str());
        }
    }

    linux::PollEventLoop loop;
    simulators::FlightGearLine line;
};

int Fail(const std::string& reason) {
    std::cerr << "orvelle-flightgear-times: " << reason << "\n";
    return 1;
}

}  // namespace

}  // namespace orvelle

int main(int argc, char** argv) {
    if (argc != 5) return orvelle::Fail("usage: orvelle-flightgear-times TELNET_PORT LINES_PORT COUNT AIRCRAFT_FILE");
    try {
        orvelle::simulators::AircraftOverrides aircraft;
        if (const std::string sentence = aircraft.Add(argv[4]); !sentence.empty()) return orvelle::Fail(sentence);
        orvelle::Measurement(static_cast<std::uint16_t>(std::stoi(argv[2])), std::move(aircraft))
            .Run(static_cast<std::uint16_t>(std::stoi(argv[1])), std::stoi(argv[3]));
    } catch (const std::exception& error) {
        return orvelle::Fail(error.what());
    }
    return 0;
}
