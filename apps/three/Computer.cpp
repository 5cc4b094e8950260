#include "apps/three/Computer.h"

#include <algorithm>
#include <csignal>

#include "adapters/linux/OwnFile.h"
#include "adapters/looks/Text.h"
#include "adapters/mqtt/Topics.h"
#include "adapters/store/SqliteStore.h"
#include "apps/three/ChildPrograms.h"
#include "apps/three/ScreenOf.h"

namespace orvelle {

namespace {

// The panel's window with its frame, and the tray above it.
constexpr const char* ScreenSize = "984x484";
// What the display's script runs: tells where the display is, and stays.
constexpr const char* Session = "echo \"$DISPLAY\"; echo \"$DBUS_SESSION_BUS_ADDRESS\"; exec sleep infinity";

QDir Made(const QDir& folder) {
    folder.mkpath("run");
    folder.mkpath(".local/share/OrvelleCP");
    QFile::setPermissions(folder.filePath("run"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return folder;
}

QString BesideThis(const char* program) { return ToQt(linux::BesideOwnFile(program)); }

}  // namespace

Computer::Computer(EventLoop& loop, int identity, const QDir& folder, const QString& displayScript)
    : Identity(identity), home(Made(folder)), script(displayScript), voiceProgram(home) {
    SetUpPanel(loop);
}

Computer::~Computer() {
    if (standsStill) BreakDown();
    EndChild(joining);
    EndChild(panel);
    SwitchOff();
}

std::string Computer::Name() const { return mqtt::WriteIdentity(Identity); }

void Computer::SetUpPanel(EventLoop& loop) {
    store::SqliteStore settings(loop, FromQt(home.filePath(".local/share/OrvelleCP/settings.sqlite")),
                                [](const std::string&) {});
    voiceProgram.Enter(settings);
    settings.SaveSettingLong("OrvelleCP", "RWEnable", 1);
    settings.SaveSettingLong("OrvelleCP", "RWDriven", 1);  // COM1 alone
    settings.SaveSettingString("OrvelleCP", "RWFSKey", "F8");
    settings.HandlerEnded();
}

void Computer::SwitchOn() {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    // For what the script itself keeps.
    environment.insert("TMPDIR", home.path());
    desktop.setProcessEnvironment(environment);
    StartChild(desktop, script, {"--size", ScreenSize, "sh", "-c", Session});
}

bool Computer::IsOn() {
    if (!display.isEmpty()) return true;
    const QList<QByteArray> told = desktop.peek(4096).split('\n');
    if (told.size() < 3) return false;
    desktop.readAll();
    display = told[0];
    sessionBus = told[1];
    keys = std::make_unique<KeyWatch>(FromQt(display));
    windows = std::make_unique<TopLevelWindows>(FromQt(display));
    return true;
}

// With this computer's home, in the group of processes of its desktop.
void Computer::Run(QProcess& program, const QString& file, const QStringList& words) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("HOME", home.path());
    environment.insert("XDG_DATA_HOME", home.filePath(".local/share"));
    environment.insert("XDG_CONFIG_HOME", home.filePath(".config"));
    environment.insert("XDG_CACHE_HOME", home.filePath(".cache"));
    environment.insert("XDG_RUNTIME_DIR", home.filePath("run"));
    environment.insert("XDG_SESSION_TYPE", "x11");
    environment.insert("DISPLAY", display);
    environment.insert("DBUS_SESSION_BUS_ADDRESS", sessionBus);
    program.setProcessEnvironment(environment);
    StartChild(program, file, words, static_cast<pid_t>(desktop.processId()));
}

void Computer::Join(const std::string& code, int brokerPort) {
    joiningWords = QStringList{"--join", ToQt(code), "--host", "localhost:" + QString::number(brokerPort)};
    joining.setProcessChannelMode(QProcess::MergedChannels);
    Run(joining, BesideThis("orvelle-setup"), joiningWords);
}

bool Computer::HasJoined() {
    if (joining.state() != QProcess::NotRunning) return false;
    saidOfJoining = joining.readAll().trimmed().toStdString();
    if (joining.exitStatus() == QProcess::NormalExit && joining.exitCode() == 0) return true;
    Run(joining, BesideThis("orvelle-setup"), joiningWords);
    return false;
}

void Computer::StartPanel() { Run(panel, BesideThis("orvelle-panel"), {}); }

bool Computer::ShowsPanel() {
    return windows && std::ranges::any_of(windows->List(), [this](xcb_window_t window) {
               return windows->ProcessOf(window) == panel.processId() &&
                      windows->StateOf(window) == TopLevelWindows::State::Normal;
           });
}

void Computer::StandStill() {
    kill(-static_cast<pid_t>(desktop.processId()), SIGSTOP);
    standsStill = true;
}

// What is left, the servers of its display, may tidy up.
void Computer::BreakDown() {
    panel.kill();
    panel.waitForFinished();
    kill(-static_cast<pid_t>(desktop.processId()), SIGCONT);
    standsStill = false;
    SwitchOff();
}

void Computer::SwitchOff() {
    keys.reset();
    windows.reset();
    display.clear();
    EndChild(desktop);
}

QImage Computer::Screen() const { return display.isEmpty() ? QImage() : ScreenOf(FromQt(display)); }

std::vector<int> Computer::KeysDown() const { return keys ? keys->KeysDown() : std::vector<int>{}; }

}  // namespace orvelle
