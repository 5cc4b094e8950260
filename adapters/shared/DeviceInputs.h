// What the devices of the simulator's computer hold, each by the device's own number of a key or button, and what the
// link's far side is told of it: a name is held there from its first press on any device to its last release, under the
// name that it had when it went down, whatever the layout has become since. For whoever reads devices; nothing fails.
// The far side outlives this object, whose end lets go of everything.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/sides/SimulatorSide.h"

namespace orvelle {

class DeviceInputs {
public:
    explicit DeviceInputs(SimulatorSide& simulatorSide) : simulator(simulatorSide) {}
    DeviceInputs(const DeviceInputs&) = delete;
    DeviceInputs& operator=(const DeviceInputs&) = delete;
    ~DeviceInputs() { ReleaseAll(); }

    // Nothing for a name that is empty, and for what the device holds already: a repeat is no press.
    void PressKey(int device, int number, const std::string& name) { Press({device, number, "", name}); }
    void PressButton(int device, int number, const std::string& joystick, const std::string& name) {
        Press({device, number, joystick, name});
    }
    void Release(int device, int number);
    void ReleaseAllOf(int device);
    void ReleaseAll();
    // Lets go of each that is not so, by device and number.
    void KeepIf(const std::function<bool(int, int)>& isSo);

private:
    struct Held {
        int Device;
        int Number;
        std::string Joystick;  // "" for a key
        std::string Name;
    };

    void Press(Held input);

    SimulatorSide& simulator;
    std::vector<Held> held;
};

}  // namespace orvelle
