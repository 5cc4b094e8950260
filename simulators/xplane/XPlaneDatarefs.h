// Which values of X-Plane are asked for, and how often: radios often, as their changes are waited for, the place and
// texts seldom. The number of a subscription is its place in the list. Texts are asked for byte by byte.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace orvelle::simulators {

struct Dataref {
    std::string Name;
    std::int32_t TimesASecond = 0;
};

// Those of a radio, first of COM1, then of COM2; after both those of the aircraft, then the bytes of the texts.
enum class RadioValue { Frequency, Power, Selected, Volume, Count };
enum class AircraftValue {
    Transmits,
    HearsTransmitting,
    Avionics,
    Paused,
    RunningTime,
    Latitude,
    Longitude,
    Elevation,
    Count
};
enum class TextValue { Tail, Kind };

// The place in the list; of a text, of its first byte.
std::size_t NumberOf(RadioValue value, std::size_t radio);
std::size_t NumberOf(AircraftValue value);
std::size_t NumberOf(TextValue text);
std::size_t LengthOf(TextValue text);  // bytes that are asked for

std::vector<Dataref> XPlaneDatarefs();
// One that an aircraft has of its own.
Dataref OfAircraft(const std::string& name);

}  // namespace orvelle::simulators
