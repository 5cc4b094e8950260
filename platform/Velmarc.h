// The link to the simulator's computer: which server, the state of the link, sounds there, and the keys and joystick
// buttons pressed there. Finding, connecting and reconnecting lie inside the control. Its events come on the panel's
// thread, never from inside a call. What is down when the link is lost is told as released before the loss. The control
// also lends the settings store and the registry, which have headers of their own.
#pragma once

#include <string>

#include "platform/Event.h"
#include "platform/ServerNames.h"
#include "platform/Types.h"

namespace orvelle {

class VelmarcControl {
public:
    virtual ~VelmarcControl() = default;

    // A host name, an address or AutomaticServer; the control keeps it between runs.
    virtual void SetServer(const std::string& name) = 0;
    virtual std::string GetServer() = 0;
    virtual bool LinkUp() = 0;
    // The panel's answer to Connected.
    virtual void ClientReady() = 0;
    // Of the simulator's computer, while the link is up.
    virtual std::string IPAddress() = 0;
    virtual std::string ComputerName() = 0;
    virtual std::string DesktopName() = 0;
    // True if `name` is this computer.
    virtual bool IsLocalAddress(const std::string& name) = 0;
    // Plays a wave file of the simulator's computer, by relative path. An unplayable one passes in silence, and so does
    // any while the link is down.
    virtual void PlaySound(const std::string& path) = 0;

    Event<> Connected;
    Event<> Disconnected;
    Event<const std::string&> ServerFound;  // host or address; may come again for the same one
    // Repeat, simulator active, the key, the sequence: the names of all keys held by now, in the order in which they
    // went down, joined by "+". The name that comes up again is spelled as it is in the sequence.
    Event<bool, bool, const std::string&, const std::string&> FSKeyDown;
    // two ignored values, the key, one ignored text
    Event<Long, Long, const std::string&, const std::string&> FSKeyUp;
    // two ignored values, the button, one ignored text
    Event<Long, Long, const std::string&, const std::string&> FSJoyDown;
    Event<Long, Long, const std::string&, const std::string&> FSJoyUp;
};

}  // namespace orvelle
