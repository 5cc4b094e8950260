#include "adapters/linux/KeyHolder.h"

#include <algorithm>
#include <utility>

#include "adapters/linux/KeyServer.h"

namespace orvelle::linux {

namespace {

constexpr Long BetweenBeats = 1000;  // ms

}  // namespace

KeyHolder::KeyHolder(EventLoop& eventLoop, KeyServer& keyServer, KeyGuard keyGuard)
    : loop(eventLoop), server(keyServer), guard(std::move(keyGuard)) {
    guardEnded = loop.WhenReadable(guard.Descriptor(), [this] {
        guard.Replace(held, server.KernelDescriptor());
        TellProblem();
    });
}

void KeyHolder::Begin() {
    StrokeTarget& target = server.Reach();
    guard.Watch(held, server.KernelDescriptor());
    for (const int keyCode : target.NotedKeys()) held.Insert(keyCode);
    ReleaseAll();
    TellProblem();
    if (!server.LimitProblem().empty()) LimitTold(server.LimitProblem());
}

void KeyHolder::Press(int keyCode) {
    StrokeTarget& target = server.Reach();
    if (target.Problem().empty()) {
        guard.Watch(held, server.KernelDescriptor());
        waiting.erase(keyCode);
        const bool isFirst = held.IsEmpty();
        if (isFirst) held.Beat();
        // Set and note are never behind the server: a key is in them before it goes down and until the server has let
        // it go, since a server may drop what it has not read yet when this program dies.
        held.Insert(keyCode);
        target.NoteHeldKeys(held.Keys());
        target.Send(keyCode, KeyStroke::Down);
        Changed();
        if (isFirst) guard.Wake();
        if (!std::exchange(beats, true)) BeatLater();
    }
    TellProblem();
}

void KeyHolder::ReleaseAll() {
    const std::vector<int> keyCodes = held.Keys();
    if (keyCodes.empty() && !beats) return;
    LetGo(keyCodes);
    if (held.IsEmpty()) Rest();
}

void KeyHolder::LetGo(const std::vector<int>& keyCodes) {
    // A connection may turn out to be cut by its use alone, and the next one does it then.
    bool isDone = false;
    for (int attempt = 0; attempt < 2 && !isDone; ++attempt) {
        StrokeTarget& target = server.Reach();
        for (const int keyCode : keyCodes) target.Send(keyCode, KeyStroke::Up);
        target.Finish();
        isDone = target.Problem().empty();
    }
    for (const int keyCode : keyCodes) {
        if (isDone) {
            held.Erase(keyCode);
            waiting.erase(keyCode);
        } else if (held.Contains(keyCode)) {
            waiting.insert(keyCode);
        }
    }
    if (isDone) Changed();
    TellProblem();
}

void KeyHolder::Beat() {
    held.Beat();
    guard.Watch(held, server.KernelDescriptor());
    if (!waiting.empty()) LetGo({waiting.begin(), waiting.end()});
    if (held.IsEmpty())
        Rest();
    else
        BeatLater();
    TellProblem();
}

void KeyHolder::BeatLater() {
    nextBeat = loop.After(BetweenBeats, [this] { Beat(); });
}

void KeyHolder::Rest() {
    nextBeat.End();
    beats = false;
    server.Reach().ClearNote();
}

void KeyHolder::TellProblem() {
    std::string problem = server.Problem();
    if (problem.empty()) problem = guard.Problem();
    if (problem == told) return;
    told = std::move(problem);
    if (!told.empty()) Told(told);
}

}  // namespace orvelle::linux
