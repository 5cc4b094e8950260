#include "simulators/flightgear/FlightGearText.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <utility>

#include "adapters/shared/Utf8.h"
#include "simulators/flightgear/FlightGearMembers.h"

namespace orvelle::simulators {

namespace {

constexpr double GreatestMegahertz = 1000;
constexpr double LowestAltitude = -2000;  // feet; FlightGear has lower ones while it places the aircraft
constexpr double HighestAltitude = 1e9;
constexpr std::string_view NoCallsign = "callsign";  // what FlightGear calls a pilot who has given none

std::optional<double> NumberOf(std::string text) {
    std::replace(text.begin(), text.end(), ',', '.');
    double number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool isNumber = error == std::errc() && end == text.data() + text.size() && std::isfinite(number);
    return isNumber ? std::optional(number) : std::nullopt;
}

std::string TextOf(std::string_view text) {
    std::string clean = ToUtf8(text);
    std::erase_if(clean, [](char letter) { return (letter >= 0 && letter < ' ') || letter == '\x7F'; });
    const std::size_t first = clean.find_first_not_of(' ');
    if (first == std::string::npos) return "";
    return clean.substr(first, clean.find_last_not_of(' ') - first + 1);
}

// Takes members one by one; what is left are others. One value that can't be makes the whole line none.
class Reading {
public:
    explicit Reading(FlightGearMembers read) : members(std::move(read)) {}

    std::string Text(std::string_view name) { return TextOf(Take(name).value_or("")); }
    std::optional<double> Number(std::string_view name) {
        const std::optional<std::string> value = Take(name);
        const std::optional<double> number = value ? NumberOf(*value) : std::nullopt;
        if (value && !number) sound = false;
        return number;
    }
    bool Flag(std::string_view name, bool usual) {
        const std::optional<double> number = Number(name);
        return number ? *number != 0 : usual;
    }
    // As Number, but what can't be is none.
    std::optional<double> Within(std::string_view name, double least, double greatest) {
        const std::optional<double> number = NumberOf(Take(name).value_or(""));
        return number && *number >= least && *number <= greatest ? number : std::nullopt;
    }
    orvelle::simulators::Radio Radio(const std::string& number) {
        const std::optional<double> megahertz = Number("COM" + number);
        const bool works = Flag("OP" + number, true);
        const double volume = Number("VOL" + number).value_or(1);
        if (!megahertz) return {};
        hasFrequency = true;
        sound = sound && *megahertz >= 0 && *megahertz <= GreatestMegahertz;
        return {sound ? static_cast<int>(std::lround(*megahertz * 1000)) : 0, works, works && volume > 0};
    }

    bool IsSound() const { return sound && hasFrequency; }
    const FlightGearMembers& Left() const { return members; }

private:
    std::optional<std::string> Take(std::string_view name) {
        const auto found = members.find(name);
        if (found == members.end()) return std::nullopt;
        std::string value = std::move(found->second);
        members.erase(found);
        return value;
    }

    FlightGearMembers members;
    bool sound = true;
    bool hasFrequency = false;
};

std::optional<Place> PlaceOf(Reading& reading) {
    const auto latitude = reading.Within("LAT", -90, 90);
    const auto longitude = reading.Within("LON", -180, 180);
    const auto altitude = reading.Within("ALT", LowestAltitude, HighestAltitude);
    if (!latitude || !longitude || !altitude) return std::nullopt;
    return Place{*latitude, *longitude, *altitude};
}

// The radio that talks, else the one that would; FlightGear's talk key is COM1's where nothing else is told.
int TransmitsOf(Reading& reading) {
    const double talks = reading.Number("PTT").value_or(0);
    const double selected = reading.Number("TX").value_or(1);
    for (const double radio : {talks, selected})
        if (radio == 1 || radio == 2) return static_cast<int>(radio);
    return 0;
}

}  // namespace

std::optional<FlightGearWords> ReadFlightGearLine(std::string_view line) {
    std::optional<FlightGearMembers> members = FlightGearMembersOf(line);
    if (!members) return std::nullopt;

    Reading reading(std::move(*members));
    FlightGearWords words;
    words.State.Radios = {reading.Radio("1"), reading.Radio("2")};
    words.State.Transmits = TransmitsOf(reading);
    words.State.IsOnline = reading.Flag("ONLINE", false);
    words.State.IsPaused = reading.Flag("PAUSED", false);
    words.State.Where = PlaceOf(reading);
    words.State.Aircraft = reading.Text("AIRCRAFT");
    const std::string recorded = reading.Text("CALL");
    const std::string callsign = reading.Text("CS");
    words.State.Callsign = callsign.empty() ? recorded : callsign;
    if (words.State.Callsign == NoCallsign) words.State.Callsign.clear();
    if (!reading.IsSound()) return std::nullopt;
    words.Others.insert(reading.Left().begin(), reading.Left().end());
    return words;
}

}  // namespace orvelle::simulators
