#include "apps/three/SimulatorsComputer.h"

#include <netinet/in.h>
#include <sys/socket.h>

#include "adapters/linux/OwnFile.h"
#include "adapters/looks/Text.h"
#include "adapters/mqtt/OwnSetUp.h"
#include "adapters/shared/FileDescriptor.h"
#include "apps/three/ChildPrograms.h"
#include "platform/RadioSelection.h"
#include "platform/SessionSetting.h"
#include "platform/Tessaly.h"

namespace orvelle {

namespace {

// A port that nobody listens on now, so that another set-up on this machine is left alone.
int FreePort() {
    const FileDescriptor socket(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0));
    sockaddr_in address{};
    address.sin_family = AF_INET;
    socklen_t size = sizeof address;
    if (bind(socket.Number(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
        getsockname(socket.Number(), reinterpret_cast<sockaddr*>(&address), &size) != 0)
        return mqtt::UsualPort;
    return ntohs(address.sin_port);
}

QString Program() { return ToQt(linux::BesideOwnFile("orvelle-sim")); }

}  // namespace

SimulatorsComputer::SimulatorsComputer(EventLoop& eventLoop, const QDir& ownFolder)
    : loop(eventLoop), folder(ownFolder.path()), port(FreePort()) {
    ownFolder.mkpath(".");
}

SimulatorsComputer::~SimulatorsComputer() {
    watch.reset();
    if (adding) EndChild(*adding);
    EndChild(program);
}

void SimulatorsComputer::Start() {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    // Its keys are those of its display.
    environment.insert("XDG_SESSION_TYPE", "x11");
    program.setProcessEnvironment(environment);
    StartChild(program, Program(), {"--no-window", "--data", folder, "--port", QString::number(port)});
}

bool SimulatorsComputer::Serves() {
    if (!watch) {
        const mqtt::OwnSetUp made(folder.toStdString());
        const auto setting = made.Read().Setting;
        if (const auto own = setting ? made.OfThisComputer(*setting) : std::nullopt)
            watch = std::make_unique<SetUpWatch>(loop, *own);
    }
    return watch && watch->SimulatorServes();
}

void SimulatorsComputer::AskForCode() {
    adding = std::make_unique<QProcess>();
    StartChild(*adding, Program(), {"--add", "--data", folder});
}

std::string SimulatorsComputer::Code() {
    if (adding->state() != QProcess::NotRunning || adding->exitCode() != 0) return "";
    return adding->peek(80).trimmed().toStdString();
}

void SimulatorsComputer::OpenSession() {
    watch->SetSession({.Handle = 1,
                       .Status = ConnectedToMultiplayer,
                       .Callsign = "ABC123",
                       .Receive = SelectsCom1,
                       .Transmit = SelectsCom1,
                       .Frequency = {"118.300", ""},
                       .Voice = {{{RogerWilco, "voice.example", "tower", "", ""}, {}}}});
}

}  // namespace orvelle
