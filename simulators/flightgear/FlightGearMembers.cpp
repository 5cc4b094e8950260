#include "simulators/flightgear/FlightGearMembers.h"

#include <algorithm>

#include "simulators/flightgear/FlightGearText.h"

namespace orvelle::simulators {

namespace {

bool IsOfName(char letter) {
    return (letter >= 'A' && letter <= 'Z') || (letter >= '0' && letter <= '9') || letter == '_';
}

// The place of the sign = behind the name of a member, none where no member begins.
std::optional<std::size_t> EndOfName(std::string_view part) {
    const std::size_t end = part.find('=');
    if (end == std::string_view::npos || end == 0) return std::nullopt;
    const bool isProperty = part.front() == '/';
    return isProperty || std::all_of(part.begin(), part.begin() + end, IsOfName) ? std::optional(end) : std::nullopt;
}

bool IsCallsign(std::string_view name) { return name == "CS" || name == "CALL"; }

// Without its end, and without the last member where that was cut.
std::string_view Whole(std::string_view line) {
    const bool isEnded = line.ends_with('\n');
    if (!isEnded && line.size() >= LeastCutFlightGearLine) {
        const std::size_t callsign = line.find(",CS=");
        return line.substr(0, callsign != std::string_view::npos ? callsign : line.rfind(','));
    }
    if (isEnded) line.remove_suffix(1);
    if (line.ends_with('\r')) line.remove_suffix(1);
    return line;
}

}  // namespace

std::optional<FlightGearMembers> FlightGearMembersOf(std::string_view line) {
    line = Whole(line);
    FlightGearMembers members;
    std::string* value = nullptr;
    while (!line.empty()) {
        const std::size_t comma = std::min(line.find(','), line.size());
        const std::string_view part = line.substr(0, comma);
        if (const auto end = EndOfName(part)) {
            const std::string_view name = part.substr(0, *end);
            value = &members[std::string(name)];
            *value = IsCallsign(name) ? line.substr(*end + 1) : part.substr(*end + 1);
            if (IsCallsign(name)) break;
        } else if (value) {
            value->append(",").append(part);
        } else {
            return std::nullopt;
        }
        line.remove_prefix(std::min(comma + 1, line.size()));
    }
    return members;
}

}  // namespace orvelle::simulators
