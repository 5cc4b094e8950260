// The kinds of a list of values, one letter each: t text, n whole number, i whole number of 16 bits, b Boolean, r real,
// h root of the registry, * anything that is ignored.
#pragma once

#include <string>
#include <string_view>

#include "replay/Value.h"

namespace orvelle::replay {

// The values as the kinds want them: a whole number also serves as a real or a Boolean. `what` names them in the
// message of a LineError when their number or a kind is wrong.
Values Fitted(const Values& values, std::string_view kinds, const std::string& what);
Value Fitted(const Value& value, char kind);
// 0 or "" or False.
Value Nothing(char kind);

}  // namespace orvelle::replay
