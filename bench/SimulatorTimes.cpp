// orvelle-simulator-times ORVELLE-SIM [COUNT]: how long a change that a simulator tells takes from the UDP socket of a
// real orvelle-sim to another computer of its set-up, over a real broker, encrypted: half of the changes are
// frequencies, which come in the session at once, the other half places, by which a settled radio gets or loses its
// voice record. Fails where one is lost. Needs no display; bench/simulator-times runs it.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "simulators/directory/Channels.h"
#include "tests/heard/Median.h"
#include "tests/simulators/FlightGearRig.h"
#include "tests/simulators/FlownSetUp.h"

namespace orvelle {

namespace {

using Clock = std::chrono::steady_clock;

constexpr Long Pace = 55;        // milliseconds; no more than 20 messages a second are told
constexpr Long Patience = 2000;  // until a change counts as lost

constexpr const char* Directory = R"({"format": "orvelle-directory/1", "name": "Club",
    "servers": {"club": {"software": "teamspeak", "server": "voice.example.org"}},
    "stations": [{"callsign": "BIKF_TWR", "rangeNm": 50, "voice": {"server": "club"},
        "transceivers": [{"frequency": 118300000, "latDeg": 64, "lonDeg": -22.6, "heightMslM": 52}]}]})";

class Flight {
public:
    explicit Flight(const std::string& program) : setUp(program, Directory, "") {}

    // A radio's frequency; it is seen in the session.
    void Tune(int kilohertz) {
        const std::string shown = directory::Megahertz(kilohertz);
        tuned = shown;
        Measure([this, shown] { return setUp.Session.Frequency[0] == shown; });
    }
    // Over the station or far away from it; it is seen in the record.
    void Go(bool isNear) {
        latitude = isNear ? "64.00000" : "67.00000";
        Measure([this, isNear] { return setUp.Session.Voice[0].Server.empty() != isNear; });
    }
    // Without being measured, until the record of a channel is there.
    bool Settle(int kilohertz) {
        tuned = directory::Megahertz(kilohertz);
        latitude = "64.00000";
        Send();
        return setUp.Until([this] { return !setUp.Session.Voice[0].Server.empty(); });
    }
    // Whether none was lost.
    bool Print(const char* what) {
        const auto at = [this](double part) { return heard::PartOf(times, part); };
        std::printf("%-10s %6zu changes: least %.2f, median %.2f, p95 %.2f, p99 %.2f, greatest %.2f ms, lost %d\n",
                    what, times.size(), at(0), at(0.5), at(0.95), at(0.99), at(1), lost);
        std::fflush(stdout);
        const bool isWell = lost == 0 && !times.empty();
        times.clear();
        lost = 0;
        return isWell;
    }

private:
    void Send() {
        socket.Send(setUp.LinesPort(), "COM1=" + tuned + ",COM2=121.500,TX=1,ONLINE=1,LAT=" + latitude +
                                           ",LON=-22.60000,ALT=3000.0,CS=D-EABC\n");
    }
    void Measure(const std::function<bool()>& isSo) {
        bool isLost = false;
        const Ticket patience = setUp.Loop.After(Patience, [&] {
            isLost = true;
            setUp.Loop.Stop();
        });
        setUp.Heard = [&] {
            if (isSo()) setUp.Loop.Stop();
        };
        const auto begin = Clock::now();
        Send();
        setUp.Loop.Run();
        const std::chrono::duration<double, std::milli> taken = Clock::now() - begin;
        if (isLost)
            ++lost;
        else
            times.push_back(taken.count());
        setUp.Heard = [] {};
        const Ticket pace = setUp.Loop.After(Pace - static_cast<Long>(taken.count()), [this] { setUp.Loop.Stop(); });
        setUp.Loop.Run();
    }

    simulators::FlownSetUp setUp;
    simulators::LoopbackSocket socket;
    std::string tuned, latitude = "64.00000";
    std::vector<double> times;
    int lost = 0;
};

bool Measure(const std::string& program, int count) {
    Flight flight(program);
    if (!flight.Settle(118300)) return false;
    constexpr int Channels = 400;
    for (int change = 0; change < count / 2; ++change) flight.Tune(118305 + 25 * (change % Channels));
    bool isWell = flight.Print("frequency");
    isWell = flight.Settle(118300) && isWell;
    for (int change = 0; change < count / 2; ++change) flight.Go(change % 2 == 1);
    return flight.Print("record") && isWell;
}

}  // namespace

}  // namespace orvelle

int main(int argc, char** argv) {
    if (argc < 2) return 1;
    return orvelle::Measure(argv[1], argc > 2 ? std::max(2, std::stoi(argv[2])) : 1000) ? 0 : 1;
}
