// A joystick that no kernel has, with one button to talk by: a program that finds it in its environment reads it as it
// reads every joystick. One event is one write into what stands for the device.
#pragma once

#include <QProcessEnvironment>
#include <chrono>

#include "tests/devices/MockedDevices.h"

namespace orvelle {

class TalkButton {
public:
    using Moment = std::chrono::steady_clock::time_point;

    TalkButton();

    // As panels know it.
    static constexpr const char* Name = "Stick.Button 1";
    // Has the program that is started with it find the joystick.
    static void PutInto(QProcessEnvironment& environment);

    // The moment just before the write.
    Moment Press() { return Tell(1); }
    Moment Release() { return Tell(0); }

private:
    Moment Tell(int value);

    MockedDevices devices;
};

}  // namespace orvelle
