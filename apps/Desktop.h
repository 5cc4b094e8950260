// What the desktop is to the panel: windows and their messages, the tray, dialogs, timers, the clock. Its objects serve
// the panel that is being made; Show gives that panel its windows.
#pragma once

#include <memory>

#include "adapters/qt/services/KeyCapture.h"
#include "adapters/qt/services/QtDialogs.h"
#include "adapters/qt/services/QtMessageQueue.h"
#include "adapters/qt/services/QtTimers.h"
#include "adapters/qt/services/QtTray.h"
#include "adapters/qt/services/QtVoiceDialogs.h"
#include "adapters/qt/services/QtWindows.h"
#include "adapters/qt/windows/MainWindow.h"
#include "adapters/qt/windows/PopupMenus.h"
#include "adapters/qt/windows/WarningDialog.h"
#include "adapters/shared/SystemClock.h"
#include "adapters/shared/WindowTable.h"
#include "platform/Ticket.h"

namespace orvelle {

class FrmOrvelle;

class Desktop {
public:
    Desktop();

    // Makes the panel's windows and lets its timers run. The panel outlives them.
    void Show(FrmOrvelle& panel);
    qt::MainWindow& Window() { return *shown->Main; }

    WindowTable Table;
    SystemClock Clock;
    qt::QtFileDialog Dialog{[this] { return MainWindowOrNone(); }};
    qt::QtMessageBox Messages{[this] { return MainWindowOrNone(); }};
    qt::QtVoiceDialogs Voice{[this] { return MainWindowOrNone(); }};
    qt::KeyCapture Keys;
    qt::QtMessageQueue Queue{Table, Keys};
    qt::QtTray Tray;
    qt::QtWindows Windows{Table, Keys, [this](const Control& control) { return Window().WidgetOf(control); }};

private:
    struct Shown {
        explicit Shown(FrmOrvelle& panel);

        qt::QtTimers Timers;
        qt::PopupMenus Menus;
        Ticket TimersAttached, MenusAttached;
        std::unique_ptr<qt::MainWindow> Main;
        qt::WarningDialog Warning;
    };

    QWidget* MainWindowOrNone() { return shown ? shown->Main.get() : nullptr; }

    std::unique_ptr<Shown> shown;
};

}  // namespace orvelle
