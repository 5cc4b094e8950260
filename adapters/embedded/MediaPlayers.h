// Players of recordings without sound. A player plays from Open until it is stopped, destroyed, or the deck lets the
// recording end. New throws the run-time error 429 where the deck took the players away. The players must not
// outlive their factory.
#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <string>

#include "adapters/shared/Changes.h"
#include "platform/MediaPlayer.h"

namespace orvelle::embedded {

struct PlayerState {
    bool Exists = false;
    bool Playing = false;
    bool AutoRewind = false;
    bool Muted = false;
    Long Volume = 0;  // -5000 to 0
    std::string Source;
};

class MediaPlayers : public MediaPlayerFactory {
public:
    explicit MediaPlayers(EventLoop& loop) : Changed(loop) {}

    std::unique_ptr<MediaPlayer> New(Long radio) override;

    // The deck's side. Radios are 0 and 1.
    const PlayerState& Player(Long radio) const { return players.at(static_cast<std::size_t>(radio)); }
    void EndRecording(Long radio);
    void SetAvailable(bool available) { playersAvailable = available; }

    Changes Changed;

private:
    std::array<PlayerState, 2> players;
    bool playersAvailable = true;
};

}  // namespace orvelle::embedded
