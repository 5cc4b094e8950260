// The options of how the panel starts and stands: with the session, and before all other windows.
#include "panel/FrmOrvelle.h"
#include "platform/RegistryPaths.h"

namespace orvelle {

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

}  // namespace orvelle
