// What this computer is to the panel: its keyboard, its programs, its registry and its TeamSpeak. Each system has its
// own source file for it, which the build picks.
#pragma once

#include <memory>
#include <string>

#include "platform/Event.h"

namespace orvelle {

class Control;
class EventLoop;
class HeldKeysSide;
class Keyboard;
class Processes;
class Registry;
class TeamSpeakRemote;
class ThisProcess;
class WindowTable;

class ThisComputer {
public:
    // `keptRegistry` takes the values to which this system gives no meaning of its own. All three outlive this object.
    ThisComputer(ThisProcess& process, EventLoop& loop, orvelle::Registry& keptRegistry);
    ThisComputer(const ThisComputer&) = delete;
    ThisComputer& operator=(const ThisComputer&) = delete;
    ~ThisComputer();

    // Lets go of the keys that an earlier run of the panel left down, and tells what is wrong from the beginning on.
    void Begin();

    orvelle::Keyboard& Keyboard();
    HeldKeysSide& HeldKeys();
    // Whether the panel itself holds down the key that a key event of this computer tells of.
    bool HoldsKey(int nativeScanCode) const;
    orvelle::Processes& Processes();
    orvelle::Registry& Registry();
    TeamSpeakRemote* TeamSpeak();  // its own remote control; null where that is not there
    std::string Name() const;
    static const char* const DesktopName;  // as the other computers are told
    // Tells by FileChanged when that file comes, changes or goes, from now on.
    void WatchFile(const std::string& file);
    // Opens the door by which other programs' messages reach the control's window.
    void OpenDoor(const WindowTable& table, Control& control);

    Event<const std::string&> Told;      // a sentence for the user about what this computer can't do
    Event<const std::string&> KeysTold;  // one on the windows that its keys don't reach; it needs no answer
    Event<> FileChanged;
    Event<const std::string&> ProgramTold;  // a sentence about a program that was started, or was not

private:
    struct Parts;

    std::unique_ptr<Parts> parts;
};

}  // namespace orvelle
