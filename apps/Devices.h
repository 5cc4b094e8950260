// The devices of the simulator's computer, joined to the far side of the simulator link: its keys and joysticks are
// pressed there, it is told whether the simulator is the active application, and the sounds that panels ask for there
// are played here. For the simulator's program; needs no window. In a Wayland session the kernel's keyboards stand for
// those of the X server. Nothing fails: what can't be read is a sentence for the user. Loop and far side outlive this
// object.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/Event.h"
#include "platform/EventLoop.h"
#include "platform/sides/SimulatorSide.h"

namespace orvelle {

struct DevicesSetting {
    // The files of the simulators' programs, and the names of their windows where a program can't be told.
    std::vector<std::string> Simulators{};
    std::string Display{};      // "" is the environment's
    std::string SessionType{};  // of the desktop's session, as the environment's XDG_SESSION_TYPE: "wayland"
    std::filesystem::path Inputs = "/dev/input";
    std::filesystem::path Sounds;  // the folder of sounds
    std::string SoundServer{};     // "" is the user's own
};

class Devices {
public:
    Devices(EventLoop& loop, SimulatorSide& simulator, const DevicesSetting& setting);
    ~Devices();

    // The sentences for the user on what can't be read now, none if all can. What is held is asked of the far side.
    std::vector<std::string> Problems() const;
    // By their names on the link.
    std::vector<std::string> Joysticks() const;
    // From the loop, after either has changed.
    Event<> Changed;
    // The simulator whose window was the active one last: its program, or its window where that can't be told; "" for
    // none so far.
    std::string LastSimulator() const;
    Event<> SimulatorChanged;  // from the loop, another one

private:
    struct Parts;

    const std::unique_ptr<Parts> parts;
};

}  // namespace orvelle
