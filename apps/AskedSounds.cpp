#include "apps/AskedSounds.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "adapters/linux/OwnFile.h"

namespace orvelle {

std::filesystem::path OwnSounds() {
    const std::filesystem::path prefix = linux::OwnPrefix();
    const std::filesystem::path installed = prefix / "share" / "orvellecp" / "sounds";
    std::error_code failed;
    return std::filesystem::is_directory(installed, failed) ? installed : prefix / "sounds";
}

AskedSounds::AskedSounds(EventLoop& loop, SimulatorSide& simulatorSide, std::filesystem::path folder,
                         std::string server)
    : simulator(simulatorSide),
      player(loop, std::move(folder), std::move(server)),
      played(simulatorSide.SoundsPlayed()),
      watch(simulatorSide.Observe([this] { PlayWhatIsAsked(); })) {}

void AskedSounds::PlayWhatIsAsked() {
    const std::vector<std::string>& sounds = simulator.Sounds();
    const std::size_t asked = simulator.SoundsPlayed() - played;
    played += asked;
    for (std::size_t left = std::min(asked, sounds.size()); left > 0; --left) player.Play(sounds[sounds.size() - left]);
}

}  // namespace orvelle
