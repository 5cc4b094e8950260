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

// The other window that may be open goes with the panel.
void FrmOrvelle::Form_Terminate() {
    MultiFSWarningDlg.Unload();
    Settings.HandlerEnded();
    Program.End();
}

}  // namespace orvelle
