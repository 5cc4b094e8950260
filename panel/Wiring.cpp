// Who handles what: every event of the system, in one place.
#include "panel/FrmOrvelle.h"

namespace orvelle {

template <typename Receiver>
auto FrmOrvelle::Handler(Receiver receiver) {
    return [this, receiver](auto&&... arguments) {
        const HandlerDepth::Scope scope(handlers);
        receiver(std::forward<decltype(arguments)>(arguments)...);
    };
}

auto FrmOrvelle::Handler(void (FrmOrvelle::*method)()) {
    return Handler([this, method] { (this->*method)(); });
}

void FrmOrvelle::WireWindow() {
    Load = Handler(&FrmOrvelle::Form_Load);
    Resize = Handler(&FrmOrvelle::SavePosition);
    QueryUnload = Handler([this](Long& cancel, Long mode) { Form_QueryUnload(cancel, mode); });
    Unloading = Handler(&FrmOrvelle::Form_Unload);
    Terminate = Handler(&FrmOrvelle::Form_Terminate);
    ST.MouseDown = Handler([this](Integer& button, Long& id) { ST_MouseDown(button, id); });
    mnuTrayShow.Click = Handler(&FrmOrvelle::mnuTrayShow_Click);
    mnuTrayVisible.Click = Handler(&FrmOrvelle::mnuTrayVisible_Click);
    // An unload is no handler of its own: it raises the form's events above, each of which is one, and the last of them
    // ends the process, so that a scope around them would never close.
    mnuTrayQuit.Click = [this] { Unload(); };
    Shutdown.Click = [this] { Unload(); };
    Stub1.Terminate = [this] { Unload(); };
    twCategory.NodeClick = Handler([this](TreeNode& node) { twCategory_NodeClick(node); });

    Timer1.Tick = Handler(&FrmOrvelle::Timer1_Timer);
    TimerDeviceStatus.Tick = Handler(&FrmOrvelle::TimerDeviceStatus_Timer);
    VVLPriorityTraffic.Tick = Handler(&FrmOrvelle::VVLPriorityTraffic_Timer);
}

void FrmOrvelle::WirePages() {
    for (Long index = 0; index < optVelmarc.Count(); ++index)
        optVelmarc(index).Click = Handler(&FrmOrvelle::optVelmarc_Click);
    VelmarcServer.Click = Handler(&FrmOrvelle::VelmarcServer_Click);
    VelmarcServer.KeyPress = Handler([this](Long characterCode) { VelmarcServer_KeyPress(characterCode); });

    for (Long index = 0; index < optTessaly.Count(); ++index)
        optTessaly(index).Click = Handler(&FrmOrvelle::optTessaly_Click);
    TessalyServer.Click = Handler(&FrmOrvelle::TessalyServer_Click);
    TessalyServer.KeyPress = Handler([this](Long characterCode) { TessalyServer_KeyPress(characterCode); });
    KestrineEmbedded.Click = Handler(&FrmOrvelle::KestrineEmbedded_Click);
    FS2004DPCompatible.Click = Handler(&FrmOrvelle::FS2004DPCompatible_Click);

    RWEnable.Click = Handler(&FrmOrvelle::RWEnable_Click);
    for (Long index = 0; index < optRWDriver.Count(); ++index)
        optRWDriver(index).Click = Handler([this, index] { optRWDriver_Click(index); });
    RWPath.Change = Handler([this] { SaveSettingString("RWPath", RWPath.Text); });
    RWRescan.Click = Handler(&FrmOrvelle::RWRescan_Click);
    RWSearch.Click = Handler([this] { SearchProgram("Search for RogerWilco", RWPath); });

    TSEnable.Click = Handler(&FrmOrvelle::TSEnable_Click);
    for (Long index = 0; index < optTSDriver.Count(); ++index)
        optTSDriver(index).Click = Handler([this, index] { optTSDriver_Click(index); });
    TSPath.Change = Handler([this] { SaveSettingString("TSPath", TSPath.Text); });
    TSRescan.Click = Handler(&FrmOrvelle::TSRescan_Click);
    TSSearch.Click = Handler([this] { SearchProgram("Search for Teamspeak", TSPath); });

    VoiceTuningSound.Click = Handler([this] { SaveSettingLong("VoiceTuningSound", VoiceTuningSound.Value); });
    Topmost.Click = Handler(&FrmOrvelle::Topmost_Click);
    Autostart.Click = Handler(&FrmOrvelle::Autostart_Click);
    AutoStartFS.Click = Handler([this] { SaveSettingLong("AutoStartWithFS", AutoStartFS.Value); });
    AutoStartDunmerleFS.Click =
        Handler([this] { SaveSettingLong("AutoStartDunmerleWithFS", AutoStartDunmerleFS.Value); });
}

void FrmOrvelle::WireInputPages() {
    for (const auto* slots : {&keySlots, &joySlots})
        for (const RemoteSlot& slot : *slots) {
            slot.Set.Click = Handler([this, &slot] { RemoteSet_Click(slot); });
            slot.Clear.Click = Handler([this, &slot] { RemoteClear_Click(slot); });
        }
    for (const LocalSlot& slot : localSlots) {
        slot.Set.Click = Handler([this, &slot] { LocalSet_Click(slot); });
        slot.Clear.Click = Handler([this, &slot] { LocalClear_Click(slot); });
    }
    J2KApply.Click = Handler([this] { TableApply_Click(joyToKey); });
    J2KDelete.Click = Handler([this] { TableDelete_Click(joyToKey); });
    ListJoyToKey.ItemClick = Handler([this](Long row) { TableItem_Click(joyToKey, row); });
    K2KApply.Click = Handler([this] { TableApply_Click(keyToKey); });
    K2KDelete.Click = Handler([this] { TableDelete_Click(keyToKey); });
    ListKeyToKey.ItemClick = Handler([this](Long row) { TableItem_Click(keyToKey, row); });
    VVLPrivEnable.Click = Handler(&FrmOrvelle::VVLPrivEnable_Click);
    VVLFSKeyFSNotActivated.Click =
        Handler([this] { SaveSettingLong("VVLFSKeyFSNotActivated", VVLFSKeyFSNotActivated.Value); });
}

void FrmOrvelle::WireAudioPages() {
    VVLEnable.Click = Handler(&FrmOrvelle::VVLEnable_Click);
    VVLMicrophone.Click = Handler(&FrmOrvelle::VVLMicrophone_Click);
    VVLHeadset.Click = Handler(&FrmOrvelle::VVLHeadset_Click);
    VVLSpeakers.Click = Handler(&FrmOrvelle::VVLSpeakers_Click);
    VVLCalibrate.Click = Handler(&FrmOrvelle::VVLCalibrate_Click);
    VVLFilter.Click = Handler(&FrmOrvelle::VVLFilter_Click);
    WaveIn.Scroll = Handler([this] { VolumeControl.MicVolume(WaveIn.Value); });
    WaveOut.Scroll = Handler([this] { VolumeControl.MasterVolume(WaveOut.Value); });
    WaveOutWave.Scroll = Handler([this] { VolumeControl.WaveVolume(WaveOutWave.Value); });
    WaveOutHP.Scroll = Handler([this] { VolumeControlHP.MasterVolume(WaveOutHP.Value); });
    WaveOutWaveHP.Scroll = Handler([this] { VolumeControlHP.WaveVolume(WaveOutWaveHP.Value); });
    VVLOut.Scroll = Handler(&FrmOrvelle::VVLOut_Scroll);
    VVLOutHP.Scroll = Handler(&FrmOrvelle::VVLOutHP_Scroll);
    VVLSignal.Change = Handler(&FrmOrvelle::VVLSignal_Change);
    VoiceATISEnable.Click = Handler(&FrmOrvelle::VoiceATISEnable_Click);
    VoiceATISVolume.Change = Handler(&FrmOrvelle::VoiceATISVolume_Change);

    VolumeControl.InputOpened = Handler(&FrmOrvelle::VolumeControl_InputOpened);
    VolumeControl.InputClosed = Handler(&FrmOrvelle::VolumeControl_InputClosed);
    VolumeControl.MicVolumeChanged = Handler([this] { WaveIn.Value = VolumeControl.MicVolume(); });
    VolumeControl.OutputOpened = Handler(&FrmOrvelle::VolumeControl_OutputOpened);
    VolumeControl.OutputClosed = Handler(&FrmOrvelle::VolumeControl_OutputClosed);
    VolumeControl.MasterVolumeChanged = Handler([this] { WaveOut.Value = VolumeControl.MasterVolume(); });
    VolumeControl.WaveVolumeChanged = Handler([this] { WaveOutWave.Value = VolumeControl.WaveVolume(); });
    VolumeControlHP.OutputOpened = Handler(&FrmOrvelle::VolumeControlHP_OutputOpened);
    VolumeControlHP.OutputClosed = Handler(&FrmOrvelle::VolumeControlHP_OutputClosed);
    VolumeControlHP.MasterVolumeChanged = Handler([this] { WaveOutHP.Value = VolumeControlHP.MasterVolume(); });
    VolumeControlHP.WaveVolumeChanged = Handler([this] { WaveOutWaveHP.Value = VolumeControlHP.WaveVolume(); });
}

void FrmOrvelle::WireSimulator() {
    using Text = const std::string&;
    Velmarc.Connected = Handler(&FrmOrvelle::Velmarc_Connected);
    Velmarc.Disconnected = Handler(&FrmOrvelle::Velmarc_Disconnected);
    Velmarc.ServerFound = Handler([this](Text name) { Velmarc_ServerFound(name); });
    Velmarc.FSKeyDown = Handler([this](bool repeat, bool fsActive, Text key, Text keySequence) {
        Velmarc_FSKeyDown(repeat, fsActive, key, keySequence);
    });
    Velmarc.FSKeyUp = Handler([this](Long, Long, Text key, Text) { Velmarc_FSKeyUp(key); });
    Velmarc.FSJoyDown = Handler([this](Long, Long, Text button, Text) { Velmarc_FSJoyDown(button); });
    Velmarc.FSJoyUp = Handler([this](Long, Long, Text button, Text) { Velmarc_FSJoyUp(button); });
}

void FrmOrvelle::WireFramework() {
    Tessaly.FrameworkLink::Connected = Handler(&FrmOrvelle::Tessaly_Connected);
    Tessaly.FrameworkLink::Disconnected = Handler(&FrmOrvelle::Tessaly_Disconnected);
    Tessaly.FrameworkLink::ServerFound = Handler([this](const std::string& name) { Tessaly_ServerFound(name); });
    Tessaly.SessionOpened = Handler(&FrmOrvelle::Tessaly_SessionOpened);
    Tessaly.SessionClosed = Handler(&FrmOrvelle::Tessaly_SessionClosed);
    Tessaly.SessionStatusChanged = Handler(&FrmOrvelle::Tessaly_SessionStatusChanged);
    Tessaly.RadioChanged = Handler(&FrmOrvelle::RadioChanged);
    Tessaly.RadioVoiceChanged = Handler([this](Long radio) { Tessaly_RadioVoiceChanged(radio); });
    Tessaly.CallsignChanged = Handler(&FrmOrvelle::Tessaly_CallsignChanged);
    Tessaly.InterfaceAppeared = Handler([this](Long id) { Tessaly_InterfaceAppeared(id); });
    Tessaly.InterfaceChanged = Handler([this](Long id) { Tessaly_InterfaceChanged(id); });
    Tessaly.InterfaceRemoved = Handler([this](Long id) { Tessaly_InterfaceRemoved(id); });
    Tessaly.InterfaceParamChanged = Handler([this](Long id, Long index) { Tessaly_InterfaceParamChanged(id, index); });
}

void FrmOrvelle::WireEngine() {
    VVL.VVL_Started = Handler(&FrmOrvelle::VVL_Started);
    VVL.VVL_Stopped = Handler(&FrmOrvelle::VVL_Stopped);
    VVL.VVL_AudioStarted = Handler(&FrmOrvelle::VVL_AudioStarted);
    VVL.VVL_AudioStopped = Handler(&FrmOrvelle::VVL_AudioStopped);
    VVL.VVL_RoomJoinSucceed = Handler([this](Long room) { VVL_RoomJoinSucceed(room); });
    VVL.VVL_RoomJoinFailed = Handler([this](Long room) { VVL_RoomJoinFailed(room); });
    VVL.VVL_RoomKicked = Handler([this](Long room) { VVL_RoomKicked(room); });
    VVL.VVL_RoomLeft = Handler([this](Long room) { VVL_RoomLeft(room); });
    VVL.VVL_RoomAudioStarted = Handler([this](Long room) { VVL_RoomAudioStarted(room); });
    VVL.VVL_RoomAudioStopped = Handler([this](Long room) { VVL_RoomAudioStopped(room); });
    VVL.VVL_RoomStatusChanged = Handler([this](Long room) { VVL_RoomStatusChanged(room); });
}

}  // namespace orvelle
