// The one way in which the program ends: the form is unloaded, and with it the process. Voice programs that the panel
// started go on.
#include "panel/FrmOrvelle.h"

namespace orvelle {

void FrmOrvelle::Form_Unload() {
    VolumeControl.Close();
    VolumeControlHP.Close();
    Tessaly.LinkStop();
    VVL.Stop();
    SavePosition();
    ST.InTray(false);
    Stub1.EStop();
}

void FrmOrvelle::Form_Terminate() {
    Settings.HandlerEnded();
    platform.Program.End();
}

}  // namespace orvelle
