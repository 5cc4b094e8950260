// The user's keys as the kernel tells them, for sessions whose X server hears only the keys of X windows: told to the
// far side of the simulator link by their places (adapters/shared/KeyNames.h), since no layout is known here. What is
// held when a keyboard is found is pressed then, and let go when the keyboard goes; a repeat is told once. Reading
// needs rights that the system gives few users: Problem() is one sentence while there is no keyboard that may be read.
// Loop and far side outlive this object.
#pragma once

#include <filesystem>
#include <set>
#include <string>

#include "adapters/linux/EventDevices.h"
#include "adapters/shared/DeviceInputs.h"

namespace orvelle::linux {

class EvdevKeyboards {
public:
    EvdevKeyboards(EventLoop& loop, SimulatorSide& simulator, const std::filesystem::path& folder = "/dev/input");

    std::string Problem() const;

private:
    void Take(int number, const libevdev& device);
    void Follow(int number, const input_event& event);

    DeviceInputs held;
    EventDevices devices;
    std::set<int> keyboards;
};

}  // namespace orvelle::linux
