#include "apps/Devices.h"

#include <algorithm>
#include <optional>

#include "adapters/linux/EvdevKeyboards.h"
#include "adapters/linux/Joysticks.h"
#include "adapters/linux/OwnFile.h"
#include "adapters/linux/ProcessExecutable.h"
#include "adapters/pulse/SoundPlayer.h"
#include "adapters/x11/ActiveApplication.h"
#include "adapters/x11/RawKeys.h"

namespace orvelle {

struct Devices::Parts {
    Parts(EventLoop& loop, SimulatorSide& simulator, const DevicesSetting& setting)
        : Sticks(loop, simulator, setting.Inputs),
          Active(loop, simulator, setting.Simulators, linux::ExecutableOf, setting.Display),
          Player(loop, setting.Sounds, setting.SoundServer) {
        if (setting.SessionType == "wayland")
            Keyboards.emplace(loop, simulator, setting.Inputs);
        else
            Keys.emplace(loop, simulator, setting.Display);
    }

    linux::Joysticks Sticks;
    ActiveApplication Active;
    pulse::SoundPlayer Player;
    // One of the two: a key must not come on both ways.
    std::optional<RawKeys> Keys;
    std::optional<linux::EvdevKeyboards> Keyboards;
};

std::filesystem::path OwnSounds() {
    const std::filesystem::path prefix = linux::OwnPrefix();
    const std::filesystem::path installed = prefix / "share" / "orvellecp" / "sounds";
    std::error_code failed;
    return std::filesystem::is_directory(installed, failed) ? installed : prefix / "sounds";
}

Devices::Devices(EventLoop& loop, SimulatorSide& simulatorSide, const DevicesSetting& setting)
    : simulator(simulatorSide),
      parts(std::make_unique<Parts>(loop, simulatorSide, setting)),
      played(simulatorSide.SoundsPlayed()),
      watch(simulatorSide.Observe([this] { PlayWhatIsAsked(); })) {
    parts->Sticks.Changed = [this] { Changed(); };
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

std::vector<std::string> Devices::Joysticks() const { return parts->Sticks.Names(); }

void Devices::PlayWhatIsAsked() {
    const std::vector<std::string>& sounds = simulator.Sounds();
    const std::size_t asked = simulator.SoundsPlayed() - played;
    played += asked;
    for (std::size_t left = std::min(asked, sounds.size()); left > 0; --left)
        parts->Player.Play(sounds[sounds.size() - left]);
}

}  // namespace orvelle
