// What the module of the media players and whoever loads it know of each other: the one function that gives a player.
// Its caller deletes the player, and none of this waits for a source to be there.
#pragma once

#include <functional>
#include <string>

#include "platform/MediaPlayer.h"

namespace orvelle::media {

// Told of a source that can't be played, and why; the player has stopped.
using PlayFailed = std::function<void(const std::string& source, const std::string& why)>;

}  // namespace orvelle::media

extern "C" {
using NewOrvelleMediaPlayerFunction = orvelle::MediaPlayer*(orvelle::media::PlayFailed failed);
__attribute__((visibility("default"))) NewOrvelleMediaPlayerFunction NewOrvelleMediaPlayer;
}
