#include "apps/talk/Pilot.h"

#include <iostream>

#include "adapters/avahi/ServiceBrowser.h"
#include "adapters/looks/Text.h"
#include "adapters/mqtt/SetUpFile.h"
#include "adapters/store/SqliteStore.h"
#include "apps/FreePort.h"
#include "apps/talk/OwnSound.h"
#include "apps/three/ChildPrograms.h"
#include "platform/RadioSelection.h"
#include "platform/SessionSetting.h"
#include "platform/Tessaly.h"
#include "platform/VoiceRoles.h"

namespace orvelle {

namespace {

constexpr int PanelIdentity = 2;  // orvelle-sim is c01
// What the icon tells takes a third of a screen. It stands beside the panel, and the picture is of that alone.
constexpr int ScreenWidth = VirtualComputer::UsualScreenWidth * 8 / 5;

bool HasEndedWell(const QProcess& program) {
    return program.state() == QProcess::NotRunning && program.exitStatus() == QProcess::NormalExit &&
           program.exitCode() == 0;
}

}  // namespace

Pilot::Pilot(EventLoop& eventLoop, std::size_t ownNumber, const QDir& folder, const QString& displayScript)
    : loop(eventLoop), number(ownNumber), computer(folder, displayScript, ScreenWidth), port(FreePort()) {
    OwnSound::Name(computer.Environment, number);
    SetUpPanel();
}

Pilot::~Pilot() {
    watch.reset();
    keyboard.reset();
    for (QProcess* const each : {&adding, &panel, &simulator}) EndChild(*each);
    if (simulator.isOpen()) std::cerr << simulator.readAll().toStdString();
}

std::string Pilot::Callsign() const { return number == 0 ? "ABC123" : "DEF456"; }

void Pilot::SetUpPanel() {
    store::SqliteStore settings(loop, computer.SettingsFile(), [](const std::string&) {});
    settings.SaveSettingLong("OrvelleCP", "VVLEnable", 1);
    settings.SaveSettingString("OrvelleCP", "VVLFSKey", "F8");
    // What is heard is compared with what was spoken, without the tones around it.
    settings.SaveSettingLong("OrvelleCP", "VVLSignalVolume", 0);
    settings.HandlerEnded();
}

bool Pilot::IsOn() {
    if (!computer.IsOn()) return false;
    if (!keyboard) keyboard = std::make_unique<UserStrokes>(computer.Display());
    return true;
}

void Pilot::StartSimulator() {
    simulator.setProcessChannelMode(QProcess::MergedChannels);
    QObject::connect(&simulator, &QProcess::readyRead, [this] { PassOnWhatItSays(); });
    // Both pilots' programs run on one computer here, so each has its own port of FlightGear, too.
    computer.Run(simulator, "orvelle-sim",
                 {"--no-window", "--data", SetUpFolder(), "--port", QString::number(port), "--flightgear-port",
                  QString::number(FreePort())});
}

// That set-ups are not found by themselves is nothing to the story, which names its hosts.
void Pilot::PassOnWhatItSays() {
    while (simulator.canReadLine()) {
        const QByteArray line = simulator.readLine();
        if (!line.contains(avahi::MissingSentence)) std::cerr << line.toStdString() << std::flush;
    }
}

bool Pilot::SimulatorServes() {
    if (!watch) watch = SetUpWatch::OfMade(loop, FromQt(SetUpFolder()));
    return watch && watch->SimulatorServes();
}

void Pilot::Join() { computer.Run(adding, "orvelle-sim", {"--add", "--data", SetUpFolder()}); }

bool Pilot::HasJoined() {
    if (isJoining) return computer.HasJoined();
    if (!HasEndedWell(adding)) return false;
    isJoining = true;
    computer.Join(adding.readAll().trimmed().toStdString(), port);
    return false;
}

void Pilot::StartPanel() { computer.Run(panel, "orvelle-panel", {}); }

bool Pilot::HasEngine() { return watch->Holders(EngineRole) == std::vector{PanelIdentity}; }

QImage Pilot::Screen() const {
    const QImage whole = computer.Screen();
    return whole.copy(0, 0, VirtualComputer::UsualScreenWidth, whole.height());
}

void Pilot::Tune(const std::string& server, const std::string& channel) {
    watch->SetSession({.Handle = 1,
                       .Status = ConnectedToMultiplayer,
                       .Callsign = Callsign(),
                       .Receive = SelectsCom1,
                       .Transmit = SelectsCom1,
                       .Frequency = {channel, ""},
                       .Voice = {{{VatsimVoice, server, channel, "", ""}, {}}}});
}

}  // namespace orvelle
