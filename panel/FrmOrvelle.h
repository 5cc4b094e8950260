// The one controller: a single window object that owns every control and every variable of the panel. All logic is a
// method of this object, defined over the folders panel, links, voice, input and audio, and runs on one thread, driven
// by the events that Wiring.cpp joins to their handlers. The program starts by showing it.
#pragma once

#include <array>
#include <memory>
#include <string>

#include "panel/Controls.h"
#include "panel/HandlerScope.h"
#include "panel/MultiFSWarningDlg.h"
#include "panel/Stub.h"
#include "panel/SysTray.h"
#include "platform/MediaPlayer.h"
#include "platform/Platform.h"
#include "voice/VoiceRecord.h"

namespace orvelle {

struct RemoteSlot;
struct LocalSlot;
struct MappingTable;

class FrmOrvelle : public PanelControls {
public:
    explicit FrmOrvelle(const Platform& outside);

private:
    const Platform platform;
    VelmarcControl& Velmarc;
    SettingsStore& Settings;
    orvelle::Registry& Registry;
    TessalyControl& Tessaly;
    VoiceEngineControl& VVL;
    MixerControl& VolumeControl;
    MixerControl& VolumeControlHP;
    TeamSpeakRemote& TSRemote;
    FileDialog& Dialog;
    HandlerDepth handlers;
    mSysTray trayModule;

public:
    cSysTray ST;
    Stub Stub1;
    orvelle::MultiFSWarningDlg MultiFSWarningDlg;

    // Two media players, none after start-up
    std::unique_ptr<MediaPlayer> WMPCOM1;
    std::unique_ptr<MediaPlayer> WMPCOM2;

    // Navigation
    Long CurrentPanel = 0;  // shown over Panels(0); 0 is Panels(0) itself

    // Session and radio set
    bool MultiplayerConnected = false;
    Long SessionHandle = 0;
    std::string Callsign;
    std::string ReceiveSelect;   // "1", "2", "B"; else none
    std::string TransmitSelect;  // the same
    std::array<VoiceRecord, 2> RadioVoice;

    // Rooms of the voice engine: 0 COM1, 1 COM2, 2 private
    std::array<bool, 3> TransmitOff{};
    std::array<bool, 3> ReceiveOff{};
    std::array<bool, 3> RoomPriority{};
    bool PriorityActive = false;
    Long PriorityStamp = 0;  // GetTickCount at the last mark of priority traffic
    bool VVLRunning = false;
    bool VVLTransmitting = false;
    bool VVLPrivTransmitting = false;

    // Voice routing
    Long ActiveVoiceSoftware = NoVoice;
    std::string RWServer;
    std::string RWChannel;
    std::string TSServer;
    std::string TSChannel;
    std::array<std::string, 2> ATISSource;

    // Ids of the voice roles, 0 for none
    Long RWCom1 = 0;
    Long RWCom2 = 0;
    Long TSCom1 = 0;
    Long TSCom2 = 0;
    Long OwnVVL = 0;
    Long ForeignRWCom1 = 0;
    Long ForeignRWCom2 = 0;
    Long ForeignTSCom1 = 0;
    Long ForeignTSCom2 = 0;
    Long ForeignVVL = 0;

    // Key mappings: FS texts are the simulator's, the others scan-code sequences of this computer ("29+46")
    std::string TSFSJoy;
    std::string TSFSKey;
    std::string TSPTTKey;
    std::string TSPTTKeyState;  // "DOWN" while this program holds the sequence down
    std::string RWFSJoy;
    std::string RWFSKey;
    std::string RWPTTKey;
    std::string RWPTTKeyState;
    std::string VVLFSJoy;
    std::string VVLFSKey;
    std::string VVLPrivFSJoy;
    std::string VVLPrivFSKey;
    std::string J2KJoy;
    std::string J2KKey;
    std::string K2KFSKey;
    std::string K2KKey;

    // Entry points that other components may call at any time
    void RefreshStatus();
    void ApplyVoiceRouting();
    void UpdateVoiceInterfaces();
    void InterfaceCountChanged() {}

private:
    struct VoiceRole;
    enum class TeamSpeakForm { Server, Url };
    enum class RadioTest { Leading, Other };

    // panel/Wiring.cpp
    void WirePanel();
    void WirePages();
    void WireInput();
    void WireLinks();
    void WireEngine();
    template <typename Receiver, typename... Arguments>
    auto Handler(Receiver receiver);

    // panel/Load.cpp
    void Form_Load();
    void CreateMediaPlayers();
    void LoadVelmarcServer();
    void LoadTessalyServer();
    void FitToOverview();
    void LoadTeamSpeak();
    void LoadRogerWilco();
    void LoadVatsimKeys();

    // panel/Settings.cpp
    Long GetSettingLong(const std::string& key, Long defaultValue);
    std::string GetSettingString(const std::string& key, const std::string& defaultValue);
    void SaveSettingLong(const std::string& key, Long value);
    void SaveSettingString(const std::string& key, const std::string& value);

    // panel/Status.cpp
    std::string LinkLetters();
    char RogerWilcoLetter();
    char TeamSpeakLetter();
    char VatsimLetter();
    void RefreshVatsimBar();
    void ShowStatusPicture(const std::string& key);

    // panel/CategoryTree.cpp
    void BuildCategoryTree();
    void AddCategoryNode(Long panel, TreeNode*& parent, TreeNode*& last, const std::string& text, Integer level);
    void twCategory_NodeClick(TreeNode& node);

    // panel/Window.cpp
    std::string AutostartCommand();
    void SavePosition();
    void Autostart_Click();
    void Topmost_Click();
    void Form_QueryUnload(Long& cancel, Long mode);
    void mnuTrayShow_Click();
    void mnuTrayVisible_Click();
    void ST_MouseDown(Integer& button, Long& id);

    // panel/Shutdown.cpp
    void Form_Unload();
    void Form_Terminate();

    // links/SimulatorLink.cpp
    void optVelmarc_Click();
    void VelmarcServer_Click();
    void VelmarcServer_KeyPress(Long characterCode);
    void Velmarc_Connected();
    void Velmarc_Disconnected();
    void Velmarc_ServerFound(const std::string& name);

    // links/FrameworkLink.cpp
    void optTessaly_Click();
    void TessalyServer_Click();
    void TessalyServer_KeyPress(Long characterCode);
    void Tessaly_Connected();
    void Tessaly_Disconnected();
    void Tessaly_ServerFound(const std::string& name);

    // links/SeveralServers.cpp
    void CheckSeveralVelmarcServers();
    void CheckSeveralTessalyServers();

    // links/RadioState.cpp
    void Tessaly_SessionOpened();
    void Tessaly_SessionClosed();
    void Tessaly_SessionStatusChanged();
    void Tessaly_CallsignChanged();
    void Tessaly_RadioVoiceChanged(Long radio);
    void RadioChanged();
    void ReadVoiceRecord(Long radio);
    bool ReadRadioSelections();
    void ShowRadios();

    // voice/Routing.cpp
    VoiceRecord ChooseCandidate();
    bool RadioWins(Long radio, RadioTest test);
    void StopVoiceSoftware(const VoiceRecord& candidate);
    void StartVoiceSoftware(const VoiceRecord& candidate);
    void KeepVoiceSoftware(const VoiceRecord& candidate);
    void PlayTuningSound(const char* sound);

    // voice/RogerWilco.cpp
    void RWLeave();
    void RWJoin(const std::string& server, const std::string& channel);
    void RWEnable_Click();
    void optRWDriver_Click(Long index);
    void RWPath_Change();
    void RWRescan_Click();
    void RWSearch_Click();

    // voice/TeamSpeak.cpp
    void TSDisconnect();
    void TSConnectFresh(TeamSpeakForm form, const VoiceRecord& candidate);
    void TSRetune(TeamSpeakForm form, const VoiceRecord& candidate);
    bool TSSwitchChannel(const VoiceRecord& candidate);
    void TSConnect(TeamSpeakForm form, const VoiceRecord& candidate);
    std::string TSConnectionUrl(TeamSpeakForm form, const VoiceRecord& candidate) const;
    void TSEnable_Click();
    void optTSDriver_Click(Long index);
    void TSPath_Change();
    void TSRescan_Click();
    void TSSearch_Click();

    // voice/ProgramSearch.cpp
    void SearchProgram(const std::string& title, TextBox& path);

    // voice/InterfaceRegistry.cpp
    std::array<VoiceRole, 5> VoiceRoles();
    void Tessaly_InterfaceAppeared(Long id);
    void Tessaly_InterfaceChanged(Long id);
    void Tessaly_InterfaceRemoved(Long id);

    // voice/VatsimEngine.cpp
    void VVL_Started();
    void VVL_Stopped();
    void VVL_AudioStarted();
    void VVL_AudioStopped();
    void VVLEnable_Click();
    void SetEngineDevices();

    // voice/Rooms.cpp
    bool RadioIsVatsimReady(Long room) const;
    std::string RoomAddress(Long room) const;
    void JoinRoomAtStart(Long room);
    void JoinRadioRoom(Long room);
    void LeaveRadioRoom(Long room);
    void SyncVoiceRooms();
    void VVL_RoomJoinSucceed(Long room);
    void VVL_RoomJoinFailed(Long room);
    void VVL_RoomKicked(Long room);
    void VVL_RoomLeft(Long room);
    void VVL_RoomStatusChanged(Long room);

    // voice/RoomParameters.cpp
    void Tessaly_InterfaceParamChanged(Long id, Long index);
    void RoomStateChanged(Long index);
    void SetRoomOutputs(Long room);
    bool Heard(Long room) const;

    // voice/PriorityTraffic.cpp
    void EvaluatePriority(Long room, Long roomIndex);
    bool AnyPriorityRoomOnAir();
    void MarkPriorityTraffic();
    void VVLPriorityTraffic_Timer();
    void VVL_RoomAudioStarted(Long room);
    void VVL_RoomAudioStopped(Long room);

    // voice/VoiceAtis.cpp
    void PlayVoiceAtis();
    void PlayRecording(MediaPlayer& player, Long radio, const std::string& receive);
    void StopRecording(MediaPlayer& player, Long radio);
    void Timer1_Timer();
    void VoiceATISEnable_Click();
    void VoiceATISVolume_Change();

    // input/Dispatch.cpp
    void Velmarc_FSJoyDown(const std::string& button);
    void Velmarc_FSJoyUp(const std::string& button);
    void Velmarc_FSKeyDown(bool repeat, bool fsActive, const std::string& key, const std::string& keySequence);
    void Velmarc_FSKeyUp(const std::string& key);
    bool EngineTakesPushToTalk() const;
    bool RadioKeyAllowed(Long com1, Long com2) const;
    void PressVoiceKeys(bool teamSpeakMatches, bool rogerWilcoMatches);
    void ReleaseVoiceKeys(bool teamSpeakMatches, bool rogerWilcoMatches);
    void StopPushToTalk(bool radioMatches, bool privateMatches);
    void StartPushToTalk(bool radioMatches, bool privateMatches);

    // input/PushToTalk.cpp
    void VVLStart(bool& result);
    void VVLStop();
    void VVLStartTransmitting();
    void VVLPrivStartTransmitting();
    void VVLStopTransmitting();
    void VVLPrivStopTransmitting();
    void TransmitToRoom(Long room);
    void UpdateInterfaceTransmits();
    void ReapplyPushToTalk();

    // input/KeyStrokes.cpp
    void SendKeyStrokes(bool release, const std::string& keys);
    std::string KeyDisplayName(const std::string& keys);
    void ApplyKeyMapping(bool released, ListView& list, Long row);

    // input/RemoteCapture.cpp
    void RemoteSet_Click(const RemoteSlot& slot);
    void RemoteClear_Click(const RemoteSlot& slot);
    bool CompleteKeyCapture(const std::string& key, const std::string& keySequence);
    bool CompleteJoyCapture(const std::string& button);
    bool EndKeyCapture();

    // input/LocalCapture.cpp
    void LocalSet_Click(const LocalSlot& slot);
    void LocalClear_Click(const LocalSlot& slot);

    // input/MappingTables.cpp
    void LoadMappingTable(const MappingTable& table);
    void TableApply_Click(const MappingTable& table);
    void TableDelete_Click(const MappingTable& table);
    void TableItem_Click(const MappingTable& table, Long row);
    void RewriteTable(const MappingTable& table, const std::string& textKey);
    void FireJoyRows(bool released, const std::string& button);
    void FireKeyRows(bool repeat, bool fsActive, const std::string& key, const std::string& keySequence);
    void ReleaseKeyRows(const std::string& key);

    // audio/DeviceLists.cpp
    void FillDeviceLists();
    void VVLMicrophone_Click();
    void VVLHeadset_Click();
    void VVLSpeakers_Click();
    void RestartVolumeControl();
    void RestartVolumeControlHP();

    // audio/Volumes.cpp
    void VolumeControl_InputOpened();
    void VolumeControl_InputClosed();
    void VolumeControl_OutputOpened();
    void VolumeControl_OutputClosed();
    void VolumeControlHP_OutputOpened();
    void VolumeControlHP_OutputClosed();
    void VVLOut_Scroll();
    void VVLOutHP_Scroll();
    void VVLSignal_Change();

    // audio/DeviceStatus.cpp
    void TimerDeviceStatus_Timer();
    void VVLCalibrate_Click();
    void VVLFilter_Click();
    void VVLPrivEnable_Click();
};

}  // namespace orvelle
