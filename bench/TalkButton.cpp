#include "bench/TalkButton.h"

namespace orvelle {

namespace {

constexpr int Number = 3;  // of the device's node

}  // namespace

TalkButton::TalkButton() { devices.Add(Number, {"Stick", {BTN_TRIGGER}, {ABS_X, ABS_Y}}); }

// Where the device is, the mocking has put into this process's own environment.
void TalkButton::PutInto(QProcessEnvironment& environment) {
    environment.insert("UMOCKDEV_DIR", qEnvironmentVariable("UMOCKDEV_DIR"));
    environment.insert("LD_PRELOAD", "libumockdev-preload.so.0");
    // The sanitizers' own libraries, where there are any, come first as a rule.
    environment.insert("ASAN_OPTIONS", "verify_asan_link_order=0");
}

TalkButton::Moment TalkButton::Tell(int value) {
    const Moment before = std::chrono::steady_clock::now();
    devices.Tell(Number, EV_KEY, BTN_TRIGGER, value);
    return before;
}

}  // namespace orvelle
