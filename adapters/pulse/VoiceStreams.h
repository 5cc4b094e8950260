// The voice's streams at the user's sound server: one microphone and two outputs, each in blocks of ten milliseconds. A
// stream is opened again by itself when its device or the server comes back; one of a named device never moves to
// another, one of the default device follows it. Lives on the voice thread, with a connection of its own. All events
// come from the loop.
#pragma once

#include <pulse/subscribe.h>

#include <array>
#include <optional>
#include <string>

#include "adapters/pulse/MicrophoneStream.h"
#include "adapters/pulse/OutputStream.h"
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

    // An output to which nothing was written for some time rests, and is not wanted any more. Said whenever there may
    // be something to write, for both.
    void RouseOutputs();

    // Whether it is wanted and runs.
    bool MicrophoneWorks() const { return microphone.Works(); }
    bool OutputWorks(Long output) const;

    // Ten milliseconds came from the microphone.
    Event<const speech::Block&> Recorded;
    // The output needs its next ten milliseconds, which the handler writes; nobody's are silent.
    Event<Long, speech::Block&> Wanted;
    // Something works now that did not, or does not any more.
    Event<> Changed;

private:
    static bool IsOutput(Long output) { return output == Headset || output == Speakers; }
    std::array<VoiceStream*, 3> All();
    void SetDevice(VoiceStream& stream, const std::string& device);
    void Want(VoiceStream& stream);
    void Leave(VoiceStream& stream);
    void Begin();
    void EndIfUnwanted();
    void TakeServer();
    void TakeChange(pa_subscription_event_type_t event);
    void OpenWanted();
    void Look();
    void AskForLife();
    void TellLater();

    EventLoop& loop;
    const std::string server;
    std::optional<PulseConnection> connection;  // while anything is wanted
    MicrophoneStream microphone;
    std::array<OutputStream, 2> outputs;
    Long looks = 0;
    Ticket looking, opening, telling, ending;
};

}  // namespace orvelle::pulse
