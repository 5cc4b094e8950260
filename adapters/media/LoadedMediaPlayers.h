// Players of recordings that are heard, by the program's own module, which brings Qt Multimedia with it. The module is
// loaded when a recording is opened for the first time, never before, and stays. Where it can't be loaded, and where a
// source can't be played, the player is stopped at once, and Told says why, the same reason once for each player.
// The factory outlives its players.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "adapters/media/MediaModule.h"
#include "platform/Event.h"
#include "platform/MediaPlayer.h"

namespace orvelle::media {

constexpr const char* ModuleName = "orvelle-media.so";

class LoadedMediaPlayers : public MediaPlayerFactory {
public:
    // The module's function; null where that can't be had, and then a part of a sentence. A module that was loaded
    // stays loaded, as threads of its libraries go on.
    using LoadModule = std::function<NewOrvelleMediaPlayerFunction*(std::string& why)>;

    explicit LoadedMediaPlayers(LoadModule loadModule);

    std::unique_ptr<MediaPlayer> New(Long radio) override;

    Event<const std::string&> Told;  // a sentence for the user

private:
    class Player;

    const LoadModule load;
};

}  // namespace orvelle::media
