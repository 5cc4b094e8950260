// The link to the network client framework. Unlike the simulator's, its box of servers does not accept this computer.
#include "panel/FrmOrvelle.h"
#include "panel/Texts.h"

namespace orvelle {

void FrmOrvelle::optTessaly_Click() {
    const auto enable = [this](bool server, bool several) {
        TessalyServer.Enabled = server;
        lblTessalyServer.Enabled = server;
        lblTessalyServerMulti.Enabled = several;
    };
    if (optTessaly(0).Value) {
        enable(false, true);
        Tessaly.SetServer(AutomaticServer);
    } else if (optTessaly(1).Value) {
        enable(true, false);
        Tessaly.SetServer(TessalyServer.Text);
    } else if (optTessaly(2).Value) {
        enable(false, false);
        Tessaly.SetServer(OwnServer);
    }
}

void FrmOrvelle::TessalyServer_Click() {
    if (!optTessaly(1).Value || TessalyServer.ListIndex() < 0) return;
    const std::string& text = TessalyServer.Text;
    if (text != Tessaly.GetServer() && text == TessalyServer.SelectedEntry()) Tessaly.SetServer(text);
}

void FrmOrvelle::TessalyServer_KeyPress(Long characterCode) {
    if (characterCode != EnterKey) return;
    const std::string text = TessalyServer.Text;
    const std::string name = LowerCase(Trimmed(text));
    const bool isLocal = Velmarc.IsLocalAddress(text);
    if (name == LocalHost || name == LoopbackAddress || isLocal) TessalyServer.Text = "";
    if (optTessaly(1).Value && TessalyServer.Text() != Tessaly.GetServer()) Tessaly.SetServer(TessalyServer.Text);
}

void FrmOrvelle::Tessaly_Connected() {
    TessalyStatus.SetPanelText(1, "Connected");
    RefreshStatus();
}

void FrmOrvelle::Tessaly_Disconnected() {
    TessalyStatus.SetPanelText(1, "Disconnected");
    Tessaly_SessionClosed();
}

void FrmOrvelle::Tessaly_ServerFound(const std::string& name) {
    const std::string server = Trimmed(name);
    if (server == LoopbackAddress || server == LocalHost) return;
    if (TessalyServer.IndexOf(server) < 0 && !Velmarc.IsLocalAddress(server)) {
        TessalyServer.AddItem(server);
        if (TessalyServer.Text == "") TessalyServer.Select(0);
    }
    CheckSeveralTessalyServers();
}

}  // namespace orvelle
