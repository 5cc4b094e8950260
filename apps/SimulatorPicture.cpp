#include "apps/SimulatorPicture.h"

#include <QLabel>
#include <QProcess>
#include <QTabWidget>
#include <QTemporaryDir>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "adapters/looks/Text.h"
#include "adapters/qt/services/QtEventLoop.h"
#include "apps/FreePort.h"
#include "apps/PanelPages.h"
#include "apps/SimulatorProgram.h"
#include "apps/SimulatorWindow.h"
#include "apps/Waiting.h"

namespace orvelle {

namespace {

constexpr int SimulatorTab = 2;

// Without an end, ten times a second; the port follows.
constexpr const char* Flight =
    "while :; do echo 'COM1=118.300,COM2=122.800,OP1=1,OP2=1,VOL1=1,VOL2=1,TX=1,ONLINE=1,AIRCRAFT=c172p,"
    "LAT=63.891,LON=-22.431,ALT=2171,CS=D-EABC'; sleep 0.1; done >/dev/udp/127.0.0.1/";

constexpr const char* Directory = R"({
  "format": "orvelle-directory/1", "name": "Flying Club",
  "servers": {"club": {"software": "teamspeak", "server": "voice.example.org:8767", "login": "pilot"}},
  "stations": [{"callsign": "BIKF_TWR", "rangeNm": 50, "voice": {"server": "club", "channel": "Keflavik Tower"},
    "transceivers": [{"frequency": 118300000, "latDeg": 63.985, "lonDeg": -22.605, "heightMslM": 52}]}],
  "everywhere": [{"frequency": 122800000, "voice": {"server": "club", "channel": "Unicom"}}]
})";

}  // namespace

bool TakeSimulatorPicture(const QDir& folder, const QString& ending) {
    const QTemporaryDir work;
    SimulatorCommand command;
    command.Data = FromQt(work.filePath("OrvelleCP"));
    command.Port = FreePort();
    command.Name = "Home";
    command.FlightGearPort = FreePort();
    std::filesystem::create_directories(command.Data / "directory.d");
    std::ofstream(command.Data / "directory.d" / "club.json") << Directory;

    qt::QtEventLoop loop;
    SimulatorProgram program(loop, command);
    SimulatorWindow window(program);
    window.findChild<QTabWidget*>("SimulatorPages")->setCurrentIndex(SimulatorTab);
    window.show();
    QProcess flight;
    flight.start("bash", {"-c", Flight + QString::number(command.FlightGearPort)});
    const auto* station = window.findChild<QLabel*>("StationCOM1");
    const bool isReached = program.Open().empty() && WaitUntil([&] {
                               return program.AtBroker.IsThere() && station->text().contains("BIKF_TWR");
                           });
    if (isReached) {
        Settle();
        window.grab().save(folder.filePath("simulator" + ending));
    } else {
        std::cerr << "OrvelleCP: this was not reached: the station of the played flight" << std::endl;
    }
    flight.kill();
    flight.waitForFinished();
    program.Close();
    return isReached;
}

}  // namespace orvelle
