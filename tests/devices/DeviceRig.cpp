#include "tests/devices/DeviceRig.h"

#include <chrono>

namespace orvelle {

void WrittenSide::SayInput(const SimulatorInput& input) {
    std::string line = SequenceOf(input.Keys);
    for (const std::string& button : input.Buttons) line += " | " + button;
    if (!input.Repeat.empty()) line += " repeats " + input.Repeat;
    Said.push_back(line);
}

bool DeviceRig::Until(const std::function<bool()>& isSo) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    bool holds = false;
    Ticket next;
    const std::function<void()> look = [&] {
        holds = isSo();
        if (holds || std::chrono::steady_clock::now() > end) return loop.Stop();
        next = loop.After(1, look);
    };
    loop.Post(look);
    loop.Run();
    return holds;
}

}  // namespace orvelle
