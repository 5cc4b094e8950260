// What a simulator tells of itself, whole, after each change: the words that all simulators' readers share. Plain data.
#pragma once

#include <array>
#include <optional>
#include <string>

namespace orvelle::simulators {

struct Place {
    double Latitude = 0;   // degrees, north positive, -90 to 90
    double Longitude = 0;  // degrees, east positive, -180 to 180
    double Altitude = 0;   // feet above the sea
    bool operator==(const Place&) const = default;
};

struct Radio {
    int Kilohertz = 0;        // the channel's name, as 118305; 0 where none is told
    bool IsOperable = false;  // has power, and works
    bool IsHeard = false;     // operable, and switched or turned so that its user hears it
    bool operator==(const Radio&) const = default;
};

struct SimulatorState {
    std::array<Radio, 2> Radios;  // COM1 and COM2
    int Transmits = 0;            // 1 or 2: the radio on which the user would talk; 0 for none
    std::string Callsign;         // "" where the simulator knows none
    std::string Tail{};           // the aircraft's registration, "" where the simulator tells none
    bool IsOnline = false;        // connected to the multiplayer network, as far as the simulator knows
    bool IsPaused = false;
    std::optional<Place> Where;  // none where the simulator tells none, or one that can't be
    std::string Aircraft;        // as the simulator calls it, "" for unknown
    bool operator==(const SimulatorState&) const = default;
};

}  // namespace orvelle::simulators
