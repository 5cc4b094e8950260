// The far side of a mixer: the sound card's lines as somebody at the card handles them, and its devices, which can be
// unplugged. Levels are kept within their line's range.
#pragma once

#include <functional>
#include <string>

#include "platform/Ticket.h"
#include "platform/Types.h"

namespace orvelle {

enum class MixerLine { Microphone, Master, Wave };
enum class SoundDirection { Input, Output };  // the microphone line; the master and wave lines

struct MixerLevel {
    bool Unavailable = false;
    Integer Min = 0;
    Integer Max = 100;
    Integer Step = 5;
    Integer Volume = 50;
};

class MixerSide {
public:
    virtual ~MixerSide() = default;

    virtual void SetLevel(MixerLine line, const MixerLevel& level) = 0;  // range and all; opens that side anew
    virtual const MixerLevel& Level(MixerLine line) const = 0;
    virtual void Move(MixerLine line, Long value) = 0;  // somebody else moves it
    virtual void SetPlugged(SoundDirection direction, bool plugged) = 0;
    virtual bool Plugged(SoundDirection direction) const = 0;
    virtual std::string DeviceName(SoundDirection direction) const = 0;  // as the panel named it
    virtual bool IsOpen() const = 0;
    // False once a real mixer serves in its place: what is done here then goes nowhere.
    virtual bool IsServing() const = 0;
    // How long a change takes to the panel, milliseconds.
    virtual void SetDelay(Long milliseconds) = 0;
    virtual Long Delay() const = 0;

    // Called from the loop after changes.
    [[nodiscard]] virtual Ticket Observe(std::function<void()> observer) = 0;
};

}  // namespace orvelle
