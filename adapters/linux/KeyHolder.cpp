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
        guard.Replace(held);
        TellProblem();
    });
}

void KeyHolder::Begin() {
    guard.Watch(held);
    for (const int keyCode : server.Reach().NotedKeys()) held.Insert(keyCode);
    ReleaseAll();
    TellProblem();
}

void KeyHolder::Press(int keyCode) {
    XTestConnection& connection = server.Reach();
    if (connection.Problem().empty()) {
        guard.Watch(held);
        waiting.erase(keyCode);
        const bool isFirst = held.IsEmpty();
        if (isFirst) held.Beat();
        // Set and note are never behind the server: a key is in them before it goes down and until the server has let
        // it go, since a server may drop what it has not read yet when this program dies.
        held.Insert(keyCode);
        connection.NoteHeldKeys(held.Keys());
        connection.Send(keyCode, KeyStroke::Down);
        if (isFirst) {
            guard.Wake();
            nextBeat = loop.After(BetweenBeats, [this] { Beat(); });
        }
    }
    TellProblem();
}

void KeyHolder::ReleaseAll() {
    const std::vector<int> keyCodes = held.Keys();
    if (!keyCodes.empty()) LetGo(keyCodes);
}

void KeyHolder::LetGo(const std::vector<int>& keyCodes) {
    std::vector<int> rest = held.Keys();
    std::erase_if(rest,
                  [&](int keyCode) { return std::find(keyCodes.begin(), keyCodes.end(), keyCode) != keyCodes.end(); });

    // A connection may turn out to be cut by its use alone, and the next one does it then.
    bool isDone = false;
    for (int attempt = 0; attempt < 2 && !isDone; ++attempt) {
        XTestConnection& connection = server.Reach();
        for (const int keyCode : keyCodes) connection.Send(keyCode, KeyStroke::Up);
        connection.NoteHeldKeys(rest);
        connection.Finish();
        isDone = connection.Problem().empty();
    }
    for (const int keyCode : keyCodes) {
        if (isDone) {
            held.Erase(keyCode);
            waiting.erase(keyCode);
        } else if (held.Contains(keyCode)) {
            waiting.insert(keyCode);
        }
    }
    if (held.IsEmpty()) nextBeat.End();
    TellProblem();
}

void KeyHolder::Beat() {
    held.Beat();
    guard.Watch(held);
    if (!waiting.empty()) LetGo({waiting.begin(), waiting.end()});
    if (!held.IsEmpty()) nextBeat = loop.After(BetweenBeats, [this] { Beat(); });
    TellProblem();
}

void KeyHolder::TellProblem() {
    std::string problem = server.Problem();
    if (problem.empty()) problem = guard.Problem();
    if (problem == told) return;
    told = std::move(problem);
    if (!told.empty()) Told(told);
}

}  // namespace orvelle::linux
