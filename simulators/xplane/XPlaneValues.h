// The values that X-Plane has told so far, by the numbers of their subscriptions, and the state that they come to. A
// value that was not told yet is as one that X-Plane doesn't have: a radio without frequency or power, no place, no
// text.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "simulators/SimulatorState.h"
#include "simulators/xplane/XPlaneDatarefs.h"
#include "simulators/xplane/XPlanePackets.h"

namespace orvelle::simulators {

class XPlaneValues {
public:
    XPlaneValues();

    // How many it took; those of numbers that were not asked for are left out.
    std::size_t Take(const std::vector<NumberedValue>& told);

    SimulatorState State() const;
    // Seconds since X-Plane was started.
    std::optional<float> RunningTime() const { return At(NumberOf(AircraftValue::RunningTime)); }

private:
    std::optional<float> At(std::size_t number) const;
    bool IsOn(std::size_t number) const { return At(number).value_or(0) > 0; }
    Radio RadioAt(std::size_t radio, int transmits) const;
    std::optional<Place> Where() const;
    std::string Text(TextValue text) const;

    std::vector<std::optional<float>> values;
};

}  // namespace orvelle::simulators
