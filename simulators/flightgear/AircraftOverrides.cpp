#include "simulators/flightgear/AircraftOverrides.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <string_view>
#include <utility>

#include "simulators/PlainFile.h"
#include "simulators/flightgear/AircraftFile.h"

namespace orvelle::simulators {

namespace {

bool IsLike(std::string_view name, std::string_view pattern) {
    const std::size_t star = pattern.find('*');
    if (star == std::string_view::npos) return name == pattern;
    if (!name.starts_with(pattern.substr(0, star))) return false;
    name.remove_prefix(star);
    pattern.remove_prefix(star + 1);
    for (;; name.remove_prefix(1)) {
        if (IsLike(name, pattern)) return true;
        if (name.empty()) return false;
    }
}

// Null where the line doesn't hold it, or FlightGear has no such property, which it sends as an empty one.
const std::string* ValueOf(const FlightGearWords& words, const std::string& property) {
    const auto found = words.Others.find(property);
    return found == words.Others.end() || found->second.empty() ? nullptr : &found->second;
}

std::optional<double> NumberOf(std::string_view text) {
    double number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

// A property of whole numbers may be kept as one with decimals.
bool AreAlike(const std::string& held, const std::string& named) {
    const auto first = NumberOf(held), second = NumberOf(named);
    return held == named || (first && second && *first == *second);
}

bool IsTrue(const std::string& held) { return held == "true" || NumberOf(held).value_or(0) != 0; }

}  // namespace

std::string AircraftOverrides::Add(const std::filesystem::path& file) {
    const PlainText plain = ReadPlainFile(file, LongestAircraftFile);
    if (!plain.Text) return plain.Sentence;
    const ReadAircraft read = ReadAircraftFile(*plain.Text);
    if (!read.Sentence.empty()) return file.string() + ", line " + std::to_string(read.Line) + ": " + read.Sentence;
    overrides.insert(overrides.end(), read.Overrides.begin(), read.Overrides.end());
    return "";
}

std::vector<std::string> AircraftOverrides::Properties() const {
    std::vector<std::string> properties;
    for (const AircraftOverride& each : overrides)
        for (const std::string& property : {each.Transmits, each.Heard[0], each.Heard[1], each.Auto})
            if (!property.empty() && std::find(properties.begin(), properties.end(), property) == properties.end())
                properties.push_back(property);
    return properties;
}

SimulatorState AircraftOverrides::Apply(const FlightGearWords& words) const {
    SimulatorState state = words.State;
    const auto counts = std::find_if(overrides.begin(), overrides.end(), [&](const AircraftOverride& each) {
        return std::any_of(each.Names.begin(), each.Names.end(),
                           [&](const std::string& name) { return IsLike(state.Aircraft, name); });
    });
    if (counts == overrides.end()) return state;

    if (const std::string* held = ValueOf(words, counts->Transmits)) {
        const auto meant = std::find_if(counts->TransmitValues.begin(), counts->TransmitValues.end(),
                                        [&](const auto& each) { return AreAlike(*held, each.first); });
        state.Transmits = meant == counts->TransmitValues.end() ? 0 : meant->second;
    }
    const std::string* isAuto = ValueOf(words, counts->Auto);
    for (std::size_t radio = 0; radio < state.Radios.size(); ++radio) {
        bool isHeard = state.Radios[radio].IsHeard;
        if (const std::string* held = ValueOf(words, counts->Heard[radio])) isHeard = IsTrue(*held);
        if (isAuto && IsTrue(*isAuto) && state.Transmits == static_cast<int>(radio) + 1) isHeard = true;
        state.Radios[radio].IsHeard = isHeard && state.Radios[radio].IsOperable;
    }
    return state;
}

}  // namespace orvelle::simulators
