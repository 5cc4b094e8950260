// The panel's connection with the user's sound server: made once, kept, and made again when it is lost. Held by the
// program; the devices ask over it. Nothing waits: what was asked and isn't answered within seconds counts as the
// server's loss. A server that goes is sought for some seconds, then no more until Seek is called by whoever watches
// its socket; one that hangs, or that is on another computer, is sought again twice a minute. All events come from the
// loop.
#pragma once

#include <pulse/context.h>

#include <filesystem>
#include <string>
#include <vector>

#include "adapters/pulse/PulseLoop.h"
#include "platform/Event.h"

namespace orvelle::pulse {

constexpr Long ServerPatience = 4000;  // milliseconds

class PulseConnection {
public:
    // `server` "" is the user's own. `patience` is the least time that an answer has.
    explicit PulseConnection(EventLoop& loop, std::string server = "", Long patience = ServerPatience);
    PulseConnection(const PulseConnection&) = delete;
    PulseConnection& operator=(const PulseConnection&) = delete;
    ~PulseConnection();

    // The server may be there now.
    void Seek();
    // Whether an attempt is under way.
    bool IsSeeking() const { return context && !isReady; }
    // Null unless the server is there.
    pa_context* Context() const { return isReady ? context : nullptr; }
    // Takes over the operation by which something was asked. A null one is a question that could not be put.
    void Asked(pa_operation* operation);

    // The server is there; it isn't any more, or an attempt failed.
    Event<> Ready;
    Event<> Lost;

private:
    struct Question {
        pa_operation* Operation;
        bool IsOld;
    };

    void Connect();
    void TakeState();
    void Answered(pa_operation* operation);
    void LookForAnswers();
    void LoseHanging();
    void Leave();
    void Lose();
    void SeekLater();

    PulseLoop loop;
    const std::string server;
    const std::filesystem::path socket;
    const Long patience;
    pa_context* context = nullptr;
    bool isReady = false;
    bool hangs = false;  // it was silent, so nothing will tell when it speaks again
    Long wait;           // until the next attempt
    std::vector<Question> questions;
    Ticket bound;  // of the attempt, or of the questions
    Ticket ending, again;
};

}  // namespace orvelle::pulse
