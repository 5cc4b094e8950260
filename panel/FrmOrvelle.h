// The one controller: a single window object that owns every control and every variable of the panel, and names what is
// outside by the members of Platform. All logic is a method of this object, defined over the folders panel, links,
// voice, input and audio, and runs on one thread, driven by the events that Wiring.cpp joins to their handlers. The
// program starts by showing it.
#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string>

#include "panel/CaptureSlots.h"
#include "panel/Controls.h"
#include "panel/HandlerScope.h"
#include "panel/MappingTable.h"
#include "panel/MultiFSWarningDlg.h"
#include "panel/Stub.h"
#include "panel/SysTray.h"
#include "panel/Variables.h"
#include "panel/VoiceRole.h"
#include "platform/Platform.h"

namespace orvelle {

class FrmOrvelle : public PanelControls, private Platform, private PanelVariables {
public:
    explicit FrmOrvelle(const Platform& outside);
    ~FrmOrvelle() override;

private:
    HandlerDepth handlers;
    mSysTray trayModule;

public:
    cSysTray ST;
    Stub Stub1;
    orvelle::MultiFSWarningDlg MultiFSWarningDlg;

    // Two media players; start-up leaves none, a scenario may put some
    std::unique_ptr<MediaPlayer> WMPCOM1;
    std::unique_ptr<MediaPlayer> WMPCOM2;

    const PanelVariables& Variables() const { return *this; }

    // Entry points that other components may call at any time
    void RefreshStatus();
    void ApplyVoiceRouting();
    void UpdateVoiceInterfaces();
    void InterfaceCountChanged() {}

private:
    struct DriverStatus;
    struct OutputSliders;
    enum class RadioTest { Leading, Other };

    // Keys and buttons of the simulator's computer, in the order in which a press looks for the slot that waits
    enum SlotOwner { TeamSpeakSlot, VatsimSlot, PrivateSlot, RogerWilcoSlot, TableSlot };
    const std::array<RemoteSlot, 5> keySlots;
    const std::array<RemoteSlot, 5> joySlots;
    const std::array<LocalSlot, 4> localSlots;
    const MappingTable joyToKey;
    const MappingTable keyToKey;

    // panel/Wiring.cpp
    void WireWindow();
    void WirePages();
    void WireInputPages();
    void WireAudioPages();
    void WireSimulator();
    void WireFramework();
    void WireEngine();
    template <typename Receiver>
    auto Handler(Receiver receiver);
    auto Handler(void (FrmOrvelle::*method)());

    // panel/Load.cpp
    void Form_Load();
    void CreateMediaPlayers();
    void LoadVelmarcServer();
    void LoadTessalyServer();
    void FitToOverview();
    void LoadTeamSpeak();
    void LoadRogerWilco();
    void LoadSlot(const RemoteSlot& slot);

    // panel/Settings.cpp
    Long GetSettingLong(const std::string& key, Long defaultValue);
    std::string GetSettingString(const std::string& key, const std::string& defaultValue);
    void SaveSettingLong(const std::string& key, Long value);
    void SaveSettingString(const std::string& key, const std::string& value);

    // panel/Status.cpp
    char SimulatorLetter();
    std::string FrameworkLetters();
    char RogerWilcoLetter();
    char TeamSpeakLetter();
    static char DriverLetter(const DriverStatus& driver);
    void RefreshVatsimBar();
    char VatsimLetter();
    void ShowStatusPicture(const std::string& key);

    // panel/CategoryTree.cpp
    void BuildCategoryTree();
    void AddCategoryNode(Long panel, TreeNode*& parent, TreeNode*& last, const std::string& text, Integer level);
    void twCategory_NodeClick(TreeNode& node);

    // panel/Window.cpp
    void SavePosition();
    void Form_QueryUnload(Long& cancel, Long mode);
    void mnuTrayShow_Click();
    void mnuTrayVisible_Click();
    void ST_MouseDown(Integer& button, Long& id);

    // panel/Options.cpp
    std::string AutostartCommand();
    void Autostart_Click();
    void Topmost_Click();

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

    // links/FrameworkSettings.cpp
    void KestrineEmbedded_Click();
    void FS2004DPCompatible_Click();

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
    void ReadRadioSelections();
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
    void RWJoin(const VoiceRecord& candidate);
    void RWEnable_Click();
    void optRWDriver_Click(Long index);
    void RWRescan_Click();

    // voice/TeamSpeak.cpp
    void TSDisconnect();
    void TSConnectFresh(const VoiceRecord& candidate);
    void TSRetune(const VoiceRecord& candidate);
    bool TSSwitchChannel(const VoiceRecord& candidate);
    void TSConnect(const VoiceRecord& candidate);
    std::string TSConnectionUrl(const VoiceRecord& candidate) const;
    void TSEnable_Click();
    void optTSDriver_Click(Long index);
    void TSRescan_Click();

    // voice/ProgramSearch.cpp
    void SearchProgram(const std::string& title, TextBox& path);

    // voice/InterfaceRegistry.cpp
    std::array<VoiceRole, 5> VoiceRoles();
    void Tessaly_InterfaceAppeared(Long id);
    void Tessaly_InterfaceChanged(Long id);
    void Tessaly_InterfaceRemoved(Long id);

    // voice/EngineStart.cpp
    void VVLStart(bool& result);
    void VVLStop();

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
    bool EnterRadioRoom(Long room);
    void ForgetRadioRoom(Long room);
    bool EnterPrivateRoom(const std::string& address);
    void SetJoinState(Long room, bool accepted);
    void JoinRoomAtStart(Long room);
    void SyncVoiceRooms();
    void ReportRoomState(Long room, const char* sound, Long state);
    void VVL_RoomJoinSucceed(Long room);
    void VVL_RoomJoinFailed(Long room);
    void VVL_RoomKicked(Long room);
    void VVL_RoomLeft(Long room);
    void VVL_RoomStatusChanged(Long room);

    // voice/RoomParameters.cpp
    void Tessaly_InterfaceParamChanged(Long id, Long index);
    void WithInterface(const std::function<void()>& work);
    void RoomStateChanged(Long room);
    bool Heard(Long room) const;
    void SetRoomOutputs(Long room);
    void PrivateReceptionChanged();
    void PrivateTransmissionChanged();
    void RoomPriorityChanged(Long room);

    // voice/PriorityTraffic.cpp
    void EvaluatePriority(Long room);
    bool AnyPriorityRoomOnAir();
    void MarkPriorityTraffic();
    void VVLPriorityTraffic_Timer();
    void VVL_RoomAudioStarted(Long room);
    void VVL_RoomAudioStopped(Long room);

    // voice/VoiceAtis.cpp
    void PlayVoiceAtis();
    void PlayRecording(MediaPlayer& player, Long radio, const std::string& receive);
    void StopRecording(MediaPlayer& player, Long radio);
    void SetPlayerVolumes();
    void Timer1_Timer();
    void VoiceATISEnable_Click();
    void VoiceATISVolume_Change();

    // input/Dispatch.cpp
    void Velmarc_FSJoyDown(const std::string& button);
    void Velmarc_FSJoyUp(const std::string& button);
    void Velmarc_FSKeyDown(bool repeat, bool fsActive, const std::string& key, const std::string& keySequence);
    void Velmarc_FSKeyUp(const std::string& key);
    void StartPushToTalk(bool radioMatches, bool privateMatches);
    void StopPushToTalk(bool radioMatches, bool privateMatches);
    void PressVoiceKeys(bool teamSpeakMatches, bool rogerWilcoMatches);
    void ReleaseVoiceKeys(bool teamSpeakMatches, bool rogerWilcoMatches);

    // input/PushToTalk.cpp
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

    // input/RemoteCapture.cpp
    void RemoteSet_Click(const RemoteSlot& slot);
    void RemoteClear_Click(const RemoteSlot& slot);
    // Whether a slot that waits took the event
    bool CaptureKeyDown(const std::string& key, const std::string& keySequence);
    bool CaptureJoyDown(const std::string& button);
    bool CaptureKeyUp();
    void FillSlot(const RemoteSlot& slot, const std::string& text);

    // input/LocalCapture.cpp
    void LocalSet_Click(const LocalSlot& slot);
    void LocalClear_Click(const LocalSlot& slot);
    void CollectKey(const LocalSlot& slot, const WindowMessage& message);

    // input/MappingTables.cpp
    void LoadMappingTable(const MappingTable& table);
    void TableApply_Click(const MappingTable& table);
    void TableDelete_Click(const MappingTable& table);
    void TableItem_Click(const MappingTable& table, Long row);
    void RewriteTable(const MappingTable& table, const std::string& textKey);

    // input/FiredRows.cpp
    void FireJoyRows(bool released, const std::string& button);
    void FireKeyRows(bool repeat, bool fsActive, const std::string& key, const std::string& keySequence);
    void ReleaseKeyRows(const std::string& key);
    void ApplyKeyMapping(bool released, ListView& list, Long row);

    // input/PrivateMapping.cpp
    void VVLPrivEnable_Click();

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
    OutputSliders HeadsetSliders();
    OutputSliders SpeakerSliders();
    static void OutputOpened(MixerControl& mixer, const OutputSliders& sliders);
    static void OutputClosed(const OutputSliders& sliders);
    void VVLOut_Scroll();
    void VVLOutHP_Scroll();
    void VVLSignal_Change();

    // audio/DeviceStatus.cpp
    void TimerDeviceStatus_Timer();

    // audio/Calibration.cpp
    void VVLCalibrate_Click();

    // audio/Distortion.cpp
    void VVLFilter_Click();
};

}  // namespace orvelle
