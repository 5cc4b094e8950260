#include "apps/three/SimulatorsComputer.h"

#include "adapters/linux/OwnFile.h"
#include "adapters/looks/Text.h"
#include "adapters/mqtt/OwnSetUp.h"
#include "apps/FreePort.h"
#include "apps/three/ChildPrograms.h"
#include "platform/RadioSelection.h"
#include "platform/SessionSetting.h"
#include "platform/Tessaly.h"

namespace orvelle {

namespace {

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
    QProcessEnvironment environment = Environment;
    // Its keys are those of its display.
    environment.insert("XDG_SESSION_TYPE", "x11");
    program.setProcessEnvironment(environment);
    StartChild(program, Program(), {"--no-window", "--data", folder, "--port", QString::number(port)});
}

bool SimulatorsComputer::Serves() {
    if (!watch) watch = SetUpWatch::OfMade(loop, folder.toStdString());
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
