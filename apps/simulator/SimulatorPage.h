// The third page of the window of the simulator's program: which simulator is there and what its radios came to,
// FlightGear's options, the directories of voice channels, and the user's own logins. While it is seen it asks for what
// it shows, at changes that it is told of, at most five times a second, and as time passes.
#pragma once

#include <QTimer>
#include <QWidget>
#include <array>
#include <functional>
#include <string>
#include <vector>

#include "apps/simulator/DirectoriesBox.h"
#include "simulators/SimulatorSession.h"

namespace orvelle {

class FlightGearBox;
class FoundBox;
class LoginsBox;
class TunedBox;

namespace directory {
class OwnLogins;
}  // namespace directory

namespace simulators {
class FlightGearLine;
class FlightGearOptions;
class SimulatorSource;
}  // namespace simulators

// What it shows, as it is now.
struct SimulatorPageContent {
    std::vector<simulators::SimulatorSource*> PassedOver;
    std::string Trouble;  // sentences on what keeps simulators other than FlightGear from being heard
    std::string OwnCallsign;
    std::array<simulators::RadioTold, 2> Radios;
    std::array<RadioVoiceSetting, 2> Records;
    std::vector<directory::DirectoryTold> Directories;
    std::vector<std::string> Addresses;
};

// Whom it asks and acts on; all outlive it.
struct SimulatorPageParts {
    const simulators::FlightGearLine& FlightGear;
    const simulators::FlightGearOptions& Options;
    directory::OwnLogins& Logins;
    DirectoryDoings Directories;
    std::function<const simulators::SimulatorSource*()> Chosen;  // null for none
    std::function<SimulatorPageContent()> Content;
    std::function<void(const std::string&)> SetOwnCallsign;
    std::function<void()> LoginsChanged;
};

class SimulatorPage : public QWidget {
public:
    explicit SimulatorPage(const SimulatorPageParts& pageParts);

    // Something may have changed.
    void ShowState();

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void ShowNow();

    const SimulatorPageParts parts;
    FoundBox* found;
    TunedBox* tuned;
    FlightGearBox* flightGear;
    DirectoriesBox* directories;
    LoginsBox* logins;
    QTimer soon, later;
};

}  // namespace orvelle
