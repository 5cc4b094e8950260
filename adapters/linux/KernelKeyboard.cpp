#include "adapters/linux/KernelKeyboard.h"

#include <fcntl.h>
#include <linux/uinput.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <string_view>
#include <system_error>
#include <utility>

#include "adapters/shared/ScanCodes.h"

namespace orvelle::linux {

namespace {

constexpr int XKeyCodes = 256;

// 0 for a code that is no key of this keyboard.
int KernelKey(int keyCode) {
    if (keyCode <= XKeyCodeOffset || keyCode >= XKeyCodes) return 0;
    const int key = keyCode - static_cast<int>(XKeyCodeOffset);
    return ScanCodeOfLinuxKey(key) != 0 ? key : 0;
}

input_event Event(int type, int code, int value) {
    input_event event{};
    event.type = static_cast<std::uint16_t>(type);
    event.code = static_cast<std::uint16_t>(code);
    event.value = value;
    return event;
}

}  // namespace

KernelKeyboard::KernelKeyboard(const std::string& file)
    : keyboard(open(file.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC)) {
    if (keyboard && Make()) return;
    problem = "This user can't make a keyboard by " + file + ": " + std::generic_category().message(errno) + ".";
    keyboard.Close();
}

bool KernelKeyboard::Make() const {
    const int file = keyboard.Number();
    if (ioctl(file, UI_SET_EVBIT, EV_KEY) < 0) return false;
    for (int keyCode = 0; keyCode < XKeyCodes; ++keyCode)
        if (const int key = KernelKey(keyCode); key != 0 && ioctl(file, UI_SET_KEYBIT, key) < 0) return false;
    uinput_setup description{};
    description.id.bustype = BUS_VIRTUAL;
    std::ranges::copy(std::string_view(Name), description.name);
    return ioctl(file, UI_DEV_SETUP, &description) >= 0 && ioctl(file, UI_DEV_CREATE) >= 0;
}

void KernelKeyboard::Send(int keyCode, KeyStroke stroke) {
    const int key = KernelKey(keyCode);
    if (key == 0 || !problem.empty()) return;
    const input_event events[] = {Event(EV_KEY, key, stroke == KeyStroke::Down ? 1 : 0), Event(EV_SYN, SYN_REPORT, 0)};
    ssize_t written;
    do written = write(keyboard.Number(), events, sizeof events);
    while (written < 0 && errno == EINTR);
    if (written != static_cast<ssize_t>(sizeof events))
        problem = "The kernel takes no key strokes any more, so no key can be pressed on this computer.";
}

}  // namespace orvelle::linux
