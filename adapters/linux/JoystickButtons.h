// What of an input device is a joystick, and what its buttons are called: "Button 1" on, in the order of the device's
// codes, and the four ways of each hat, "Hat 1 Up". For whoever reads joysticks.
#pragma once

#include <libevdev/libevdev.h>

#include <map>
#include <optional>
#include <string>

namespace orvelle::linux {

// By the kernel's usual rule: it has buttons of a joystick or a gamepad, or an axis of one and other buttons; a mouse,
// a tablet, a touchpad and a keyboard are none whatever else they have.
bool IsJoystick(const libevdev& device);

// The device's name for the user and for the link: in UTF-8, without full stops, as one parts device and button there.
std::string JoystickName(const libevdev& device);

// Names by the code of the button; codes below those of buttons, as of keys on a stick, count as none.
std::map<int, std::string> JoystickButtonNames(const libevdev& device);

// The way of a hat's axis to either side, numbered apart from the buttons; none for other axes.
struct HatWay {
    int Number;
    std::string Name;
};
enum class HatSide { Negative, Positive };
std::optional<HatWay> HatWayOf(int axis, HatSide side);

}  // namespace orvelle::linux
