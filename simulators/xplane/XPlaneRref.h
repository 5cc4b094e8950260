// X-Plane 11 and 12, found by its beacon on this computer or on the network and read by subscriptions over UDP, which
// are asked for again every 5 seconds, as X-Plane forgets them at a restart and says nothing. Nothing is taken as known
// before the first value of each. One of this computer comes before all others. Where the process isn't known, its own
// clock tells one that was started anew from one that paused. IPv4 alone, as documented. Made after the public
// documents alone: nobody has tried it on the real program yet.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "simulators/AircraftOverrides.h"
#include "simulators/SimulatorLife.h"
#include "simulators/SimulatorSource.h"

namespace orvelle::simulators {

struct XPlaneSetting {
    std::uint16_t BeaconPort = 49707;
    AircraftOverrides Aircraft{};
};

class XPlaneRref : public SimulatorSource {
public:
    XPlaneRref(EventLoop& eventLoop, ProcessQuestions questions, XPlaneSetting setting = {});
    ~XPlaneRref() override;

    std::string Name() const override;  // "X-Plane 12", "X-Plane 12 on cockpit" of another computer
    Presence Stands() const override;
    int Run() const override;
    const std::optional<SimulatorState>& State() const override;
    std::vector<std::string> Programs() const override { return {"X-Plane-x86_64", "X-Plane"}; }
    std::string Problem() const override;

private:
    struct Parts;

    const std::unique_ptr<Parts> parts;
};

}  // namespace orvelle::simulators
