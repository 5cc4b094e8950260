// A line of FlightGear taken apart into its members; what they mean is FlightGearText's. A member begins with a name of
// capitals, digits and low lines, or with a property, and the sign =.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace orvelle::simulators {

using FlightGearMembers = std::map<std::string, std::string, std::less<>>;  // by their names

// Nothing where the line doesn't begin with a member. Of two of one name the last counts.
std::optional<FlightGearMembers> FlightGearMembersOf(std::string_view line);

}  // namespace orvelle::simulators
