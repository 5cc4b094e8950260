#include "apps/three/VirtualComputer.h"

#include "adapters/linux/OwnFile.h"
#include "adapters/looks/Text.h"
#include "apps/three/ChildPrograms.h"
#include "apps/three/ScreenOf.h"

namespace orvelle {

namespace {

// The panel's window and the tray above it.
constexpr const char* ScreenHeight = "x484";
// What the display's script runs: tells where the display is, and stays.
constexpr const char* Session = "echo \"$DISPLAY\"; echo \"$DBUS_SESSION_BUS_ADDRESS\"; exec sleep infinity";

QDir Made(const QDir& folder) {
    folder.mkpath("run");
    folder.mkpath(".local/share/OrvelleCP");
    QFile::setPermissions(folder.filePath("run"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return folder;
}

}  // namespace

VirtualComputer::VirtualComputer(const QDir& folder, const QString& displayScript, int screenWidth)
    : Home(Made(folder)), script(displayScript), width(screenWidth) {}

VirtualComputer::~VirtualComputer() {
    EndChild(joining);
    SwitchOff();
}

std::string VirtualComputer::SettingsFile() const {
    return FromQt(Home.filePath(".local/share/OrvelleCP/settings.sqlite"));
}

void VirtualComputer::SwitchOn() {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    // For what the script itself keeps.
    environment.insert("TMPDIR", Home.path());
    desktop.setProcessEnvironment(environment);
    StartChild(desktop, script, {"--size", QString::number(width) + ScreenHeight, "sh", "-c", Session});
}

bool VirtualComputer::IsOn() {
    if (!display.empty()) return true;
    const QList<QByteArray> told = desktop.peek(4096).split('\n');
    if (told.size() < 3) return false;
    desktop.readAll();
    display = told[0].toStdString();
    sessionBus = told[1];
    return true;
}

void VirtualComputer::SwitchOff() {
    display.clear();
    EndChild(desktop);
}

QImage VirtualComputer::Screen() const { return display.empty() ? QImage() : ScreenOf(display); }

void VirtualComputer::Run(QProcess& program, const char* file, const QStringList& words) {
    QProcessEnvironment environment = Environment;
    environment.insert("HOME", Home.path());
    environment.insert("XDG_DATA_HOME", Home.filePath(".local/share"));
    environment.insert("XDG_CONFIG_HOME", Home.filePath(".config"));
    environment.insert("XDG_CACHE_HOME", Home.filePath(".cache"));
    environment.insert("XDG_RUNTIME_DIR", RunFolder());
    environment.insert("XDG_SESSION_TYPE", "x11");
    environment.insert("DISPLAY", ToQt(display));
    environment.insert("DBUS_SESSION_BUS_ADDRESS", sessionBus);
    program.setProcessEnvironment(environment);
    StartChild(program, ToQt(linux::BesideOwnFile(file)), words, Group());
}

void VirtualComputer::Join(const std::string& code, int brokerPort) {
    joiningWords = QStringList{"--join", ToQt(code), "--host", "localhost:" + QString::number(brokerPort)};
    joining.setProcessChannelMode(QProcess::MergedChannels);
    Run(joining, "orvelle-setup", joiningWords);
}

bool VirtualComputer::HasJoined() {
    if (joining.state() != QProcess::NotRunning) return false;
    saidOfJoining = joining.readAll().trimmed().toStdString();
    if (joining.exitStatus() == QProcess::NormalExit && joining.exitCode() == 0) return true;
    Run(joining, "orvelle-setup", joiningWords);
    return false;
}

}  // namespace orvelle
