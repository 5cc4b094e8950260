// The players of recorded airfield broadcasts, one for each radio. Creating one may throw RuntimeError where the
// system has no player.
#pragma once

#include <memory>
#include <string>

#include "platform/Types.h"

namespace orvelle {

class MediaPlayer {
public:
    virtual ~MediaPlayer() = default;

    virtual void AutoRewind(bool on) = 0;
    virtual void Open(const std::string& source) = 0;  // opens and plays; not waited for
    virtual void Stop() = 0;
    virtual void Mute(bool on) = 0;
    virtual void Volume(Long value) = 0;  // -5000 to 0
    virtual Long PlayState() = 0;         // 0: stopped
};

class MediaPlayerFactory {
public:
    virtual ~MediaPlayerFactory() = default;

    // `radio` is 0 for COM1, 1 for COM2. Never null.
    virtual std::unique_ptr<MediaPlayer> New(Long radio) = 0;
};

}  // namespace orvelle
