#include "simulators/xplane/XPlaneValues.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <utility>

#include "adapters/shared/Utf8.h"

namespace orvelle::simulators {

namespace {

constexpr float HighestKilohertz = 999999;
constexpr int FirstRadioSelected = 6;  // what audio_com_selection holds for COM1; one more for COM2
constexpr double FeetInMetre = 1 / 0.3048;
constexpr double HighestAltitude = 1e6;  // feet

std::vector<Dataref> DatarefsWith(const AircraftOverrides& aircraft) {
    std::vector<Dataref> all = XPlaneDatarefs();
    for (const std::string& own : aircraft.Properties(AircraftOf::XPlane))
        if (std::ranges::find(all, own, &Dataref::Name) == all.end()) all.push_back(OfAircraft(own));
    return all;
}

}  // namespace

XPlaneValues::XPlaneValues(AircraftOverrides ofAircraft)
    : aircraft(std::move(ofAircraft)), datarefs(DatarefsWith(aircraft)), values(datarefs.size()) {}

std::size_t XPlaneValues::Take(const std::vector<NumberedValue>& told) {
    std::size_t taken = 0;
    for (const auto& [number, value] : told) {
        if (number < 0 || static_cast<std::size_t>(number) >= values.size()) continue;
        values[static_cast<std::size_t>(number)] = value;
        ++taken;
    }
    return taken;
}

void XPlaneValues::Forget() { std::ranges::fill(values, std::nullopt); }

bool XPlaneValues::AreOfAnotherRun(const std::vector<NumberedValue>& told) const {
    const std::size_t clock = NumberOf(AircraftValue::RunningTime);
    return At(clock) && std::ranges::any_of(told, [&](const NumberedValue& each) {
               return each.first == static_cast<std::int32_t>(clock) && each.second < *At(clock);
           });
}

std::optional<float> XPlaneValues::At(std::size_t number) const {
    return number < values.size() ? values[number] : std::nullopt;
}

SimulatorState XPlaneValues::State() const {
    SimulatorState state;
    const float selected = At(NumberOf(AircraftValue::Transmits)).value_or(0);
    if (selected == FirstRadioSelected) state.Transmits = 1;
    if (selected == FirstRadioSelected + 1) state.Transmits = 2;
    for (std::size_t radio = 0; radio < state.Radios.size(); ++radio)
        state.Radios[radio] = RadioAt(radio, state.Transmits);
    // X-Plane knows nothing of the network's client, so who flies is taken to be connected.
    state.IsOnline = true;
    state.IsPaused = IsOn(NumberOf(AircraftValue::Paused));
    state.Where = Where();
    state.Tail = Text(TextValue::Tail);
    state.Aircraft = Text(TextValue::Kind);
    return aircraft.Apply(AircraftOf::XPlane, std::move(state),
                          [this](const std::string& dataref) { return Told(dataref); });
}

// Which radio is heard if it has power, of which an aircraft may have its own idea.
Radio XPlaneValues::RadioAt(std::size_t radio, int transmits) const {
    Radio told;
    const float frequency = At(NumberOf(RadioValue::Frequency, radio)).value_or(0);
    if (frequency >= 1 && frequency <= HighestKilohertz) told.Kilohertz = static_cast<int>(std::lround(frequency));
    told.IsOperable = IsOn(NumberOf(RadioValue::Power, radio)) && IsOn(NumberOf(AircraftValue::Avionics));
    const bool isTransmitting = transmits == static_cast<int>(radio) + 1;
    const bool isSelected = IsOn(NumberOf(RadioValue::Selected, radio)) ||
                            (isTransmitting && IsOn(NumberOf(AircraftValue::HearsTransmitting)));
    // A volume that isn't told doesn't turn it off.
    const bool isTurnedUp = At(NumberOf(RadioValue::Volume, radio)).value_or(1) > 0;
    told.IsHeard = isSelected && isTurnedUp;
    return told;
}

std::optional<Place> XPlaneValues::Where() const {
    const std::optional<float> latitude = At(NumberOf(AircraftValue::Latitude));
    const std::optional<float> longitude = At(NumberOf(AircraftValue::Longitude));
    const std::optional<float> elevation = At(NumberOf(AircraftValue::Elevation));
    if (!latitude || !longitude || !elevation) return std::nullopt;
    const Place place{*latitude, *longitude, *elevation * FeetInMetre};
    const bool isPlace = std::abs(place.Latitude) <= 90 && std::abs(place.Longitude) <= 180 &&
                         std::abs(place.Altitude) <= HighestAltitude;
    return isPlace ? std::optional(place) : std::nullopt;
}

std::string XPlaneValues::Told(const std::string& dataref) const {
    const auto found = std::ranges::find(datarefs, dataref, &Dataref::Name);
    const std::optional<float> value = At(static_cast<std::size_t>(found - datarefs.begin()));
    if (!value) return "";
    std::array<char, 32> text;
    return {text.data(), std::to_chars(text.data(), text.data() + text.size(), *value).ptr};
}

// Nothing while a byte before its end is missing, or for what is no text.
std::string XPlaneValues::Text(TextValue text) const {
    std::string bytes;
    for (std::size_t byte = 0; byte < LengthOf(text); ++byte) {
        const std::optional<float> value = At(NumberOf(text) + byte);
        if (value == 0) break;
        // Bytes may be told with a sign or without.
        if (!value || *value < -128 || *value > 255 || *value != std::trunc(*value)) return "";
        bytes.push_back(static_cast<char>(static_cast<int>(*value)));
    }
    for (const char each : bytes)
        if (static_cast<unsigned char>(each) < ' ' || each == 0x7F) return "";
    const std::size_t first = bytes.find_first_not_of(' ');
    if (first == std::string::npos || !IsUtf8(bytes)) return "";
    return bytes.substr(first, bytes.find_last_not_of(' ') - first + 1);
}

}  // namespace orvelle::simulators
