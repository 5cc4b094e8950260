#include "apps/PanelProgram.h"

#include <QApplication>
#include <QIcon>
#include <QStandardPaths>
#include <QSysInfo>

#include "adapters/linux/OwnFile.h"
#include "adapters/qt/widgets/StatusImage.h"
#include "platform/RuntimeError.h"

namespace orvelle {

namespace {

constexpr int GapBesidePanel = 16;  // logical pixels

// Whose entries the desktop starts with the session.
std::string AutostartFolder() {
    return (QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/autostart").toStdString();
}

// TeamSpeak's own library where this computer has it, else the stand-in.
TeamSpeakRemote& RemoteControl(linux::DynamicTeamSpeak& real, TeamSpeakRemote& standIn) {
    if (real.IsThere()) return real;
    return standIn;
}

}  // namespace

std::string SettingsFile() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return (folder + "/OrvelleCP/settings.sqlite").toStdString();
}

void EndByError(linux::ProcessProgram& program, const std::exception& error) {
    if (const auto* runtimeError = dynamic_cast<const RuntimeError*>(&error)) program.Fail(runtimeError->Number);
    program.Fail(std::string("internal error: ") + error.what());
}

PanelProgram::PanelProgram(linux::ProcessProgram& endingProgram, linux::TerminationSignals& terminationSignals,
                           const std::string& settingsFile)
    : program(endingProgram),
      endings(terminationSignals),
      SetUp(loop, settingsFile, {QSysInfo::machineHostName().toStdString()}),
      Keyboard("", linux::BesideOwnFile("orvelle-key-guard")),
      Processes(""),
      registry(SetUp.Store, AutostartFolder()),
      tray(Table, [](const Picture& picture) { return qt::StatusIcon(picture.Name); }),
      Panel({SetUp.Velmarc, SetUp.Store, registry, SetUp.Tessaly, SetUp.VVL, SetUp.VolumeControl, SetUp.VolumeControlHP,
             RemoteControl(teamSpeak, SetUp.TSRemote), SetUp.MediaPlayers, dialog, messages, Keyboard, queue, windows,
             clock, Processes, program, tray, urls}) {
    // The main window's icon tells the state; the other windows have the one with all lamps on.
    QApplication::setWindowIcon(qt::StatusIcon("VVVVVV"));
    tickets.push_back(program.AtEnd([this] { Keyboard.ReleaseAll(); }));
    tickets.push_back(Panel.Attach(timers));
    tickets.push_back(Panel.Attach(menus));
    Window = std::make_unique<qt::MainWindow>(Panel);

    SetUp.Notice = [this](const std::string& sentence) { messages.MsgBox(sentence); };
    Processes.Told = [this](const std::string& sentence) {
        if (Deck)
            Deck->TellOfProgram(sentence);
        else
            untold.push_back(sentence);
    };
    tickets.push_back(loop.WhenReadable(Processes.Descriptor(), [this] { Processes.Serve(); }));
    tickets.push_back(loop.WhenReadable(endings.Descriptor(), [this] {
        const int signal = endings.Take();
        if (signal == 0) return;
        // The same door that other programs use; it ends the process unless nobody is behind it.
        Table.Deliver(Panel.Stub1, Stub::TerminationMessage, 0, 0);
        program.EndBySignal(signal);
    }));
}

void PanelProgram::Open() {
    Panel.Show();
    // The deck waits for the panel to be seen.
    loop.Post([this] {
        Deck = std::make_unique<DeckWindow>(SetUp);
        ownStrokes = std::make_unique<OwnStrokes>(Keyboard, *Deck);
        for (const std::string& sentence : untold) Deck->TellOfProgram(sentence);
        untold.clear();
        Deck->OpenAt(Window->frameGeometry().topRight() + QPoint(GapBesidePanel, 0));
    });
}

}  // namespace orvelle
