#include "simulators/AircraftOverrides.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <string_view>
#include <utility>

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

std::vector<std::string> AircraftOverrides::Properties(AircraftOf simulator) const {
    std::vector<std::string> properties;
    for (const AircraftOverride& each : overrides) {
        if (each.Simulator != simulator) continue;
        for (const std::string& property :
             {each.Power[0], each.Power[1], each.Transmits, each.Heard[0], each.Heard[1], each.Auto})
            if (!property.empty() && std::ranges::find(properties, property) == properties.end())
                properties.push_back(property);
    }
    return properties;
}

SimulatorState AircraftOverrides::Apply(AircraftOf simulator, SimulatorState state, const Told& told) const {
    const auto found = std::ranges::find_if(overrides, [&](const AircraftOverride& each) {
        return each.Simulator == simulator &&
               std::ranges::any_of(each.Names, [&](const std::string& name) { return IsLike(state.Aircraft, name); });
    });
    const AircraftOverride usual;
    const AircraftOverride& counts = found == overrides.end() ? usual : *found;
    const auto valueOf = [&](const std::string& property) { return property.empty() ? "" : told(property); };

    if (const std::string held = valueOf(counts.Transmits); !held.empty()) {
        const auto meant =
            std::ranges::find_if(counts.TransmitValues, [&](const auto& each) { return AreAlike(held, each.first); });
        state.Transmits = meant == counts.TransmitValues.end() ? 0 : meant->second;
    }
    const bool isAuto = IsTrue(valueOf(counts.Auto));
    for (std::size_t radio = 0; radio < state.Radios.size(); ++radio) {
        auto& [kilohertz, isOperable, isHeard] = state.Radios[radio];
        if (const std::string held = valueOf(counts.Power[radio]); !held.empty()) isOperable = IsTrue(held);
        if (const std::string held = valueOf(counts.Heard[radio]); !held.empty()) isHeard = IsTrue(held);
        if (isAuto && state.Transmits == static_cast<int>(radio) + 1) isHeard = true;
        isHeard = isHeard && isOperable;
    }
    return state;
}

}  // namespace orvelle::simulators
