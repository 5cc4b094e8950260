// What the simulator's two radios are tuned to, whether they are heard and which one transmits, what the directories
// chose for them and why, and the voice record that it came to. Part of the simulator's page.
#pragma once

#include <array>

#include "deck/fields/Section.h"
#include "simulators/SimulatorSession.h"

namespace orvelle {

namespace deck {
class Readout;
}  // namespace deck

class TunedBox : public deck::Section {
public:
    TunedBox();

    // `state` null without a simulator; then nothing is shown of the rest.
    void Show(const simulators::SimulatorState* state, const std::array<simulators::RadioTold, 2>& told,
              const std::array<RadioVoiceSetting, 2>& records);

private:
    struct Radio {
        deck::Readout* Tuned;
        deck::Readout* Sounds;
        deck::Readout* Station;
        deck::Readout* Record;
    };

    std::array<Radio, 2> radios;
};

}  // namespace orvelle
