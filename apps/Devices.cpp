#include "apps/Devices.h"

#include <optional>

#include "adapters/linux/EvdevKeyboards.h"
#include "adapters/linux/Joysticks.h"
#include "adapters/linux/ProcessExecutable.h"
#include "adapters/x11/ActiveApplication.h"
#include "adapters/x11/RawKeys.h"
#include "apps/AskedSounds.h"

namespace orvelle {

struct Devices::Parts {
    Parts(EventLoop& loop, SimulatorSide& simulator, const DevicesSetting& setting)
        : Sticks(loop, simulator, setting.Inputs),
          Active(loop, simulator, setting.Simulators, linux::ExecutableOf, setting.Display),
          Sounds(loop, simulator, setting.Sounds, setting.SoundServer) {
        if (setting.SessionType == "wayland")
            Keyboards.emplace(loop, simulator, setting.Inputs);
        else
            Keys.emplace(loop, simulator, setting.Display);
    }

    linux::Joysticks Sticks;
    ActiveApplication Active;
    AskedSounds Sounds;
    // One of the two: a key must not come on both ways.
    std::optional<RawKeys> Keys;
    std::optional<linux::EvdevKeyboards> Keyboards;
};

Devices::Devices(EventLoop& loop, SimulatorSide& simulatorSide, const DevicesSetting& setting)
    : parts(std::make_unique<Parts>(loop, simulatorSide, setting)) {
    parts->Sticks.Changed = [this] { Changed(); };
    parts->Active.Changed = [this] { SimulatorChanged(); };
    if (parts->Keys) parts->Keys->Told = [this](const std::string&) { Changed(); };
}

Devices::~Devices() = default;

std::vector<std::string> Devices::Problems() const {
    std::vector<std::string> problems;
    if (parts->Keys) problems.push_back(parts->Keys->Problem());
    if (parts->Keyboards) problems.push_back(parts->Keyboards->Problem());
    std::erase(problems, "");
    return problems;
}

std::string Devices::LastSimulator() const { return parts->Active.LastSimulator(); }

std::vector<std::string> Devices::Joysticks() const { return parts->Sticks.Names(); }

}  // namespace orvelle
