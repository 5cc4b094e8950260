// Where the window opens, what its close box does, how it comes back from the notification area, and the small
// handlers of the pages "Options" and "Extra".
#include <cmath>
#include <limits>

#include "panel/FrmOrvelle.h"
#include "platform/RegistryPaths.h"
#include "platform/RuntimeError.h"

namespace orvelle {

namespace {

Long WholeTwips(double twips) {
    const double whole = std::nearbyint(twips);
    using Range = std::numeric_limits<Long>;
    if (whole < Range::min() || whole > Range::max()) throw RuntimeError(RuntimeError::Overflow);
    return static_cast<Long>(whole);
}

}  // namespace

std::string FrmOrvelle::AutostartCommand() { return '"' + Processes.GetModuleFileNameA() + "\" -MIN"; }

void FrmOrvelle::Autostart_Click() {
    if (Autostart.Value == 0)
        Registry.DeleteRegistryValue(LocalMachine, RunPath, "OrvelleCP");
    else
        Registry.WriteRegistryString(LocalMachine, RunPath, "OrvelleCP", AutostartCommand());
}

void FrmOrvelle::Topmost_Click() {
    SaveSettingLong("Topmost", Topmost.Value);
    Windows.SetWindowPos(*this, Topmost.Value == 1 ? InsertTopmost : InsertNotTopmost, 0, 0, 0, 0, NoMoveNoSize);
}

void FrmOrvelle::FS2004DPCompatible_Click() {
    Registry.WriteRegistryLong(LocalMachine, FrameworkPath, "FS2004Compatible", FS2004DPCompatible.Value);
}

// A minimised or maximised window saves nothing.
void FrmOrvelle::SavePosition() {
    if (WindowState != Normal) return;
    SaveSettingLong("Top", WholeTwips(Top));
    SaveSettingLong("Left", WholeTwips(Left));
}

// The close box only hides the window; any other unload goes on.
void FrmOrvelle::Form_QueryUnload(Long& cancel, Long mode) {
    cancel = mode == ControlMenu ? 1 : 0;
    if (mode == ControlMenu) Hide();
}

void FrmOrvelle::mnuTrayShow_Click() {
    Show();
    WindowState = Normal;
}

void FrmOrvelle::mnuTrayVisible_Click() {
    Show();
    WindowState = Normal;
    Left = 10;
    Top = 10;
}

void FrmOrvelle::ST_MouseDown(Integer& button, Long&) {
    if (button == 2) {
        PopupMenu(mnuTray);
    } else if (Visible) {
        Hide();
    } else {
        Show();
        WindowState = Normal;
    }
}

}  // namespace orvelle
