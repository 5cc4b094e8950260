// A whole set-up inside the panel's process: the store, both links, the voice engine, the mixers and the stand-ins of
// the voice programs. The program makes one, passes its members into the panel as parts of its Platform, and hands the
// same object to the flight deck. It must outlive both.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "adapters/embedded/MediaPlayers.h"
#include "adapters/embedded/Mixer.h"
#include "adapters/embedded/TeamSpeak.h"
#include "adapters/embedded/Tessaly.h"
#include "adapters/embedded/Velmarc.h"
#include "adapters/embedded/VoiceEngine.h"
#include "adapters/store/SqliteStore.h"
#include "platform/Event.h"

namespace orvelle {

class EmbeddedSetUp {
    Delivery notices;
    std::string untold;  // sentences, a line each

public:
    // `storeFile` is the store's file, made with its folder where missing. `thisComputer` lists names and addresses of
    // this computer beside the loopback ones.
    EmbeddedSetUp(EventLoop& loop, const std::filesystem::path& storeFile, std::vector<std::string> thisComputer = {});

    // Sentences for the user about the settings, for the shell to show: from the loop, all that arose before its turn
    // in one call, each on a line of its own. What arose while this object was made comes in the loop's first turn.
    Event<const std::string&> Notice;

    store::SqliteStore Store;  // the settings store and the registry
    EmbeddedVelmarc Velmarc;
    EmbeddedTessaly Tessaly;
    EmbeddedVoiceEngine VVL;
    EmbeddedMixer VolumeControl;
    EmbeddedMixer VolumeControlHP;
    EmbeddedTeamSpeak TSRemote;
    EmbeddedMediaPlayers MediaPlayers;

    // The panel has ended: no event is raised any more.
    void Stop();

private:
    void Tell(const std::string& sentence);
};

}  // namespace orvelle
