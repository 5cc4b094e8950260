// The voice's streams at the user's sound server: one microphone and two outputs, each in blocks of ten milliseconds. A
// stream is opened again by itself when its device or the server comes back; one of a named device never moves to
// another, one of the default device follows it. Lives on the voice thread, with a connection of its own. All events
// come from the loop.
#pragma once

#include <array>
#include <memory>
#include <string>

#include "adapters/pulse/PulseConnection.h"
#include "adapters/speech/Block.h"
#include "platform/Event.h"
#include "platform/EventLoop.h"
#include "platform/VoiceEngine.h"

namespace orvelle::pulse {

class VoiceStreams {
public:
    // `server` "" is the user's own.
    explicit VoiceStreams(EventLoop& loop, std::string server = "");
    VoiceStreams(const VoiceStreams&) = delete;
    VoiceStreams& operator=(const VoiceStreams&) = delete;
    ~VoiceStreams();

    // By the server's own names; "" is its default device wherever it moves. At once where the stream is open.
    void SetMicrophone(const std::string& source);
    void SetOutput(Long output, const std::string& sink);

    // Each is wanted from the one call to the other; nothing is open before. Two outputs on one device are two streams.
    void OpenMicrophone();
    void CloseMicrophone();
    void OpenOutputs();
    void CloseOutputs();

    // Whether it is wanted and runs.
    bool MicrophoneWorks() const;
    bool OutputWorks(Long output) const;

    // Ten milliseconds came from the microphone.
    Event<const speech::Block&> Recorded;
    // The output needs its next ten milliseconds, which the handler writes; nobody's are silent.
    Event<Long, speech::Block&> Wanted;
    // Something works now that did not, or does not any more.
    Event<> Changed;
};

}  // namespace orvelle::pulse
