#include "adapters/shared/DeviceInputs.h"

#include <algorithm>
#include <utility>

namespace orvelle {

void DeviceInputs::Press(Held input) {
    const bool isHeld = std::ranges::any_of(
        held, [&](const Held& each) { return each.Device == input.Device && each.Number == input.Number; });
    if (isHeld || input.Name.empty()) return;
    const bool isNew = std::ranges::none_of(
        held, [&](const Held& each) { return each.Joystick == input.Joystick && each.Name == input.Name; });
    if (isNew) {
        if (input.Joystick.empty())
            simulator.PressKey(input.Name);
        else
            simulator.PressButton(input.Joystick, input.Name);
    }
    held.push_back(std::move(input));
}

void DeviceInputs::Release(int device, int number) {
    KeepIf([=](int heldDevice, int heldNumber) { return heldDevice != device || heldNumber != number; });
}

void DeviceInputs::ReleaseAllOf(int device) {
    KeepIf([=](int heldDevice, int) { return heldDevice != device; });
}

void DeviceInputs::ReleaseAll() {
    KeepIf([](int, int) { return false; });
}

void DeviceInputs::KeepIf(const std::function<bool(int, int)>& isSo) {
    const auto gone = std::stable_partition(held.begin(), held.end(),
                                            [&](const Held& each) { return isSo(each.Device, each.Number); });
    const std::vector<Held> released(std::make_move_iterator(gone), std::make_move_iterator(held.end()));
    held.erase(gone, held.end());
    for (const Held& input : released) {
        const bool isElsewhere = std::ranges::any_of(
            held, [&](const Held& each) { return each.Joystick == input.Joystick && each.Name == input.Name; });
        if (isElsewhere) continue;
        if (input.Joystick.empty())
            simulator.ReleaseKey(input.Name);
        else
            simulator.ReleaseButton(input.Joystick, input.Name);
    }
}

}  // namespace orvelle
