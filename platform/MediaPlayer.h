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

    virtual void AutoRewind(bool on) = 0;  // back to the beginning at the end
    // Opens an address or a file and plays it; not waited for. One that cannot be played is stopped at once.
    virtual void Open(const std::string& source) = 0;
    virtual void Stop() = 0;  // harmless while stopped
    virtual void Mute(bool on) = 0;
    virtual void Volume(Long value) = 0;  // hundredths of a decibel, -5000 to 0, which is as recorded
    virtual Long PlayState() = 0;         // 0: stopped, by Stop, by its end or by a failure
};

class MediaPlayerFactory {
public:
    virtual ~MediaPlayerFactory() = default;

    // `radio` is 0 for COM1, 1 for COM2. Never null.
    virtual std::unique_ptr<MediaPlayer> New(Long radio) = 0;
};

}  // namespace orvelle
