#include "adapters/linux/JoystickButtons.h"

#include <algorithm>
#include <array>

#include "adapters/shared/Utf8.h"

namespace orvelle::linux {

namespace {

// Of what the link takes for a text this leaves room for the button and for a number behind equal names.
constexpr std::size_t LongestName = 200;
// Hats are numbered far from the codes of buttons.
constexpr int FirstHatNumber = KEY_CNT;

bool HasKey(const libevdev& device, int first, int last) {
    for (int code = first; code <= last; ++code)
        if (libevdev_has_event_code(&device, EV_KEY, static_cast<unsigned>(code))) return true;
    return false;
}

bool HasAxis(const libevdev& device) {
    constexpr auto Axes = std::to_array<unsigned>({ABS_X, ABS_Z, ABS_THROTTLE, ABS_RUDDER, ABS_WHEEL});
    return std::ranges::any_of(Axes, [&](unsigned axis) { return libevdev_has_event_code(&device, EV_ABS, axis); });
}

}  // namespace

bool IsJoystick(const libevdev& device) {
    const bool isTablet =
        HasKey(device, BTN_DIGI, BTN_TOOL_QUADTAP) || libevdev_has_property(&device, INPUT_PROP_ACCELEROMETER);
    const bool isMouse = HasKey(device, BTN_LEFT, BTN_MIDDLE);
    const bool isKeyboard = HasKey(device, KEY_Q, KEY_P);
    if (isTablet || isMouse || isKeyboard) return false;
    return HasKey(device, BTN_JOYSTICK, BTN_GAMEPAD + 0xF) || HasKey(device, BTN_TRIGGER_HAPPY, BTN_TRIGGER_HAPPY40) ||
           (HasAxis(device) && HasKey(device, BTN_0, BTN_9));
}

std::string JoystickName(const libevdev& device) {
    std::string name = libevdev_get_name(&device);
    std::erase(name, '.');
    std::ranges::replace_if(
        name, [](char each) { return static_cast<unsigned char>(each) < ' '; }, ' ');
    name = std::string(FirstCharacters(ToUtf8(name), LongestName));
    name.erase(0, name.find_first_not_of(' '));
    name.erase(name.find_last_not_of(' ') + 1);
    return name.empty() ? "Joystick" : name;
}

std::map<int, std::string> JoystickButtonNames(const libevdev& device) {
    std::map<int, std::string> names;
    for (int code = BTN_MISC; code < KEY_CNT; ++code)
        if (libevdev_has_event_code(&device, EV_KEY, static_cast<unsigned>(code)))
            names.emplace(code, "Button " + std::to_string(names.size() + 1));
    return names;
}

std::optional<HatWay> HatWayOf(int axis, HatSide side) {
    if (axis < ABS_HAT0X || axis > ABS_HAT3Y) return std::nullopt;
    constexpr std::array<std::array<const char*, 2>, 2> Ways{{{"Left", "Right"}, {"Up", "Down"}}};
    const int place = axis - ABS_HAT0X;
    const int toSide = side == HatSide::Positive ? 1 : 0;
    const std::string way = Ways.at(static_cast<std::size_t>(place % 2)).at(static_cast<std::size_t>(toSide));
    return HatWay{FirstHatNumber + 2 * place + toSide, "Hat " + std::to_string(place / 2 + 1) + " " + way};
}

}  // namespace orvelle::linux
