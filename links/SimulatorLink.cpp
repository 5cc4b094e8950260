// The link to the simulator's computer: how its server is chosen, and what its coming and going changes.
#include "panel/FrmOrvelle.h"
#include "panel/Texts.h"

namespace orvelle {

void FrmOrvelle::optVelmarc_Click() {
    const bool automatic = optVelmarc(0).Value;
    VelmarcServer.Enabled = !automatic;
    lblVelmarcServer.Enabled = !automatic;
    lblVelmarcServerMulti.Enabled = automatic;
    Velmarc.SetServer(automatic ? AutomaticServer : VelmarcServer.Text());
}

void FrmOrvelle::VelmarcServer_Click() {
    if (!optVelmarc(1).Value || VelmarcServer.ListIndex() < 0) return;
    const std::string& text = VelmarcServer.Text;
    if (text != Velmarc.GetServer() && text == VelmarcServer.SelectedEntry()) Velmarc.SetServer(text);
}

void FrmOrvelle::VelmarcServer_KeyPress(Long characterCode) {
    if (characterCode != EnterKey || !optVelmarc(1).Value) return;
    if (VelmarcServer.Text() != Velmarc.GetServer()) Velmarc.SetServer(VelmarcServer.Text);
}

void FrmOrvelle::Velmarc_Connected() {
    Velmarc.ClientReady();
    VelmarcStatus.SetPanelText(1, "Connected");
    const std::string address = Velmarc.IPAddress();
    const std::string computer = Velmarc.ComputerName();
    const std::string desktop = Velmarc.DesktopName();
    VelmarcStatus.SetPanelText(2, "IP: " + address + "  Computer: " + computer + "  Desktop: " + desktop);
    Panels(JoyToKeyPanel).Enabled = true;
    Panels(KeyToKeyPanel).Enabled = true;
    TessalyServer.Clear();
    RefreshStatus();
}

void FrmOrvelle::Velmarc_Disconnected() {
    RefreshStatus();
    VelmarcStatus.SetPanelText(1, "Not Connected");
    VelmarcStatus.SetPanelText(2, "");
    Panels(JoyToKeyPanel).Enabled = false;
    Panels(KeyToKeyPanel).Enabled = false;
    TessalyServer.Clear();
}

// The loopback address is listed as "localhost" alone, this computer's other addresses never.
void FrmOrvelle::Velmarc_ServerFound(const std::string& name) {
    std::string server = Trimmed(name);
    if (server == LoopbackAddress) server = LocalHost;
    if (VelmarcServer.IndexOf(server) < 0 && (server == LocalHost || !Velmarc.IsLocalAddress(server))) {
        VelmarcServer.AddItem(server);
        if (VelmarcServer.Text == "") VelmarcServer.Select(0);
    }
    CheckSeveralVelmarcServers();
}

}  // namespace orvelle
