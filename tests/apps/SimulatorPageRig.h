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
#include "simulators/directory/OwnLogins.h"
#include "simulators/flightgear/FlightGearLine.h"
#include "simulators/flightgear/FlightGearOptions.h"
#include "tests/qt/shell/WidgetInput.h"
#include "tests/simulators/PlayedSource.h"

class QTabWidget;

namespace orvelle {

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
    simulators::PlayedSource cessna{"FlightGear", "fgfs"}, other{"X-Plane 12", "X-Plane"};
    const simulators::SimulatorSource* chosen = nullptr;
    SimulatorPageContent content;
    std::string refusal;  // what entering an address is answered
    int fetches = 0;
    int loginChanges = 0;
    std::unique_ptr<QTabWidget> window;
    SimulatorPage* page = nullptr;
};

}  // namespace orvelle
