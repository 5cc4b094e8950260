// Autodetect is safe only while one computer offers the service: once in a run, for each link, the user is told.
#include "panel/FrmOrvelle.h"

namespace orvelle {

namespace {

// The hint's visibility is the memory of having warned.
bool ShouldWarn(const ComboBox& servers, const Label& hint, const OptionButton& automatic) {
    return servers.ListCount() >= 2 && !hint.Visible && automatic.Value;
}

}  // namespace

void FrmOrvelle::CheckSeveralVelmarcServers() {
    if (!ShouldWarn(VelmarcServer, lblVelmarcServerMulti, optVelmarc(0))) return;
    MultiFSWarningDlg.Show();
    lblVelmarcServerMulti.Visible = true;
}

void FrmOrvelle::CheckSeveralTessalyServers() {
    if (ShouldWarn(TessalyServer, lblTessalyServerMulti, optTessaly(0))) lblTessalyServerMulti.Visible = true;
}

}  // namespace orvelle
