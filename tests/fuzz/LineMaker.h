// Turns bytes into lines of a scenario: settings and roles before the load, then whatever a user, the simulator, the
// network, the engine, other computers and time can do, in any order. Every line is of a form that the replay program
// takes, so a finding can be kept as a scenario.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "platform/Types.h"

namespace orvelle::fuzz {

class LineMaker {
public:
    LineMaker(const std::uint8_t* bytes, std::size_t count) : next(bytes), end(bytes + count) {}

    bool AtEnd() const { return next == end; }
    // One setting, answer or record; for before the load.
    std::string Preparation();
    std::string Stimulus();

private:
    std::size_t Pick(std::size_t count);
    template <typename Choices>
    std::string OneOf(const Choices& choices) {
        return choices[Pick(std::size(choices))];
    }
    std::string Number(int first, int last);
    std::string Key();
    std::string Button();
    std::string Setting();
    std::string Answer();
    std::string OtherComputer();
    std::string UserAct();
    std::string SimulatorEvent();
    std::string NetworkEvent();
    std::string EngineEvent();
    std::string Passing();
    // Keys of this computer, and the clicks that collect them.
    std::string LocalCapture();

    const std::uint8_t* next;
    const std::uint8_t* end;
};

// Codes that the two talk keys are given here, and no table row is.
constexpr Long RogerWilcoCode = 301;
constexpr Long TeamSpeakCode = 302;

}  // namespace orvelle::fuzz
