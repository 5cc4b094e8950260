#include "tests/qt/forms/PlausiblePanel.h"

#include <string>

namespace orvelle::qt {

namespace {

constexpr Long BadText = 255;
constexpr const char* KeyPrompt = "<Press a key sequence on FS PC keyboard>";

void Say(Label& label, const char* text, Long color = ButtonTextColour) {
    label.ForeColor = color;
    label.Caption = text;
}

void AddRow(ListView& list, const char* input, const char* keys, const char* manner) {
    const Long row = list.AddRow(input);
    list.SetSubItem(row, 1, keys);
    list.SetSubItem(row, 2, manner);
}

void FillTree(TreeView& tree) {
    struct Node {
        const char* Text;
        const char* Tag;
        int Level;
    };
    TreeNode* parents[3] = {};
    for (const Node& node :
         {Node{"Config", "0", 0}, Node{"Velmarc", "1", 1}, Node{"Kestrine", "8", 1}, Node{"Extra", "11", 2},
          Node{"Options", "9", 1}, Node{"Voice", "0", 0}, Node{"Teamspeak", "3", 1}, Node{"RogerWilco", "2", 1},
          Node{"VATSIM", "5", 1}, Node{"Volumes", "6", 2}, Node{"Key mappings", "12", 2},
          Node{"Key Management", "0", 0}, Node{"Joy to Key", "4", 1}, Node{"Key to Key", "7", 1}})
        parents[node.Level] = &tree.AddNode(node.Level == 0 ? nullptr : parents[node.Level - 1], node.Text, node.Tag);
    tree.Expand(*tree.Find("Config"));
}

void ShowMixers(PanelControls& panel) {
    for (Control* control :
         {static_cast<Control*>(&panel.WaveIn), static_cast<Control*>(&panel.LblWaveIn),
          static_cast<Control*>(&panel.WaveOut), static_cast<Control*>(&panel.LblWaveOut),
          static_cast<Control*>(&panel.LblGWaveOut), static_cast<Control*>(&panel.WaveOutWave),
          static_cast<Control*>(&panel.LblWaveOutWave), static_cast<Control*>(&panel.WaveOutHP),
          static_cast<Control*>(&panel.LblWaveOutHP), static_cast<Control*>(&panel.LblGWaveOutHP),
          static_cast<Control*>(&panel.WaveOutWaveHP), static_cast<Control*>(&panel.LblWaveOutWaveHP)})
        control->Visible = true;
    for (Slider* slider : {&panel.WaveIn, &panel.WaveOut, &panel.WaveOutWave}) slider->Max = 65535;
    panel.WaveIn.Value = 42000;
    panel.WaveOut.Value = 60000;
    panel.WaveOutWave.Value = 31000;
    panel.WaveOutHP.Value = 80;
    panel.WaveOutWaveHP.Value = 55;
    panel.VVLOut.Value = 120;
    panel.VVLOutHP.Value = 100;
    panel.VVLSignal.Value = 100;
}

void FillOverview(PanelControls& panel) {
    Say(panel.StatusVelmarc, "FS with Velmarc is up and running");
    Say(panel.StatusTessaly, "Kestrine is up and running");
    Say(panel.StatusMainUser, "You are connected multiplayer");
    Say(panel.StatusRogerWilco,
        "RogerWilco is enabled. Dont start RogerWilco Manually, let the software handle it for you.");
    Say(panel.StatusTeamSpeak, "Teamspeak is disabled. COM1 looks to be assign on a another computer.", BadText);
    Say(panel.StatusVVL, "VATSIM Voice is enabled. Engine not started, you aren't connected to VATSIM.");
    panel.StatusIcon.Picture = panel.IconList.Image("VVVVRY");
    panel.FreqCOM1.Caption = "122.800";
    panel.SoftwareCOM1.Caption = "RogerWilco";
    panel.CommentCOM1.Caption = "rw.liveatc.net/EDDF_GND";
    panel.FreqCOM2.Caption = "118.105";
    panel.SoftwareCOM2.Caption = "TeamSpeak";
    panel.CommentCOM2.Caption = "voice.example.org/Frankfurt Tower";
    panel.RecvCOM1.Visible = true;
    panel.TransmitCOM1.Visible = true;
    panel.RecvCOM2.Visible = true;
}

void FillVoicePages(PanelControls& panel) {
    panel.RWEnable.Value = 1;
    panel.optRWDriver(0).Value = true;
    panel.RWPath.Text = "C:\\Program Files\\RogerWilco\\roger.exe";
    panel.RWFSJoyDisplay.Text = "Button 4";
    panel.RWFSKeyDisplay.Text = "<No Hotkey>";
    panel.RWPTTKeyDisplay.Text = "F12";
    panel.TSEnable.Value = 1;
    panel.optTSDriver(1).Value = true;
    panel.TSPath.Text = "/opt/teamspeak/TeamSpeak.exe";
    panel.TSFSJoyDisplay.Text = "<No Button>";
    panel.TSFSKeyDisplay.Text = "<Press a key on FS PC>";
    panel.TSKeySet.Caption = "Cancel";
    panel.TSKeyClear.Enabled = false;
    panel.TSPTTKeyDisplay.Text = "<Not Hotkey>";
    panel.VVLEnable.Value = 1;
    for (const char* device : {"Default Mapper", "DirectSound - USB Headset", "Wave - Built-in Audio Analog Stereo"}) {
        panel.VVLMicrophone.AddItem(device);
        panel.VVLHeadset.AddItem(device);
        panel.VVLSpeakers.AddItem(device);
    }
    panel.VVLMicrophone.Select(1);
    panel.VVLHeadset.Select(1);
    panel.VVLSpeakers.Select(2);
    for (Shape* lamp : {&panel.VVLMicrophoneStatus, &panel.VVLHeadsetStatus, &panel.VVLSpeakersStatus})
        lamp->Visible = true;
    panel.VVLMicrophoneStatus.FillColor = LampGreen;
    panel.VVLHeadsetStatus.FillColor = LampGreen;
    panel.VVLStatusBar.SetPanelText(1, "VATSIM Detected");
    panel.VVLStatusBar.SetPanelText(2, "Operational");
    panel.VVLFSKeyDisplay.Text = "Ctrl";
    panel.VVLFSJoyDisplay.Text = "Button 1";
    panel.VVLPrivFSKeyDisplay.Text = "<No Hotkey>";
    panel.VVLPrivFSJoyDisplay.Text = "<No Button>";
    panel.VVLFSKeyFSNotActivated.Value = 1;
    panel.VVLFilter.Value = 1;
    ShowMixers(panel);
}

void FillTables(PanelControls& panel) {
    AddRow(panel.ListJoyToKey, "Saitek X45.Button 4", "Ctrl+F12", "Push");
    AddRow(panel.ListJoyToKey, "Saitek X45.Button 7", "Num 5", "Toggle");
    AddRow(panel.ListJoyToKey, "Rudder Pedals.Button 1", "Right Alt+Space", "Push");
    panel.ListJoyToKey.SelectRow(2);
    panel.J2KJoyDisplay.Text = "Saitek X45.Button 7";
    panel.J2KKeyDisplay.Text = "Num 5";
    panel.J2KToggle.Value = 1;
    panel.K2KFSKeyDisplay.Text = KeyPrompt;
    panel.K2KFSKeySet.Caption = "Cancel";
    panel.K2KFSKeyClear.Enabled = false;
    panel.Panels(7).Enabled = false;
}

void FillLinks(PanelControls& panel) {
    panel.optVelmarc(1).Value = true;
    for (const char* name : {"localhost", "SIMULATOR"}) panel.VelmarcServer.AddItem(name);
    panel.VelmarcServer.Select(1);
    panel.lblVelmarcServerMulti.Visible = true;
    panel.VelmarcStatus.SetPanelText(1, "Connected");
    panel.VelmarcStatus.SetPanelText(2, "IP: 192.168.1.20  Computer: SIMULATOR  Desktop: Default");
    panel.optTessaly(0).Value = true;
    panel.TessalyServer.Enabled = false;
    panel.lblTessalyServer.Enabled = false;
    panel.TessalyStatus.SetPanelText(1, "Connected");
    panel.VoiceTuningSound.Value = 1;
    panel.AutoStartFS.Value = 1;
    panel.AutoStartDunmerleFS.Value = 1;
}

}  // namespace

void FillPlausibly(PanelControls& panel) {
    FillTree(panel.twCategory);
    FillOverview(panel);
    FillLinks(panel);
    FillVoicePages(panel);
    FillTables(panel);
}

void FillWithLongestTexts(PanelControls& panel) {
    FillPlausibly(panel);
    Say(panel.StatusVelmarc, "FSwith Velmarc isnt connected. Start FS or check configuration.", BadText);
    Say(panel.StatusTessaly, "Kestrine isnt connected. Start Tessaly or check configuration", BadText);
    Say(panel.StatusMainUser, "You are not connected to Kestrine multiplayer", BadText);
    Say(panel.StatusRogerWilco,
        "RogerWilco is enabled on COM1 but not on COM2. COM2 looks to be assign on a another computer. Dont start "
        "Roger Wilco Manually, let the software handle it for you.",
        BadText);
    Say(panel.StatusTeamSpeak,
        "Teamspeak is enabled on COM1 but not on COM2. COM2 looks to be assign on a another computer. Dont start "
        "Roger Wilco Manually, let the software handle it for you.",
        BadText);
    Say(panel.StatusVVL, "VATSIM Voice is disabled. VATSIM Voice looks to be assign on a another computer.", BadText);
    for (TextBox* display : {&panel.RWFSJoyDisplay, &panel.RWFSKeyDisplay, &panel.RWPTTKeyDisplay, &panel.J2KJoyDisplay,
                             &panel.K2KKeyDisplay, &panel.VVLPrivFSJoyDisplay})
        display->Text = KeyPrompt;
    panel.lblTessalyServerMulti.Visible = true;
    panel.VelmarcStatus.SetPanelText(1, "Not Connected");
    panel.VelmarcStatus.SetPanelText(
        2, "IP: 192.168.100.200  Computer: DESKTOP-SIMULATOR1  Desktop: A desktop that has a name of some length");
    panel.VVLStatusBar.SetPanelText(1, "VATSIM Not Dectected");
    panel.VVLStatusBar.SetPanelText(2, "Engine stopped");
}

}  // namespace orvelle::qt
