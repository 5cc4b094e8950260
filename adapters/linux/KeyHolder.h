// Presses keys on the X server, or wherever the key server leads, and sees to it that none stays down. The keys that
// are down because of this program are a set that the key guard shares, and a note on the X server itself; a key leaves
// them only after the server let it go. While one is held there is a beat every second: it tells the guard that this
// program goes on, replaces a guard that could not be started, and tries again to let go of what could not be let go.
// Where none is held at a beat, the note is cleared, and nothing of it runs any more.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "adapters/linux/HeldKeys.h"
#include "adapters/linux/KeyGuard.h"
#include "platform/Event.h"
#include "platform/EventLoop.h"

namespace orvelle::linux {

class KeyServer;

class KeyHolder {
public:
    // Loop and server outlive this object; `guard` is not started before it is needed.
    KeyHolder(EventLoop& loop, KeyServer& server, KeyGuard guard);
    ~KeyHolder() { ReleaseAll(); }

    // Lets go of what an earlier run left down and starts the guard, so that what is wrong is told before the first key
    // goes down. For the only panel of this user on this server.
    void Begin();
    void Press(int keyCode);
    // A key that is not held is let go as well.
    void Release(int keyCode) { LetGo({keyCode}); }
    void ReleaseAll();
    bool Holds(int keyCode) const { return held.Contains(keyCode); }
    std::vector<int> Held() const { return held.Keys(); }
    Event<> Changed;  // a key came or went

    // What keeps keys from being pressed, or from being let go whatever happens; one sentence, once until it is over.
    Event<const std::string&> Told;
    // At the beginning, that keys reach not every window of the session; one sentence.
    Event<const std::string&> LimitTold;

private:
    void LetGo(const std::vector<int>& keyCodes);
    void Beat();
    void BeatLater();
    void Rest();
    void TellProblem();

    EventLoop& loop;
    KeyServer& server;
    HeldKeys held;
    KeyGuard guard;
    std::set<int> waiting;  // to be let go when the server can be reached
    std::string told;       // the problem, "" while there is none
    Ticket guardEnded;
    bool beats = false;
    Ticket nextBeat;
};

}  // namespace orvelle::linux
