// Which of the two radios is received or transmits, as the session tells it. Any other text selects none.
#pragma once

namespace orvelle {

constexpr const char* SelectsCom1 = "1";
constexpr const char* SelectsCom2 = "2";
constexpr const char* SelectsBoth = "B";
constexpr const char* SelectsNone = "";

}  // namespace orvelle
