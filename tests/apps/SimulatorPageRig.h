// The simulator's page in a window, with simulators that are played by values, a real reader of FlightGear's lines and
// its real file of options in a folder of the test's own, and directories as they would be told.
#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <memory>
#include <string>
#include <vector>

#include "adapters/qt/services/QtEventLoop.h"
#include "apps/simulator/SimulatorPage.h"
#include "simulators/SimulatorSource.h"
#include "simulators/directory/OwnLogins.h"
#include "simulators/flightgear/FlightGearLine.h"
#include "simulators/flightgear/FlightGearOptions.h"
#include "tests/qt/shell/WidgetInput.h"

class QTabWidget;

namespace orvelle {

class PlayedSimulator : public simulators::SimulatorSource {
public:
    explicit PlayedSimulator(std::string itsName) : name(std::move(itsName)) {}

    std::string Name() const override { return name; }
    simulators::Presence Stands() const override { return Presence; }
    int Run() const override { return 1; }
    const std::optional<simulators::SimulatorState>& State() const override { return Told; }
    std::vector<std::string> Programs() const override { return {}; }
    std::string Problem() const override { return ""; }

    simulators::Presence Presence = simulators::Presence::Live;
    std::optional<simulators::SimulatorState> Told;

private:
    const std::string name;
};

class SimulatorPageRig : public testing::Test {
protected:
    SimulatorPageRig();
    ~SimulatorPageRig() override;

    // With something in every field.
    void PlayFlight();
    // The page shows it at once, as one that has just come into sight.
    void ShowAll();
    void Click(const char* name);
    void Type(const char* name, const QString& text);
    QString TextOf(const char* name);
    // A row of a table, "" where there is none.
    std::string Row(const char* table, int row);

    template <typename Widget>
    Widget& At(const char* name) {
        auto* widget = window->findChild<Widget*>(name);
        if (!widget) throw std::runtime_error(std::string("no widget ") + name);
        return *widget;
    }

    const QTemporaryDir folder;
    const std::filesystem::path home = folder.path().toStdString();
    qt::QtEventLoop loop;
    simulators::FlightGearLine flightGear;
    simulators::FlightGearOptions options{home / "installed", home / "own", home, 5601};
    directory::OwnLogins logins{home / "directory-logins.json"};
    PlayedSimulator cessna{"FlightGear"};
    PlayedSimulator other{"X-Plane 12"};
    SimulatorPageContent content;
    std::string refusal;  // what entering an address is answered
    int fetches = 0;
    int loginChanges = 0;
    std::unique_ptr<QTabWidget> window;
    SimulatorPage* page = nullptr;
};

}  // namespace orvelle
