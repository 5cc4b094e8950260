// Players of recordings that are heard, by the program's own module, which brings Qt Multimedia with it. The module is
// loaded when a recording is opened for the first time, never before, and stays. Where it can't be loaded, and where a
// source can't be played, the player is stopped at once, and Told says why, the same reason once for each player.
// The factory outlives its players.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "adapters/media/MediaModule.h"
#include "platform/Event.h"
#include "platform/MediaPlayer.h"

namespace orvelle::media {

constexpr const char* ModuleName = "orvelle-media.so";

class LoadedMediaPlayers : public MediaPlayerFactory {
public:
    // The places where the module may lie, the first one first.
    explicit LoadedMediaPlayers(const std::vector<std::filesystem::path>& places);

    // Whether the module is installed; it is not loaded for that.
    bool IsThere() const { return !module.empty(); }
    std::unique_ptr<MediaPlayer> New(Long radio) override;

    Event<const std::string&> Told;  // a sentence for the user

private:
    class Player;

    // The module's function; null where it can't be loaded, as dlerror then says.
    NewOrvelleMediaPlayerFunction* Load();

    std::filesystem::path module;  // "" where there is none
    NewOrvelleMediaPlayerFunction* newPlayer = nullptr;
};

}  // namespace orvelle::media
