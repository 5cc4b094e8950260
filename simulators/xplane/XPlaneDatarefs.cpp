#include "simulators/xplane/XPlaneDatarefs.h"

#include <array>

namespace orvelle::simulators {

namespace {

constexpr std::int32_t Often = 20;
constexpr std::int32_t Sometimes = 2;
constexpr std::int32_t Seldom = 1;

constexpr std::size_t RadioCount = 2;
constexpr auto RadioValues = static_cast<std::size_t>(RadioValue::Count);
constexpr auto AircraftValues = static_cast<std::size_t>(AircraftValue::Count);

struct Asked {
    const char* Name;
    std::int32_t TimesASecond;
};

constexpr std::array<Asked, AircraftValues> OfEveryAircraft{{
    {"sim/cockpit2/radios/actuators/audio_com_selection", Often},
    {"sim/cockpit2/radios/actuators/audio_selection_com_auto", Often},
    {"sim/cockpit2/switches/avionics_power_on", Often},
    {"sim/time/paused", Often},
    {"sim/time/total_running_time_sec", Sometimes},
    {"sim/flightmodel/position/latitude", Sometimes},
    {"sim/flightmodel/position/longitude", Sometimes},
    {"sim/flightmodel/position/elevation", Sometimes},
}};

struct AskedText {
    const char* Name;
    std::size_t Length;
};

// Both have room for 40 bytes in X-Plane, and hold fewer.
constexpr std::array<AskedText, 2> Texts{{
    {"sim/aircraft/view/acf_tailnum", 16},
    {"sim/aircraft/view/acf_ICAO", 8},
}};

void AddRadio(std::vector<Dataref>& all, const std::string& radio) {
    const std::string folder = "sim/cockpit2/radios/actuators/";
    all.push_back({folder + radio + "_frequency_hz_833", Often});
    all.push_back({folder + radio + "_power", Often});
    all.push_back({folder + "audio_selection_" + radio, Often});
    all.push_back({folder + "audio_volume_" + radio, Often});
}

}  // namespace

std::size_t NumberOf(RadioValue value, std::size_t radio) {
    return radio * RadioValues + static_cast<std::size_t>(value);
}

std::size_t NumberOf(AircraftValue value) { return RadioCount * RadioValues + static_cast<std::size_t>(value); }

std::size_t NumberOf(TextValue text) {
    const std::size_t first = RadioCount * RadioValues + AircraftValues;
    return text == TextValue::Tail ? first : first + LengthOf(TextValue::Tail);
}

std::size_t LengthOf(TextValue text) { return Texts[static_cast<std::size_t>(text)].Length; }

std::vector<Dataref> XPlaneDatarefs() {
    std::vector<Dataref> all;
    AddRadio(all, "com1");
    AddRadio(all, "com2");
    for (const Asked& asked : OfEveryAircraft) all.push_back({asked.Name, asked.TimesASecond});
    for (const AskedText& text : Texts)
        for (std::size_t byte = 0; byte < text.Length; ++byte)
            all.push_back({std::string(text.Name) + "[" + std::to_string(byte) + "]", Seldom});
    return all;
}

Dataref OfAircraft(const std::string& name) { return {name, Often}; }

}  // namespace orvelle::simulators
