// The joysticks of this computer: their buttons and hats are told to the far side of the simulator link by the names of
// JoystickButtons.h, "Stick" and "Button 3". Of two joysticks of one name the later has a number behind it, "Stick 2".
// What is down when a joystick is found counts from its next press on: a switch that stands on a throttle must not open
// a microphone by being plugged in. A joystick that goes lets go of all that it held. Loop and far side outlive this
// object.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "adapters/linux/EventDevices.h"
#include "adapters/shared/DeviceInputs.h"

namespace orvelle::linux {

class Joysticks {
public:
    Joysticks(EventLoop& loop, SimulatorSide& simulator, const std::filesystem::path& folder = "/dev/input");

    // Those that are there, by their names on the link.
    std::vector<std::string> Names() const;
    // From the loop, after a joystick came or went.
    Event<> Changed;

private:
    struct Joystick {
        std::string Name;
        std::map<int, std::string> Buttons;  // by code
    };

    void Take(int number, const libevdev& device);
    void Follow(int number, const input_event& event);
    void Drop(int number);
    std::string FreeName(const std::string& name) const;

    DeviceInputs held;
    EventDevices devices;
    std::map<int, Joystick> joysticks;
};

}  // namespace orvelle::linux
