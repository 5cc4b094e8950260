#include "replay/peers/MessageQueuePeer.h"

#include <algorithm>
#include <utility>

namespace orvelle::replay {

namespace {

constexpr Long DueMessage = 275;  // the system's own number for the tick of a timer

struct Server {
    void operator()(Timer* timer) const {
        Output.Note(timer->Name);
        timer->Tick();
    }
    // A message of the thread has no window and does nothing.
    void operator()(const WindowMessage& message) const {
        if (message.Window != nullptr) Receivers.Deliver(message);
    }
    void operator()(const std::function<void()>& stimulus) const { stimulus(); }

    Transcript& Output;
    WindowsPeer& Receivers;
};

}  // namespace

void MessageQueuePeer::DoEvents() {
    waiting.clear();
    ServeUntil(time.Elapsed());
}

bool MessageQueuePeer::PeekMessageA(WindowMessage& message, Long) {
    if (!waiting.empty()) {
        message = waiting.front();
        waiting.pop_front();
        return true;
    }
    std::optional<Due> due = time.TakeDue(time.Elapsed());
    if (!due) return false;
    if (const auto* posted = std::get_if<WindowMessage>(&*due)) {
        message = *posted;
        return true;
    }
    message = {nullptr, DueMessage, 0, 0};
    handedOver = std::move(due);
    return true;
}

void MessageQueuePeer::DispatchMessageA(const WindowMessage& message) {
    if (message.Window == nullptr && message.Number == DueMessage) {
        if (const std::optional<Due> due = std::exchange(handedOver, std::nullopt)) Serve(*due);
        return;
    }
    Serve(message);
}

void MessageQueuePeer::Advance(Long milliseconds) {
    const std::int64_t moment = time.Elapsed() + milliseconds;
    waiting.clear();
    ServeUntil(moment);
    time.MoveTo(moment);
}

// A stimulus that waits moves the clock, perhaps beyond the moment; what fell due meanwhile is served too.
void MessageQueuePeer::ServeUntil(std::int64_t moment) {
    while (const std::optional<Due> due = time.TakeDue(std::max(moment, time.Elapsed()))) Serve(*due);
}

void MessageQueuePeer::Serve(const Due& due) { std::visit(Server{transcript, windows}, due); }

}  // namespace orvelle::replay
