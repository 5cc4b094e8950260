// The panel on this computer, every object built once and joined: the shell on the X display, keys and processes of
// Linux, the set-up inside the process, and the flight deck at its other end. A program makes one, with its application
// made before it, and opens it. An object stands below those that it uses, so that it goes before them.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "apps/OwnStrokes.h"
#include "deck/DeckWindow.h"
#include "panel/FrmOrvelle.h"
#include "platform/controls/WindowTable.h"
#include "platform/embedded/SetUp.h"
#include "platform/linux/DesktopAutostart.h"
#include "platform/linux/DynamicTeamSpeak.h"
#include "platform/linux/LinuxProcesses.h"
#include "platform/linux/ProcessProgram.h"
#include "platform/linux/TerminationSignals.h"
#include "platform/linux/X11Keyboard.h"
#include "platform/qt/Door.h"
#include "platform/qt/KeyCapture.h"
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
#include "platform/qt/WarningDialog.h"

namespace orvelle {

// Where this user's settings are, by the desktop's convention.
std::string SettingsFile();

// Ends the program for an error that left a handler: one line on standard error.
[[noreturn]] void EndByError(ProcessProgram& program, const std::exception& error);

class PanelProgram {
public:
    PanelProgram(ProcessProgram& endingProgram, TerminationSignals& terminationSignals,
                 const std::string& settingsFile);

    // Loads and shows the panel, then opens the flight deck beside it.
    void Open();

private:
    ProcessProgram& program;
    TerminationSignals& endings;
    QtEventLoop loop;

public:
    EmbeddedSetUp SetUp;
    X11Keyboard Keyboard;
    LinuxProcesses Processes;
    WindowTable Table;

private:
    DesktopAutostart registry;
    DynamicTeamSpeak teamSpeak;
    KeyCapture keys;
    QtClock clock;
    QtFileDialog dialog{[this] { return Window.get(); }};
    QtMessageBox messages{[this] { return Window.get(); }};
    QtMessageQueue queue{Table, keys};
    QtTray tray;
    QtUrlFunctions urls;
    QtWindows windows{Table, keys, [this](const Control& control) { return Window->WidgetOf(control); }};

public:
    FrmOrvelle Panel;

private:
    QtTimers timers;
    PopupMenus menus;

public:
    std::unique_ptr<MainWindow> Window;
    std::unique_ptr<DeckWindow> Deck;

private:
    std::unique_ptr<OwnStrokes> ownStrokes;  // kept out of the deck
    std::vector<std::string> untold;         // of programs, until there is a deck
    WarningDialog warning{Panel.MultiFSWarningDlg};
    Door door{Table, Panel.Stub1};
};

}  // namespace orvelle
