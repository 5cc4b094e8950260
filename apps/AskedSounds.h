// The sounds that panels ask of the simulator's computer, played where this computer is that: in the simulator's
// program, and in a panel that practises. Sounds asked for before this object was made are not played. Nothing fails or
// waits: a sound that can't be had, or plays already, passes in silence. Loop and far side outlive this object.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

#include "adapters/pulse/SoundPlayer.h"
#include "platform/sides/SimulatorSide.h"

namespace orvelle {

// Where this program's sounds lie, installed or in the build folder.
std::filesystem::path OwnSounds();

class AskedSounds {
public:
    // `server` "" is the user's own sound server.
    AskedSounds(EventLoop& loop, SimulatorSide& simulator, std::filesystem::path folder, std::string server = "");
    AskedSounds(const AskedSounds&) = delete;
    AskedSounds& operator=(const AskedSounds&) = delete;

private:
    void PlayWhatIsAsked();

    SimulatorSide& simulator;
    pulse::SoundPlayer player;
    std::size_t played;
    Ticket watch;
};

}  // namespace orvelle
