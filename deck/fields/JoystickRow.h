// The buttons of a joystick of the simulator's computer: each is down for as long as the mouse, or the space bar,
// holds it.
#pragma once

#include <QWidget>
#include <string>

namespace orvelle {
class SimulatorSide;
}  // namespace orvelle

namespace orvelle::deck {

class JoystickRow : public QWidget {
public:
    JoystickRow(SimulatorSide& simulator, const std::string& device);
};

}  // namespace orvelle::deck
