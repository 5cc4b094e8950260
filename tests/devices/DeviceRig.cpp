#include "tests/devices/DeviceRig.h"

#include "tests/linux/ServeUntil.h"

namespace orvelle {

void WrittenSide::SayInput(const SimulatorInput& input) {
    std::string line = SequenceOf(input.Keys);
    for (const std::string& button : input.Buttons) line += " | " + button;
    if (!input.Repeat.empty()) line += " repeats " + input.Repeat;
    Said.push_back(line);
}

bool DeviceRig::Until(const std::function<bool()>& isSo) { return linux::ServeUntil(loop, isSo); }

}  // namespace orvelle
