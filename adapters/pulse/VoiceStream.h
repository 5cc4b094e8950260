// One of the voice's streams at the sound server: the microphone's or an output's. Open from Open until Close, or until
// its device or the server goes, or it stood still for long; VoiceStreams, which holds it, opens it again. A stream of
// a named device never moves to another one. `changed` is called when it begins to work, does not any more, or should
// be opened again at once, inside the call that finds it out.
#pragma once

#include <pulse/context.h>
#include <pulse/stream.h>

#include <functional>
#include <optional>
#include <string>

#include "adapters/pulse/SoundPace.h"
#include "platform/Types.h"

namespace orvelle::pulse {

constexpr Long LookEvery = 250;  // milliseconds
constexpr Long LooksASecond = 4;

class VoiceStream {
public:
    // `name` is what mixer programs show.
    VoiceStream(std::string name, std::function<void()> changed);
    VoiceStream(const VoiceStream&) = delete;
    VoiceStream& operator=(const VoiceStream&) = delete;
    virtual ~VoiceStream();

    bool IsWanted = false;

    // By the server's own name; "" is the default one. An open stream of another device is closed.
    void SetDevice(const std::string& newDevice);
    bool IsOpen() const { return stream; }
    void Open(pa_context* context);
    void Close();

    // Whether sound was carried within the last second.
    bool Works() const { return isMoving; }
    // To be called every LookEvery while it is wanted. Loops that stand still count as one look.
    void Look();

protected:
    virtual int Connect(pa_stream* opened, const char* deviceOrDefault, pa_stream_flags_t flags) = 0;
    // What the server carries at once, of the buffer that it gave.
    virtual std::size_t BytesAtOnce(const pa_buffer_attr& buffer) const = 0;
    // The server has so many bytes, or room for them.
    virtual void Carry(std::size_t bytes) = 0;
    virtual void Forget() = 0;  // what is left of the stream before
    virtual void ShowLife() {}  // at each look, where the server would not be heard of otherwise

    pa_stream* stream = nullptr;
    SoundPace pace;

private:
    void TakeState();
    void Move(std::size_t bytes);
    void Stand();

    const std::string name;
    const std::function<void()> changed;
    std::string device;
    bool isMoving = false;
    Long stillFor = 0;  // looks
    std::optional<SoundPace::Moment> movedAt;
    SoundPace::Moment evenSince{};  // it has moved without a pause
    bool isAnew = false;            // opened for a pause, and not even yet
};

}  // namespace orvelle::pulse
