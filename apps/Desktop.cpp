#include "apps/Desktop.h"

#include <QApplication>
#include <QIcon>

#include "adapters/qt/widgets/StatusImage.h"
#include "panel/FrmOrvelle.h"

namespace orvelle {

Desktop::Desktop() : Tray(Table, [](const Picture& picture) { return qt::StatusIcon(picture.Name); }) {
    // The main window's icon tells the state; the other windows have the one with all lamps on.
    QApplication::setWindowIcon(qt::StatusIcon("VVVVVV"));
}

void Desktop::Show(FrmOrvelle& panel) { shown = std::make_unique<Shown>(panel); }

Desktop::Shown::Shown(FrmOrvelle& panel)
    : TimersAttached(panel.Attach(Timers)),
      MenusAttached(panel.Attach(Menus)),
      Main(std::make_unique<qt::MainWindow>(panel)),
      Warning(panel.MultiFSWarningDlg) {}

}  // namespace orvelle
