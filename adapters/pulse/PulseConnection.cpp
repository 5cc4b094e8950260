#include "adapters/pulse/PulseConnection.h"

#include <pulse/operation.h>
#include <pulse/subscribe.h>

#include <system_error>
#include <utility>

#include "adapters/pulse/ServerSocket.h"

namespace orvelle::pulse {

namespace {

// Between attempts; each wait is twice the one before.
constexpr Long FirstWait = 50;
constexpr Long LastWait = 3200;
constexpr Long SlowWait = 30000;  // where nothing tells that the server is there

}  // namespace

PulseConnection::PulseConnection(EventLoop& eventLoop, std::string server, Long patience)
    : loop(eventLoop),
      server(std::move(server)),
      socket(ServerSocket(this->server)),
      patience(patience),
      wait(FirstWait) {}

PulseConnection::~PulseConnection() { Leave(); }

void PulseConnection::Seek() {
    wait = FirstWait;
    if (!context) Connect();
}

void PulseConnection::Connect() {
    again.End();
    context = pa_context_new(loop.Api(), "Orvelle Control Panel");
    if (!context) return;
    bound = loop.Loop().After(patience, [this] { LoseHanging(); });
    const int result =
        pa_context_connect(context, server.empty() ? nullptr : server.c_str(), PA_CONTEXT_NOAUTOSPAWN, nullptr);
    // What comes later comes by a call; what is known now needs no turn of the loop.
    if (result < 0 || !PA_CONTEXT_IS_GOOD(pa_context_get_state(context))) return Lose();
    pa_context_set_state_callback(
        context, [](pa_context*, void* connection) { static_cast<PulseConnection*>(connection)->TakeState(); }, this);
}

void PulseConnection::TakeState() {
    const pa_context_state_t state = pa_context_get_state(context);
    if (state == PA_CONTEXT_READY) {
        bound.End();
        isReady = true;
        hangs = false;
        wait = FirstWait;
        Ready();
    } else if (!PA_CONTEXT_IS_GOOD(state)) {
        ending = loop.Loop().After(0, [this] { Lose(); });  // not inside the call of what ends
    }
}

void PulseConnection::Asked(pa_operation* operation) {
    if (!operation) return;
    if (questions.empty()) bound = loop.Loop().After(patience, [this] { LookForAnswers(); });
    questions.push_back({operation, false});
    pa_operation_set_state_callback(
        operation,
        [](pa_operation* answered, void* connection) { static_cast<PulseConnection*>(connection)->Answered(answered); },
        this);
}

void PulseConnection::Answered(pa_operation* operation) {
    std::erase_if(questions, [operation](const Question& question) { return question.Operation == operation; });
    if (questions.empty()) bound.End();
    pa_operation_unref(operation);
}

// A question has the whole of one look's time at least.
void PulseConnection::LookForAnswers() {
    for (Question& question : questions)
        if (std::exchange(question.IsOld, true)) return LoseHanging();
    bound = loop.Loop().After(patience, [this] { LookForAnswers(); });
}

void PulseConnection::LoseHanging() {
    hangs = true;
    Lose();
}

void PulseConnection::Lose() {
    Leave();
    SeekLater();
    Lost();
}

void PulseConnection::Leave() {
    ending.End();
    bound.End();
    isReady = false;
    for (const Question& question : std::exchange(questions, {})) {
        pa_operation_set_state_callback(question.Operation, nullptr, nullptr);
        pa_operation_cancel(question.Operation);
        pa_operation_unref(question.Operation);
    }
    if (!context) return;
    pa_context* const left = std::exchange(context, nullptr);
    pa_context_set_state_callback(left, nullptr, nullptr);
    pa_context_set_subscribe_callback(left, nullptr, nullptr);
    pa_context_disconnect(left);
    pa_context_unref(left);
}

// A socket that is not there is watched for.
void PulseConnection::SeekLater() {
    std::error_code failed;
    const bool isTold = !hangs && !socket.empty();
    if (isTold && (wait > LastWait || !std::filesystem::exists(socket, failed))) return;
    const Long next = wait > LastWait ? SlowWait : std::exchange(wait, wait * 2);
    again = loop.Loop().After(next, [this] { Connect(); });
}

}  // namespace orvelle::pulse
