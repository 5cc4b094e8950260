#include "adapters/linux/EvdevKeyboards.h"

#include <string_view>

#include "adapters/linux/KernelKeyboard.h"
#include "adapters/shared/KeyNames.h"
#include "adapters/shared/ScanCodes.h"

namespace orvelle::linux {

namespace {

// Buttons of a power switch and of a headset are keys, too; what makes a keyboard is one of those that a typist knows.
// What a panel on this computer presses by a keyboard of its own are not the user's keys.
bool IsKeyboard(const libevdev& device) {
    if (libevdev_get_name(&device) == std::string_view(KernelKeyboard::Name)) return false;
    for (unsigned key = KEY_ESC; key <= KEY_KPDOT; ++key)
        if (libevdev_has_event_code(&device, EV_KEY, key)) return true;
    return false;
}

std::string NameOf(int key) { return std::string(DescribeKey(ScanCodeOfLinuxKey(key)).Name); }

}  // namespace

EvdevKeyboards::EvdevKeyboards(EventLoop& loop, SimulatorSide& simulator, const std::filesystem::path& folder)
    : held(simulator), devices(loop, folder, &IsKeyboard) {
    devices.Came = [this](int number, const libevdev& device) { Take(number, device); };
    devices.Happened = [this](int number, const input_event& event) { Follow(number, event); };
    devices.Gone = [this](int number) {
        keyboards.erase(number);
        held.ReleaseAllOf(number);
    };
    devices.Begin();
}

std::string EvdevKeyboards::Problem() const {
    if (!keyboards.empty()) return "";
    return "In this Wayland session keys can be read only by members of the group \"input\", so no key of this "
           "computer is "
           "read; joysticks are.";
}

void EvdevKeyboards::Take(int number, const libevdev& device) {
    keyboards.insert(number);
    for (int key = 1; key < BTN_MISC; ++key)
        if (libevdev_get_event_value(&device, EV_KEY, static_cast<unsigned>(key)) != 0)
            held.PressKey(number, key, NameOf(key));
}

void EvdevKeyboards::Follow(int number, const input_event& event) {
    if (event.type != EV_KEY) return;
    if (event.value != 0)
        held.PressKey(number, event.code, NameOf(event.code));
    else
        held.Release(number, event.code);
}

}  // namespace orvelle::linux
