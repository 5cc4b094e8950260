#include "adapters/linux/Joysticks.h"

#include <algorithm>

#include "adapters/linux/JoystickButtons.h"

namespace orvelle::linux {

Joysticks::Joysticks(EventLoop& loop, SimulatorSide& simulator, const std::filesystem::path& folder)
    : held(simulator), devices(loop, folder, &IsJoystick) {
    devices.Came = [this](int number, const libevdev& device) { Take(number, device); };
    devices.Happened = [this](int number, const input_event& event) { Follow(number, event); };
    devices.Gone = [this](int number) { Drop(number); };
    devices.Begin();
}

std::vector<std::string> Joysticks::Names() const {
    std::vector<std::string> names;
    for (const auto& [number, joystick] : joysticks) names.push_back(joystick.Name);
    return names;
}

void Joysticks::Take(int number, const libevdev& device) {
    joysticks[number] = {FreeName(JoystickName(device)), JoystickButtonNames(device)};
    Changed();
}

void Joysticks::Follow(int number, const input_event& event) {
    const Joystick& joystick = joysticks.at(number);
    if (event.type == EV_KEY) {
        const auto button = joystick.Buttons.find(event.code);
        if (button == joystick.Buttons.end()) return;
        if (event.value != 0)
            held.PressButton(number, event.code, joystick.Name, button->second);
        else
            held.Release(number, event.code);
    } else if (event.type == EV_ABS) {
        for (const HatSide side : {HatSide::Negative, HatSide::Positive}) {
            const auto way = HatWayOf(event.code, side);
            if (!way) return;
            if (side == HatSide::Negative ? event.value >= 0 : event.value <= 0) held.Release(number, way->Number);
        }
        if (event.value == 0) return;
        const auto way = HatWayOf(event.code, event.value < 0 ? HatSide::Negative : HatSide::Positive);
        held.PressButton(number, way->Number, joystick.Name, way->Name);
    }
}

void Joysticks::Drop(int number) {
    held.ReleaseAllOf(number);
    joysticks.erase(number);
    Changed();
}

std::string Joysticks::FreeName(const std::string& name) const {
    const auto isTaken = [this](const std::string& wanted) {
        return std::ranges::any_of(joysticks, [&](const auto& each) { return each.second.Name == wanted; });
    };
    std::string free = name;
    for (int number = 2; isTaken(free); ++number) free = name + " " + std::to_string(number);
    return free;
}

}  // namespace orvelle::linux
