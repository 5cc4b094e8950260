// The values that X-Plane has told so far, by the numbers of their subscriptions, and the state that they come to. A
// value that was not told yet is as one that X-Plane doesn't have: a radio without frequency or power, no place, no
// text. Aircraft whose panels work differently have datarefs of their own, which are asked for whatever is flown.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "simulators/AircraftOverrides.h"
#include "simulators/SimulatorState.h"
#include "simulators/xplane/XPlaneDatarefs.h"
#include "simulators/xplane/XPlanePackets.h"

namespace orvelle::simulators {

class XPlaneValues {
public:
    explicit XPlaneValues(AircraftOverrides ofAircraft = {});

    // What is to be asked for; the number of a subscription is its place.
    const std::vector<Dataref>& Datarefs() const { return datarefs; }

    // How many it took; those of numbers that were not asked for are left out.
    std::size_t Take(const std::vector<NumberedValue>& told);
    void Forget();

    SimulatorState State() const;
    // By the clock of X-Plane, which begins with it and goes on while it is paused.
    bool AreOfAnotherRun(const std::vector<NumberedValue>& told) const;

private:
    std::optional<float> At(std::size_t number) const;
    bool IsOn(std::size_t number) const { return At(number).value_or(0) > 0; }
    Radio RadioAt(std::size_t radio, int transmits) const;
    std::optional<Place> Where() const;
    std::string Text(TextValue text) const;
    std::string Told(const std::string& dataref) const;

    const AircraftOverrides aircraft;
    const std::vector<Dataref> datarefs;
    std::vector<std::optional<float>> values;
};

}  // namespace orvelle::simulators
