// The panel on this computer: the shell on the X display, keys and processes of Linux, and the set-up inside the
// process.
#include <QIcon>
#include <QStandardPaths>
#include <QSysInfo>
#include <iostream>
#include <memory>

#include "panel/FrmOrvelle.h"
#include "platform/RuntimeError.h"
#include "platform/controls/WindowTable.h"
#include "platform/embedded/SetUp.h"
#include "platform/linux/LinuxProcesses.h"
#include "platform/linux/OwnFile.h"
#include "platform/linux/ProcessProgram.h"
#include "platform/linux/TerminationSignals.h"
#include "platform/linux/X11Keyboard.h"
#include "platform/qt/Application.h"
#include "platform/qt/Display.h"
#include "platform/qt/Door.h"
#include "platform/qt/MainWindow.h"
#include "platform/qt/PopupMenus.h"
#include "platform/qt/QtClock.h"
#include "platform/qt/QtDialogs.h"
#include "platform/qt/QtEventLoop.h"
#include "platform/qt/QtMessageQueue.h"
#include "platform/qt/QtTimers.h"
#include "platform/qt/QtTray.h"
#include "platform/qt/QtUrlFunctions.h"
#include "platform/qt/QtWindows.h"
#include "platform/qt/StatusImage.h"
#include "platform/qt/Theme.h"
#include "platform/qt/WarningDialog.h"

namespace {

using namespace orvelle;

[[noreturn]] void Fail(ProcessProgram& program, const std::exception& error) {
    if (const auto* runtimeError = dynamic_cast<const RuntimeError*>(&error)) program.Fail(runtimeError->Number);
    program.Fail(std::string("internal error: ") + error.what());
}

std::string SettingsFile() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return (folder + "/OrvelleCP/settings.sqlite").toStdString();
}

}  // namespace

int main() {
    TerminationSignals endings;
    if (const std::string missing = MissingDisplay(); !missing.empty()) {
        std::cerr << "OrvelleCP: " << missing << "\n";
        return EXIT_FAILURE;
    }
    ProcessProgram program(InstanceLock::OfThisSession());
    // The settings belong to the first instance.
    if (program.PrevInstance()) program.End();

    Application application("orvelle-panel", [&](const std::exception& error) { Fail(program, error); });
    Application::setDesktopFileName("net.orvelle.OrvelleCP");
    ApplyTheme(SystemScheme());

    QtEventLoop loop;
    EmbeddedSetUp setUp(loop, SettingsFile(), {QSysInfo::machineHostName().toStdString()});

    X11Keyboard keyboard("", BesideOwnFile("orvelle-key-guard"));
    program.AtEnd([&] { keyboard.ReleaseAll(); });
    LinuxProcesses processes("");
    loop.WhenReadable(processes.Descriptor(), [&] { processes.Serve(); });

    std::unique_ptr<MainWindow> window;
    const auto panelWindow = [&] { return window.get(); };
    WindowTable table;
    KeyCapture keys;
    QtClock clock;
    QtFileDialog dialog(panelWindow);
    QtMessageBox messages(panelWindow);
    QtMessageQueue queue(table, keys);
    QtTray tray(table, [](const Picture& picture) { return StatusIcon(picture.Name); });
    QtUrlFunctions urls;
    QtWindows windows(table, keys, [&](const Control& control) { return window->WidgetOf(control); });

    FrmOrvelle panel({setUp.Velmarc, setUp.Store, setUp.Store, setUp.Tessaly, setUp.VVL, setUp.VolumeControl,
                      setUp.VolumeControlHP, setUp.TSRemote, setUp.MediaPlayers, dialog, messages, keyboard, queue,
                      windows, clock, processes, program, tray, urls});
    QtTimers timers;
    panel.Attach(timers);
    PopupMenus menus;
    panel.Attach(menus);
    window = std::make_unique<MainWindow>(panel);
    WarningDialog warning(panel.MultiFSWarningDlg);
    Door door(table, panel.Stub1);

    setUp.Notice = [&](const std::string& sentence) { messages.MsgBox(sentence); };
    loop.WhenReadable(endings.Descriptor(), [&] {
        const int signal = endings.Take();
        if (signal == 0) return;
        // The same door that other programs use; ends the process unless nobody is behind it.
        table.Deliver(panel.Stub1, Stub::TerminationMessage, 0, 0);
        program.EndBySignal(signal);
    });
    return application.Run([&] { panel.Show(); });
}
