#include "apps/PanelProgram.h"

#include <QApplication>
#include <QIcon>
#include <QStandardPaths>
#include <QSysInfo>

#include "platform/RuntimeError.h"
#include "platform/linux/OwnFile.h"
#include "platform/qt/StatusImage.h"

namespace orvelle {

namespace {

constexpr int GapBesidePanel = 16;  // logical pixels

// Whose entries the desktop starts with the session.
std::string AutostartFolder() {
    return (QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/autostart").toStdString();
}

// TeamSpeak's own library where this computer has it, else the stand-in.
TeamSpeakRemote& RemoteControl(DynamicTeamSpeak& real, TeamSpeakRemote& standIn) {
    if (real.IsThere()) return real;
    return standIn;
}

}  // namespace

std::string SettingsFile() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return (folder + "/OrvelleCP/settings.sqlite").toStdString();
}

void EndByError(ProcessProgram& program, const std::exception& error) {
    if (const auto* runtimeError = dynamic_cast<const RuntimeError*>(&error)) program.Fail(runtimeError->Number);
    program.Fail(std::string("internal error: ") + error.what());
}

PanelProgram::PanelProgram(ProcessProgram& endingProgram, TerminationSignals& terminationSignals,
                           const std::string& settingsFile)
    : program(endingProgram),
      endings(terminationSignals),
      SetUp(loop, settingsFile, {QSysInfo::machineHostName().toStdString()}),
      Keyboard("", BesideOwnFile("orvelle-key-guard")),
      Processes(""),
      registry(SetUp.Store, AutostartFolder()),
      tray(Table, [](const Picture& picture) { return StatusIcon(picture.Name); }),
      Panel(Platform{
          .Velmarc = SetUp.Velmarc,
          .Settings = SetUp.Store,
          .Registry = registry,
          .Tessaly = SetUp.Tessaly,
          .VVL = SetUp.VVL,
          .VolumeControl = SetUp.VolumeControl,
          .VolumeControlHP = SetUp.VolumeControlHP,
          .TSRemote = RemoteControl(teamSpeak, SetUp.TSRemote),
          .MediaPlayers = SetUp.MediaPlayers,
          .Dialog = dialog,
          .Messages = messages,
          .Keyboard = Keyboard,
          .Queue = queue,
          .Windows = windows,
          .Clock = clock,
          .Processes = Processes,
          .Program = program,
          .Tray = tray,
          .Urls = urls,
      }) {
    // The main window's icon tells the state; the other windows have the one with all lamps on.
    QApplication::setWindowIcon(StatusIcon("VVVVVV"));
    program.AtEnd([this] { Keyboard.ReleaseAll(); });
    Panel.Attach(timers);
    Panel.Attach(menus);
    Window = std::make_unique<MainWindow>(Panel);

    SetUp.Notice = [this](const std::string& sentence) { messages.MsgBox(sentence); };
    Processes.Told = [this](const std::string& sentence) {
        if (Deck)
            Deck->TellOfProgram(sentence);
        else
            untold.push_back(sentence);
    };
    loop.WhenReadable(Processes.Descriptor(), [this] { Processes.Serve(); });
    loop.WhenReadable(endings.Descriptor(), [this] {
        const int signal = endings.Take();
        if (signal == 0) return;
        // The same door that other programs use; it ends the process unless nobody is behind it.
        Table.Deliver(Panel.Stub1, Stub::TerminationMessage, 0, 0);
        program.EndBySignal(signal);
    });
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
