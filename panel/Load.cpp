// The load event: the only entry. Assigning a saved value to a control runs that control's handler, which gives the
// links their servers and writes settings back; so the order of the steps is behaviour.
#include "panel/FrmOrvelle.h"
#include "panel/Texts.h"
#include "platform/LocalKeyTexts.h"
#include "platform/RegistryPaths.h"
#include "platform/RuntimeError.h"

namespace orvelle {

void FrmOrvelle::Form_Load() {
    if (Program.PrevInstance()) Program.End();
    Stub1.EStart();

    VVLRunning = false;
    MultiplayerConnected = false;
    SessionHandle = 0;
    ActiveVoiceSoftware = NoVoice;
    for (const VoiceRole& role : VoiceRoles()) {
        role.Own = 0;
        role.Foreign = 0;
    }

    CreateMediaPlayers();
    Registry.WriteRegistryString(LocalMachine, "SOFTWARE\\Orvelle", "OrvelleCPPath", AutostartCommand());
    if (!Registry.ReadRegistryString(LocalMachine, RunPath, "OrvelleCP", "").empty()) Autostart.Value = 1;

    LoadVelmarcServer();
    KestrineEmbedded.Value = Tessaly.Embedded() ? 1 : 0;
    LoadTessalyServer();
    AutoStartFS.Value = GetSettingLong("AutoStartWithFS", 1);
    AutoStartDunmerleFS.Value = GetSettingLong("AutoStartDunmerleWithFS", 1);
    Tessaly.LinkPrepare();
    Tessaly.LinkStart();
    Tessaly.LinkStarted();

    VoiceTuningSound.Value = GetSettingLong("VoiceTuningSound", 0);
    Topmost.Value = GetSettingLong("Topmost", 0);
    Left = GetSettingLong("Left", 0);
    Top = GetSettingLong("Top", 0);
    FitToOverview();
    RefreshStatus();
    ST.InTray(true);
    FS2004DPCompatible.Value = Registry.ReadRegistryLong(LocalMachine, FrameworkPath, "FS2004Compatible", 0);

    LoadTeamSpeak();
    LoadRogerWilco();
    VolumeControl.Open();
    VolumeControlHP.Open();
    LoadSlot(joySlots[VatsimSlot]);
    LoadSlot(joySlots[PrivateSlot]);
    LoadSlot(keySlots[VatsimSlot]);
    LoadSlot(keySlots[PrivateSlot]);

    FillDeviceLists();
    VVLOut.Value = GetSettingLong("VVLOutVolume", 100);
    VVLOutHP.Value = GetSettingLong("VVLOutHPVolume", 100);
    VVLSignal.Value = GetSettingLong("VVLSignalVolume", 100);
    VVLEnable.Value = GetSettingLong("VVLEnable", 0);
    VVLPrivEnable.Value = GetSettingLong("VVLPrivEnable", 0);
    VVLFilter.Value = GetSettingLong("VVLFilter", 0);
    VVLFSKeyFSNotActivated.Value = GetSettingLong("VVLFSKeyFSNotActivated", 0);
    VoiceATISEnable.Value = GetSettingLong("VoiceATISEnable", 0);
    VoiceATISVolume.Value = GetSettingLong("VoiceATISVolume", 0);
    SetPlayerVolumes();

    LoadMappingTable(joyToKey);
    LoadMappingTable(keyToKey);
    UpdateVoiceInterfaces();
    BuildCategoryTree();
    Velmarc_Disconnected();
}

// The error branch stands behind the last step with nothing between them, so it runs after a success, too: the players
// are always gone afterwards, and Voice ATIS stays out of action.
void FrmOrvelle::CreateMediaPlayers() {
    try {
        WMPCOM1 = MediaPlayers.New(0);
        WMPCOM2 = MediaPlayers.New(1);
        Timer1.Enabled = true;
    } catch (const RuntimeError&) {
        // Falls into the same branch as a success.
    }
    WMPCOM1.reset();
    WMPCOM2.reset();
    Timer1.Enabled = false;
}

void FrmOrvelle::LoadVelmarcServer() {
    if (UpperCase(Velmarc.GetServer()) == AutomaticServer) {
        VelmarcServer.Text = "";
        optVelmarc(0).Value = true;
        optVelmarc(1).Value = false;
    } else {
        VelmarcServer.Text = Velmarc.GetServer();
        optVelmarc(0).Value = false;
        optVelmarc(1).Value = true;
    }
}

void FrmOrvelle::LoadTessalyServer() {
    const std::string server = UpperCase(Tessaly.GetServer());
    Long option = 1;
    if (server == AutomaticServer)
        option = 0;
    else if (server == OwnServer)
        option = 2;
    else
        TessalyServer.Text = Tessaly.GetServer();
    TessalyServer.Enabled = option == 1;
    lblTessalyServer.Enabled = option == 1;
    lblTessalyServerMulti.Enabled = option == 0;
    optTessaly(option).Value = true;
}

// Makes the window exactly so large that its client area ends at the right and bottom edges of the overview.
void FrmOrvelle::FitToOverview() {
    const Rectangle window = Windows.GetWindowRect(*this);
    const Rectangle client = Windows.GetClientRect(*this);
    const Long borderWidth = client.Left - client.Right - window.Left + window.Right;
    const Long borderHeight = client.Top - client.Bottom - window.Top + window.Bottom;
    const Frame& overview = Panels(OverviewPanel);
    Width = borderWidth * TwipsPerPixel + overview.Left() + overview.Width();
    Height = borderHeight * TwipsPerPixel + overview.Top() + overview.Height();
}

void FrmOrvelle::LoadTeamSpeak() {
    TSEnable.Value = GetSettingLong("TSEnable", 0);
    TSPath.Text = GetSettingString("TSPath", "");
    if (TSPath.Text == "") TSRescan_Click();
    optTSDriver(GetSettingLong("TSDriven", 0)).Value = true;
    LoadSlot(joySlots[TeamSpeakSlot]);
    LoadSlot(keySlots[TeamSpeakSlot]);
    // The talk key is never read back: it is unset after each start.
    TSPTTKeyDisplay.Text = TSPTTKey.empty() ? LocalKeyNotSet : KeyDisplayName(TSPTTKey);
}

void FrmOrvelle::LoadRogerWilco() {
    RWEnable.Value = GetSettingLong("RWEnable", 0);
    RWPath.Text = GetSettingString("RWPath", "");
    if (RWPath.Text == "") RWRescan_Click();
    optRWDriver(GetSettingLong("RWDriven", 0)).Value = true;
    LoadSlot(joySlots[RogerWilcoSlot]);
    LoadSlot(keySlots[RogerWilcoSlot]);
    RWPTTKey = GetSettingString("RWPTTKey", "");
    RWPTTKeyDisplay.Text = RWPTTKey.empty() ? LocalKeyNotSet : KeyDisplayName(RWPTTKey);
}

void FrmOrvelle::LoadSlot(const RemoteSlot& slot) {
    slot.Field = GetSettingString(slot.Setting, "");
    slot.ShowField();
}

}  // namespace orvelle
