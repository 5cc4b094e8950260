// The session as simulators fly it, on a clock that the test drives: two played simulators, a directory that the test
// writes, and the far side of a framework link that keeps each message.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "adapters/shared/SessionDesk.h"
#include "simulators/SimulatorSession.h"
#include "simulators/directory/DirectoryReading.h"
#include "tests/shared/HandLoop.h"
#include "tests/simulators/PlayedSource.h"

namespace orvelle::simulators {

class KeptNetwork : public SessionDesk {
public:
    bool WriteParameter(Long, Long, Long) override { return false; }
    bool WriteText(Long, Long, const std::string&) override { return false; }
    std::map<Long, InterfaceRecord> Records() const override { return {}; }
    std::size_t Writes() const override { return 0; }
    PlayedNetworkSide* PlayedNetwork() override { return nullptr; }
    Ticket Observe(std::function<void()>) override { return {}; }

    std::vector<SessionSetting> Said;

private:
    void SaySession() override { Said.push_back(Session()); }
};

class WrittenDirectories : public directory::DirectorySource {
public:
    const std::vector<Found>& Directories() const override { return found; }
    void Write(const std::string& text) {
        found.clear();
        if (!text.empty()) {
            found.emplace_back();
            auto read = directory::ReadDirectory(text);
            EXPECT_EQ(read.FaultCount, 0U) << text;
            found.back().Content = std::make_shared<const directory::Directory>(std::move(*read.Content));
        }
        Changed();
    }

private:
    std::vector<Found> found;
};

constexpr const char* ClubDirectory = R"({"format": "orvelle-directory/1", "name": "Club", "servers": {
    "club": {"software": "teamspeak", "server": "voice.example.org:8767", "login": "pilot", "channel": "{mhz} {callsign}"}},
    "stations": [{"callsign": "BIKF_TWR", "rangeNm": 50, "voice": {"server": "club", "channel": "Keflavik Tower"},
        "transceivers": [{"frequency": 118300000, "latDeg": 64, "lonDeg": -22.6, "heightMslM": 52},
            {"frequency": 119100000, "latDeg": 64, "lonDeg": -22.6, "heightMslM": 52}]}],
    "everywhere": [{"frequency": 122800000, "voice": {"server": "club", "channel": "Unicom"}}]})";

class SessionRig : public testing::Test {
protected:
    SessionRig() {
        written.Write(ClubDirectory);
        state.Radios = {Radio{118300, true, true}, Radio{122800, true, false}};
        state.Transmits = 1;
        state.Callsign = "ABC123";
        state.IsOnline = true;
        state.Where = Place{64, -22.6, 3000};
    }

    void Tell() { flightGear.Tell(state); }
    // Both radios have their records, and the next message can go at once.
    void TellAndSettle() {
        Tell();
        loop.Run(SimulatorSession::SettlingMilliseconds + SimulatorSession::PaceMilliseconds);
    }
    void Tune(int kilohertz) {
        state.Radios[0].Kilohertz = kilohertz;
        Tell();
    }
    const SessionSetting& Now() const { return network.Session(); }
    std::string Channel(std::size_t radio) const { return Now().Voice[radio].Channel; }

    HandLoop loop;
    PlayedSource flightGear{"FlightGear", "fgfs"}, xPlane{"X-Plane 12", "X-Plane"};
    SimulatorChoice choice{{&flightGear, &xPlane}};
    WrittenDirectories written;
    directory::Directories directories{{&written}};
    directory::OwnLogins logins{"/nonexistent"};
    KeptNetwork network;
    SimulatorSession session{loop, choice, directories, logins, network};
    SimulatorState state;
};

}  // namespace orvelle::simulators
