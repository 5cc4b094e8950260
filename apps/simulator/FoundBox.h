// Which simulator is there and sets the session: its sign, its aircraft and place; one that is there, too, and doesn't
// count; what keeps simulators from being heard; and the user's own callsign for one that knows none. Part of the
// simulator's page, which shows it anew at each change and, while time matters, each second.
#pragma once

#include <QElapsedTimer>
#include <functional>
#include <string>
#include <vector>

#include "deck/fields/Section.h"

namespace orvelle {

namespace deck {
class Readout;
class Remark;
class SignalLight;
class TextField;
}  // namespace deck

namespace simulators {
class SimulatorSource;
}  // namespace simulators

class FoundBox : public deck::Section {
public:
    explicit FoundBox(std::function<void(const std::string&)> setOwnCallsign);

    // How long it has been silent is counted from here. `chosen` null for none.
    void Follow(const simulators::SimulatorSource* chosen);
    void Show(const simulators::SimulatorSource* chosen, const std::vector<simulators::SimulatorSource*>& passedOver,
              const std::string& ownCallsign, const QString& trouble);

private:
    void ShowPresence(const simulators::SimulatorSource* chosen);

    deck::SignalLight* found;
    deck::Readout* aircraft;
    deck::Readout* place;
    deck::Readout* others;
    deck::TextField* callsign;
    deck::Remark* remark;
    QElapsedTimer silent;  // since it was seen to be busy
};

}  // namespace orvelle
