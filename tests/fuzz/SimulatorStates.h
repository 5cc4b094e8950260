// What must hold of the state of a simulator, whatever was read of it: for the fuzz targets of the simulators' readers.
#pragma once

#include <algorithm>
#include <cmath>
#include <string>

#include "adapters/shared/Utf8.h"
#include "simulators/SimulatorState.h"
#include "tests/fuzz/Breach.h"

namespace orvelle::simulators {

inline bool IsPlain(const std::string& text) {
    const auto isControl = [](char each) { return static_cast<unsigned char>(each) < ' ' || each == 0x7F; };
    return IsUtf8(text) && std::none_of(text.begin(), text.end(), isControl);
}

// `highest` in feet.
inline void HoldState(const SimulatorState& state, double highest) {
    using fuzz::Hold;
    for (const Radio& radio : state.Radios) {
        Hold(radio.Kilohertz >= 0 && radio.Kilohertz <= 1'000'000, "a frequency can't be");
        Hold(radio.IsOperable || !radio.IsHeard, "a radio without power is heard");
    }
    Hold(state.Transmits >= 0 && state.Transmits <= 2, "a radio that isn't there transmits");
    for (const std::string& text : {state.Callsign, state.Tail, state.Aircraft}) Hold(IsPlain(text), "a text is none");
    if (!state.Where) return;
    Hold(std::abs(state.Where->Latitude) <= 90 && std::abs(state.Where->Longitude) <= 180, "a place can't be");
    Hold(std::abs(state.Where->Altitude) <= highest, "a height can't be");
}

}  // namespace orvelle::simulators
