// The panel on this computer, every object built once and joined: the shell on the X display, keys and processes of
// Linux, the set-up inside the process, and the flight deck at its other end. A program makes one, with its application
// made before it, and opens it. An object stands below those that it uses, so that it goes before them.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "adapters/embedded/SetUp.h"
#include "adapters/linux/DesktopAutostart.h"
#include "adapters/linux/DynamicTeamSpeak.h"
#include "adapters/linux/LinuxProcesses.h"
#include "adapters/linux/ProcessProgram.h"
#include "adapters/linux/TerminationSignals.h"
#include "adapters/linux/X11Keyboard.h"
#include "adapters/qt/services/KeyCapture.h"
#include "adapters/qt/services/QtDialogs.h"
#include "adapters/qt/services/QtEventLoop.h"
#include "adapters/qt/services/QtMessageQueue.h"
#include "adapters/qt/services/QtTimers.h"
#include "adapters/qt/services/QtTray.h"
#include "adapters/qt/services/QtWindows.h"
#include "adapters/qt/windows/MainWindow.h"
#include "adapters/qt/windows/PopupMenus.h"
#include "adapters/qt/windows/WarningDialog.h"
#include "adapters/shared/SystemClock.h"
#include "adapters/shared/WindowTable.h"
#include "adapters/urls/StandardUrlFunctions.h"
#include "adapters/x11/Door.h"
#include "apps/OwnStrokes.h"
#include "deck/DeckWindow.h"
#include "panel/FrmOrvelle.h"

namespace orvelle {

// Where this user's settings are, by the desktop's convention.
std::string SettingsFile();

// Ends the program for an error that left a handler: one line on standard error.
[[noreturn]] void EndByError(linux::ProcessProgram& program, const std::exception& error);

class PanelProgram {
public:
    PanelProgram(linux::ProcessProgram& endingProgram, linux::TerminationSignals& terminationSignals,
                 const std::string& settingsFile);

    // Loads and shows the panel, then opens the flight deck beside it.
    void Open();

private:
    linux::ProcessProgram& program;
    linux::TerminationSignals& endings;
    qt::QtEventLoop loop;

public:
    EmbeddedSetUp SetUp;
    linux::X11Keyboard Keyboard;
    linux::LinuxProcesses Processes;
    WindowTable Table;

private:
    linux::DesktopAutostart registry;
    linux::DynamicTeamSpeak teamSpeak;
    qt::KeyCapture keys;
    SystemClock clock;
    qt::QtFileDialog dialog{[this] { return Window.get(); }};
    qt::QtMessageBox messages{[this] { return Window.get(); }};
    qt::QtMessageQueue queue{Table, keys};
    qt::QtTray tray;
    urls::StandardUrlFunctions urls;
    qt::QtWindows windows{Table, keys, [this](const Control& control) { return Window->WidgetOf(control); }};

public:
    FrmOrvelle Panel;

private:
    qt::QtTimers timers;
    qt::PopupMenus menus;

public:
    std::unique_ptr<qt::MainWindow> Window;
    std::unique_ptr<DeckWindow> Deck;

private:
    std::unique_ptr<OwnStrokes> ownStrokes;  // kept out of the deck
    std::vector<std::string> untold;         // of programs, until there is a deck
    qt::WarningDialog warning{Panel.MultiFSWarningDlg};
    Door door{Table, Panel.Stub1};
    std::vector<Ticket> tickets;  // of what holds on to the objects above
};

}  // namespace orvelle
