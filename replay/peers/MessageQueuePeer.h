// The thread's queue of messages on the virtual clock. It hands over key messages, and whatever falls due, a tick of a
// timer or a scheduled stimulus, as a message of its own that does it when it is dispatched. Nothing here is printed
// but the ticks.
#pragma once

#include <deque>
#include <optional>

#include "platform/Windows.h"
#include "replay/Transcript.h"
#include "replay/VirtualTime.h"
#include "replay/peers/WindowsPeer.h"

namespace orvelle::replay {

class MessageQueuePeer final : public MessageQueue {
public:
    MessageQueuePeer(Transcript& runTranscript, VirtualTime& virtualTime, WindowsPeer& windowSystem)
        : transcript(runTranscript), time(virtualTime), windows(windowSystem) {}

    void DoEvents() override;
    bool PeekMessageA(WindowMessage& message, Long remove) override;
    void TranslateMessage(const WindowMessage&) override {}
    void DispatchMessageA(const WindowMessage& message) override;

    // A message of the thread that waits until it is asked for.
    void Put(const WindowMessage& message) { waiting.push_back(message); }
    // Moves the clock on and serves what falls due, in order of time. Key messages are lost.
    void Advance(Long milliseconds);

private:
    void ServeUntil(std::int64_t moment);
    void Serve(const Due& due);

    Transcript& transcript;
    VirtualTime& time;
    WindowsPeer& windows;
    std::deque<WindowMessage> waiting;
    std::optional<Due> handedOver;  // what the message that was peeked last stands for
};

}  // namespace orvelle::replay
