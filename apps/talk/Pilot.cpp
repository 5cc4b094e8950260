#include "apps/talk/Pilot.h"

#include "adapters/linux/OwnFile.h"
#include "adapters/looks/Text.h"
#include "adapters/mqtt/OwnSetUp.h"
#include "adapters/store/SqliteStore.h"
#include "apps/FreePort.h"
#include "apps/talk/OwnSound.h"
#include "apps/three/ChildPrograms.h"
#include "apps/three/ScreenOf.h"
#include "platform/RadioSelection.h"
#include "platform/SessionSetting.h"
#include "platform/Tessaly.h"
#include "platform/VoiceRoles.h"

namespace orvelle {

namespace {

constexpr const char* ScreenSize = "984x484";
// What the display's script runs: tells where the display is, and stays.
constexpr const char* Session = "echo \"$DISPLAY\"; echo \"$DBUS_SESSION_BUS_ADDRESS\"; exec sleep infinity";
constexpr int PanelIdentity = 2;  // orvelle-sim is c01

QDir Made(const QDir& folder) {
    folder.mkpath("run");
    folder.mkpath(".local/share/OrvelleCP");
    QFile::setPermissions(folder.filePath("run"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return folder;
}

bool HasEndedWell(const QProcess& program) {
    return program.state() == QProcess::NotRunning && program.exitStatus() == QProcess::NormalExit &&
           program.exitCode() == 0;
}

}  // namespace

Pilot::Pilot(EventLoop& eventLoop, std::size_t ownNumber, const QDir& folder, const QString& displayScript)
    : loop(eventLoop), number(ownNumber), home(Made(folder)), script(displayScript), port(FreePort(mqtt::UsualPort)) {
    SetUpPanel();
}

Pilot::~Pilot() {
    watch.reset();
    keyboard.reset();
    for (QProcess* const each : {&adding, &joining, &panel, &simulator, &desktop}) EndChild(*each);
}

std::string Pilot::Callsign() const { return number == 0 ? "ABC123" : "DEF456"; }

void Pilot::SetUpPanel() {
    store::SqliteStore settings(loop, FromQt(home.filePath(".local/share/OrvelleCP/settings.sqlite")),
                                [](const std::string&) {});
    settings.SaveSettingLong("OrvelleCP", "VVLEnable", 1);
    settings.SaveSettingString("OrvelleCP", "VVLFSKey", "F8");
    // What is heard is compared with what was spoken, without the tones around it.
    settings.SaveSettingLong("OrvelleCP", "VVLSignalVolume", 0);
    settings.HandlerEnded();
}

void Pilot::SwitchOn() {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("TMPDIR", home.path());
    desktop.setProcessEnvironment(environment);
    StartChild(desktop, script, {"--size", ScreenSize, "sh", "-c", Session});
}

bool Pilot::IsOn() {
    if (!display.isEmpty()) return true;
    const QList<QByteArray> told = desktop.peek(4096).split('\n');
    if (told.size() < 3) return false;
    desktop.readAll();
    display = told[0];
    sessionBus = told[1];
    keyboard = std::make_unique<UserStrokes>(FromQt(display));
    return true;
}

void Pilot::Run(QProcess& program, const char* file, const QStringList& words) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("HOME", home.path());
    environment.insert("XDG_DATA_HOME", home.filePath(".local/share"));
    environment.insert("XDG_CONFIG_HOME", home.filePath(".config"));
    environment.insert("XDG_CACHE_HOME", home.filePath(".cache"));
    environment.insert("XDG_RUNTIME_DIR", RunFolder());
    environment.insert("XDG_SESSION_TYPE", "x11");
    environment.insert("DISPLAY", display);
    environment.insert("DBUS_SESSION_BUS_ADDRESS", sessionBus);
    OwnSound::Name(environment, number);
    program.setProcessEnvironment(environment);
    StartChild(program, ToQt(linux::BesideOwnFile(file)), words);
}

void Pilot::StartSimulator() {
    Run(simulator, "orvelle-sim", {"--no-window", "--data", home.filePath("c01"), "--port", QString::number(port)});
}

bool Pilot::SimulatorServes() {
    if (!watch) {
        const mqtt::OwnSetUp made(FromQt(home.filePath("c01")));
        const auto setting = made.Read().Setting;
        if (const auto own = setting ? made.OfThisComputer(*setting) : std::nullopt)
            watch = std::make_unique<SetUpWatch>(loop, *own);
    }
    return watch && watch->SimulatorServes();
}

void Pilot::Join() { Run(adding, "orvelle-sim", {"--add", "--data", home.filePath("c01")}); }

// The broker may take the code only a moment after it was made, so it is typed again until it is taken.
bool Pilot::HasJoined() {
    if (code.isEmpty()) {
        if (!HasEndedWell(adding)) return false;
        code = QString::fromUtf8(adding.readAll().trimmed());
        joining.setProcessChannelMode(QProcess::MergedChannels);
    } else {
        if (joining.state() != QProcess::NotRunning) return false;
        if (HasEndedWell(joining)) return true;
        joining.readAll();
    }
    Run(joining, "orvelle-setup", {"--join", code, "--host", "localhost:" + QString::number(port)});
    return false;
}

void Pilot::StartPanel() { Run(panel, "orvelle-panel", {}); }

bool Pilot::HasEngine() { return watch->Holders(EngineRole) == std::vector{PanelIdentity}; }

void Pilot::Tune(const std::string& server, const std::string& channel) {
    watch->SetSession({.Handle = 1,
                       .Status = ConnectedToMultiplayer,
                       .Callsign = Callsign(),
                       .Receive = SelectsCom1,
                       .Transmit = SelectsCom1,
                       .Frequency = {channel, ""},
                       .Voice = {{{VatsimVoice, server, channel, "", ""}, {}}}});
}

QImage Pilot::Screen() const { return display.isEmpty() ? QImage() : ScreenOf(FromQt(display)); }

}  // namespace orvelle
