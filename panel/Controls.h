// Every control of the main window, by its panel, with its design caption. The overview gives the window its size; the
// other panels take its place when the tree shows them. Nothing here knows what a control does.
#pragma once

#include <array>

#include "platform/PanelNumber.h"
#include "platform/controls/Buttons.h"
#include "platform/controls/ComboBox.h"
#include "platform/controls/ControlArray.h"
#include "platform/controls/Form.h"
#include "platform/controls/ImageList.h"
#include "platform/controls/Label.h"
#include "platform/controls/ListView.h"
#include "platform/controls/Slider.h"
#include "platform/controls/StatusBar.h"
#include "platform/controls/TextBox.h"
#include "platform/controls/Timer.h"
#include "platform/controls/TreeView.h"

namespace orvelle {

constexpr Long LampGreen = 32768;
constexpr Long LampRed = 128;

// The panels, by PanelNumber; they come first, as the other controls sit on them.
class PanelFrames : public ControlArray<Frame> {
public:
    explicit PanelFrames(Form& form);
};

class PanelControls : public Form {
public:
    PanelControls();
    ~PanelControls() override;

    // What the private channel's mapping consists of, in the order in which it is enabled and disabled.
    std::array<Control*, 8> PrivateMapping();

    PanelFrames Panels{*this};

    // On no panel
    TreeView twCategory{*this, "twCategory"};
    Timer Timer1{*this, "Timer1", 1000};
    Timer TimerDeviceStatus{*this, "TimerDeviceStatus", 1000};
    Timer VVLPriorityTraffic{*this, "VVLPriorityTraffic", 3000};
    ImageList IconList;
    ImageList OrvelleIcon{*this, "OrvelleIcon", {"BLUE", "RED", "YELLOW"}};
    MenuEntry mnuTrayVisible{*this, "mnuTrayVisible", "Ensure Visible"};
    MenuEntry mnuTrayShow{*this, "mnuTrayShow", "Show"};
    MenuEntry mnuTrayQuit{*this, "mnuTrayQuit", "Quit"};
    Menu mnuTray{*this, "mnuTray", {&mnuTrayVisible, &mnuTrayShow, &mnuTrayQuit}};

    // Overview
    Image StatusIcon{*this, "StatusIcon", &Panels(OverviewPanel)};
    Label StatusVelmarc{*this, "StatusVelmarc", &Panels(OverviewPanel)};
    Label StatusTessaly{*this, "StatusTessaly", &Panels(OverviewPanel)};
    Label StatusMainUser{*this, "StatusMainUser", &Panels(OverviewPanel), "Main Pilot User"};
    Label StatusRogerWilco{*this, "StatusRogerWilco", &Panels(OverviewPanel)};
    Label StatusTeamSpeak{*this, "StatusTeamSpeak", &Panels(OverviewPanel)};
    Label StatusVVL{*this, "StatusVVL", &Panels(OverviewPanel)};
    Label Label21{*this, "Label21", &Panels(OverviewPanel), "COMM1 :"};
    Label Label22{*this, "Label22", &Panels(OverviewPanel), "COMM2 :"};
    Label FreqCOM1{*this, "FreqCOM1", &Panels(OverviewPanel)};
    Label FreqCOM2{*this, "FreqCOM2", &Panels(OverviewPanel)};
    Label SoftwareCOM1{*this, "SoftwareCOM1", &Panels(OverviewPanel)};
    Label SoftwareCOM2{*this, "SoftwareCOM2", &Panels(OverviewPanel)};
    Label CommentCOM1{*this, "CommentCOM1", &Panels(OverviewPanel)};
    Label CommentCOM2{*this, "CommentCOM2", &Panels(OverviewPanel)};
    Shape RecvCOM1{*this, "RecvCOM1", &Panels(OverviewPanel), LampGreen};
    Shape RecvCOM2{*this, "RecvCOM2", &Panels(OverviewPanel), LampGreen};
    Shape TransmitCOM1{*this, "TransmitCOM1", &Panels(OverviewPanel), LampGreen};
    Shape TransmitCOM2{*this, "TransmitCOM2", &Panels(OverviewPanel), LampGreen};
    CommandButton Shutdown{*this, "Shutdown", &Panels(OverviewPanel), "Shutdown"};

    // Simulator link
    ControlArray<OptionButton> optVelmarc;
    ComboBox VelmarcServer{*this, "VelmarcServer", &Panels(SimulatorLinkPanel), ComboBox::Kind::Editable, "localhost"};
    Label lblVelmarcServer{*this, "lblVelmarcServer", &Panels(SimulatorLinkPanel),
                           "Select a computer running FS with Velmarc or input manually the IP or hostname and press "
                           "<Enter>."};
    Label lblVelmarcServerMulti{*this, "lblVelmarcServerMulti", &Panels(SimulatorLinkPanel),
                                "Multiple computers running FS with Velmarc on the network were detected. We "
                                "recommand you dont use autodetect !"};
    StatusBar VelmarcStatus{
        *this, "VelmarcStatus", &Panels(SimulatorLinkPanel), {{"Not Connected", "Connection Statue"}, {"", ""}}};

    // RogerWilco
    CheckBox RWEnable{*this, "RWEnable", &Panels(RogerWilcoPanel), "Enable RogerWilco on this computer"};
    ControlArray<OptionButton> optRWDriver;
    Label LblRWPath{*this, "LblRWPath", &Panels(RogerWilcoPanel), "RogerWilco Path :"};
    TextBox RWPath{*this, "RWPath", &Panels(RogerWilcoPanel), TextBox::Kind::Editable};
    CommandButton RWSearch{*this, "RWSearch", &Panels(RogerWilcoPanel), "..."};
    CommandButton RWRescan{*this, "RWRescan", &Panels(RogerWilcoPanel), "Rescan"};
    Label LblRWFSJoyDisplay{*this, "LblRWFSJoyDisplay", &Panels(RogerWilcoPanel), "FS Joystick Mapping :"};
    TextBox RWFSJoyDisplay{*this, "RWFSJoyDisplay", &Panels(RogerWilcoPanel), TextBox::Kind::Locked};
    CommandButton RWJoySet{*this, "RWJoySet", &Panels(RogerWilcoPanel), "Set"};
    CommandButton RWJoyClear{*this, "RWJoyClear", &Panels(RogerWilcoPanel), "Clear"};
    Label LblRWFSKeyDisplay{*this, "LblRWFSKeyDisplay", &Panels(RogerWilcoPanel), "FS Key Mapping :"};
    TextBox RWFSKeyDisplay{*this, "RWFSKeyDisplay", &Panels(RogerWilcoPanel), TextBox::Kind::Locked};
    CommandButton RWKeySet{*this, "RWKeySet", &Panels(RogerWilcoPanel), "Set"};
    CommandButton RWKeyClear{*this, "RWKeyClear", &Panels(RogerWilcoPanel), "Clear"};
    Label LblRWPTTKeyDisplay{*this, "LblRWPTTKeyDisplay", &Panels(RogerWilcoPanel), "RW PTT Key Mapping :"};
    TextBox RWPTTKeyDisplay{*this, "RWPTTKeyDisplay", &Panels(RogerWilcoPanel), TextBox::Kind::Locked};
    CommandButton RWPTTKeySet{*this, "RWPTTKeySet", &Panels(RogerWilcoPanel), "Set"};
    CommandButton RWPTTKeyClear{*this, "RWPTTKeyClear", &Panels(RogerWilcoPanel), "Clear"};

    // TeamSpeak
    CheckBox TSEnable{*this, "TSEnable", &Panels(TeamSpeakPanel), "Enable Teamspeak on this computer"};
    ControlArray<OptionButton> optTSDriver;
    Label LblTSPath{*this, "LblTSPath", &Panels(TeamSpeakPanel), "Teamspeak Path :"};
    TextBox TSPath{*this, "TSPath", &Panels(TeamSpeakPanel), TextBox::Kind::Editable};
    CommandButton TSSearch{*this, "TSSearch", &Panels(TeamSpeakPanel), "..."};
    CommandButton TSRescan{*this, "TSRescan", &Panels(TeamSpeakPanel), "Rescan"};
    Label LblTSFSJoyDisplay{*this, "LblTSFSJoyDisplay", &Panels(TeamSpeakPanel), "FS Joystick Mapping :"};
    TextBox TSFSJoyDisplay{*this, "TSFSJoyDisplay", &Panels(TeamSpeakPanel), TextBox::Kind::Locked};
    CommandButton TSJoySet{*this, "TSJoySet", &Panels(TeamSpeakPanel), "Set"};
    CommandButton TSJoyClear{*this, "TSJoyClear", &Panels(TeamSpeakPanel), "Clear"};
    Label LblTSFSKeyDisplay{*this, "LblTSFSKeyDisplay", &Panels(TeamSpeakPanel), "FS Key Mapping :"};
    TextBox TSFSKeyDisplay{*this, "TSFSKeyDisplay", &Panels(TeamSpeakPanel), TextBox::Kind::Locked};
    CommandButton TSKeySet{*this, "TSKeySet", &Panels(TeamSpeakPanel), "Set"};
    CommandButton TSKeyClear{*this, "TSKeyClear", &Panels(TeamSpeakPanel), "Clear"};
    Label LblTSPTTKeyDisplay{*this, "LblTSPTTKeyDisplay", &Panels(TeamSpeakPanel), "TS PTT Key Mapping :"};
    TextBox TSPTTKeyDisplay{*this, "TSPTTKeyDisplay", &Panels(TeamSpeakPanel), TextBox::Kind::Locked};
    CommandButton TSPTTKeySet{*this, "TSPTTKeySet", &Panels(TeamSpeakPanel), "Set"};
    CommandButton TSPTTKeyClear{*this, "TSPTTKeyClear", &Panels(TeamSpeakPanel), "Clear"};

    // Joy to Key
    ListView ListJoyToKey{
        *this, "ListJoyToKey", &Panels(JoyToKeyPanel), {"FS PC Joystick Button", "Keys Sequence", "Push/Toggle"}};
    Label LblJ2KJoyDisplay{*this, "LblJ2KJoyDisplay", &Panels(JoyToKeyPanel), "FS Joystick Mapping :"};
    TextBox J2KJoyDisplay{*this, "J2KJoyDisplay", &Panels(JoyToKeyPanel), TextBox::Kind::Locked};
    CommandButton J2KJoySet{*this, "J2KJoySet", &Panels(JoyToKeyPanel), "Set"};
    CommandButton J2KJoyClear{*this, "J2KJoyClear", &Panels(JoyToKeyPanel), "Clear"};
    Label LblJ2KKeyDisplay{*this, "LblJ2KKeyDisplay", &Panels(JoyToKeyPanel), "Key Mapping :"};
    TextBox J2KKeyDisplay{*this, "J2KKeyDisplay", &Panels(JoyToKeyPanel), TextBox::Kind::Locked};
    CommandButton J2KKeySet{*this, "J2KKeySet", &Panels(JoyToKeyPanel), "Set"};
    CommandButton J2KKeyClear{*this, "J2KKeyClear", &Panels(JoyToKeyPanel), "Clear"};
    CheckBox J2KToggle{*this, "J2KToggle", &Panels(JoyToKeyPanel), "Key Sequence Toggled"};
    CommandButton J2KApply{*this, "J2KApply", &Panels(JoyToKeyPanel), "Apply"};
    CommandButton J2KDelete{*this, "J2KDelete", &Panels(JoyToKeyPanel), "Delete Selected"};

    // VATSIM voice
    CheckBox VVLEnable{*this, "VVLEnable", &Panels(VatsimVoicePanel), "Enable VATSIM Voice on this computer"};
    Label LblVVLMicrophone{*this, "LblVVLMicrophone", &Panels(VatsimVoicePanel), "Microphone :"};
    ComboBox VVLMicrophone{*this, "VVLMicrophone", &Panels(VatsimVoicePanel), ComboBox::Kind::List};
    Shape VVLMicrophoneStatus{*this, "VVLMicrophoneStatus", &Panels(VatsimVoicePanel), LampRed,
                              "Microphone Device Status"};
    Label LblVVLHeadset{*this, "LblVVLHeadset", &Panels(VatsimVoicePanel), "Headset :"};
    ComboBox VVLHeadset{*this, "VVLHeadset", &Panels(VatsimVoicePanel), ComboBox::Kind::List};
    Shape VVLHeadsetStatus{*this, "VVLHeadsetStatus", &Panels(VatsimVoicePanel), LampRed, "Headset Device Status"};
    Label LblVVLSpeakers{*this, "LblVVLSpeakers", &Panels(VatsimVoicePanel), "Speakers :"};
    ComboBox VVLSpeakers{*this, "VVLSpeakers", &Panels(VatsimVoicePanel), ComboBox::Kind::List};
    Shape VVLSpeakersStatus{*this, "VVLSpeakersStatus", &Panels(VatsimVoicePanel), LampRed, "Speakers Device Status"};
    StatusBar VVLStatusBar{*this,
                           "VVLStatusBar",
                           &Panels(VatsimVoicePanel),
                           {{"VATSIM Not Dectected", "VATSIM Connection Statue"}, {"Engine off", ""}}};

    // Volumes
    Label Label8{*this, "Label8", &Panels(VolumesPanel), "Microphone :"};
    Label LblWaveIn{*this, "LblWaveIn", &Panels(VolumesPanel), "Windows Mixer"};
    Slider WaveIn{*this, "WaveIn", &Panels(VolumesPanel), MixerRange};
    Label LblGWaveOut{*this, "LblGWaveOut", &Panels(VolumesPanel), "Headset :"};
    Label LblWaveOut{*this, "LblWaveOut", &Panels(VolumesPanel), "Soundcard General"};
    Slider WaveOut{*this, "WaveOut", &Panels(VolumesPanel), MixerRange};
    Label LblWaveOutWave{*this, "LblWaveOutWave", &Panels(VolumesPanel), "Windows Wave Mixer"};
    Slider WaveOutWave{*this, "WaveOutWave", &Panels(VolumesPanel), MixerRange};
    Label Label18{*this, "Label18", &Panels(VolumesPanel), "VVL Internal Mixer"};
    Slider VVLOut{*this, "VVLOut", &Panels(VolumesPanel), EngineRange};
    Label LblGWaveOutHP{*this, "LblGWaveOutHP", &Panels(VolumesPanel), "Speakers :"};
    Label LblWaveOutHP{*this, "LblWaveOutHP", &Panels(VolumesPanel), "Soundcard General"};
    Slider WaveOutHP{*this, "WaveOutHP", &Panels(VolumesPanel), MixerRange};
    Label LblWaveOutWaveHP{*this, "LblWaveOutWaveHP", &Panels(VolumesPanel), "Windows Wave Mixer"};
    Slider WaveOutWaveHP{*this, "WaveOutWaveHP", &Panels(VolumesPanel), MixerRange};
    Label LblVVLOutHP{*this, "LblVVLOutHP", &Panels(VolumesPanel), "VVL Internal Mixer"};
    Slider VVLOutHP{*this, "VVLOutHP", &Panels(VolumesPanel), EngineRange};
    Label Label9{*this, "Label9", &Panels(VolumesPanel), "Inband voice signal tone Volume"};
    Slider VVLSignal{*this, "VVLSignal", &Panels(VolumesPanel), MixerRange};
    CommandButton VVLCalibrate{*this, "VVLCalibrate", &Panels(VolumesPanel), "Voice Test and Calibration"};
    CheckBox VVLFilter{*this, "VVLFilter", &Panels(VolumesPanel), "Realistic Distortion"};

    // Key to Key
    ListView ListKeyToKey{
        *this, "ListKeyToKey", &Panels(KeyToKeyPanel), {"FS PC Key Sequence", "Keys Sequence", "Push/Toggle"}};
    Label LblK2KFSKeyDisplay{*this, "LblK2KFSKeyDisplay", &Panels(KeyToKeyPanel), "FS Key Mapping :"};
    TextBox K2KFSKeyDisplay{*this, "K2KFSKeyDisplay", &Panels(KeyToKeyPanel), TextBox::Kind::Locked};
    CommandButton K2KFSKeySet{*this, "K2KFSKeySet", &Panels(KeyToKeyPanel), "Set"};
    CommandButton K2KFSKeyClear{*this, "K2KFSKeyClear", &Panels(KeyToKeyPanel), "Clear"};
    Label LblK2KKeyDisplay{*this, "LblK2KKeyDisplay", &Panels(KeyToKeyPanel), "Key Mapping :"};
    TextBox K2KKeyDisplay{*this, "K2KKeyDisplay", &Panels(KeyToKeyPanel), TextBox::Kind::Locked};
    CommandButton K2KKeySet{*this, "K2KKeySet", &Panels(KeyToKeyPanel), "Set"};
    CommandButton K2KKeyClear{*this, "K2KKeyClear", &Panels(KeyToKeyPanel), "Clear"};
    CheckBox K2KToggle{*this, "K2KToggle", &Panels(KeyToKeyPanel), "Key Sequence Toggled"};
    CommandButton K2KApply{*this, "K2KApply", &Panels(KeyToKeyPanel), "Apply"};
    CommandButton K2KDelete{*this, "K2KDelete", &Panels(KeyToKeyPanel), "Delete Selected"};

    // Framework link
    ControlArray<OptionButton> optTessaly;
    ComboBox TessalyServer{*this, "TessalyServer", &Panels(FrameworkLinkPanel), ComboBox::Kind::Editable};
    Label lblTessalyServer{*this, "lblTessalyServer", &Panels(FrameworkLinkPanel),
                           "Select a remote computer running the Tessaly/Sorvain framework or input manually the IP "
                           "or hostname and press <Enter>."};
    Label lblTessalyServerMulti{*this, "lblTessalyServerMulti", &Panels(FrameworkLinkPanel),
                                "Multiple computers running Tessaly or Sorvain on the network were detected. We "
                                "recommand you dont use autodetect !"};
    CheckBox KestrineEmbedded{*this, "KestrineEmbedded", &Panels(FrameworkLinkPanel),
                              "If Tessaly is started from FS, the framework will run inside Flight Simulator"};
    StatusBar TessalyStatus{
        *this, "TessalyStatus", &Panels(FrameworkLinkPanel), {{"Not Connected", "Connection Statue"}, {"", ""}}};

    // Options
    CheckBox VoiceTuningSound{*this, "VoiceTuningSound", &Panels(OptionsPanel), "Voice Tuning Sound Warning"};
    CheckBox Topmost{*this, "Topmost", &Panels(OptionsPanel), "Orvelle Control Panel Top most Window"};
    CheckBox Autostart{*this, "Autostart", &Panels(OptionsPanel), "Autostart Orvelle Control Panel with Windows"};
    CheckBox AutoStartFS{*this, "AutoStartFS", &Panels(OptionsPanel),
                         "Autostart Orvelle Control Panel with Flight Simulator"};
    CheckBox AutoStartDunmerleFS{*this, "AutoStartDunmerleFS", &Panels(OptionsPanel),
                                 "Autostart Dunmerle with Flight Simulator"};

    // Voice ATIS
    CheckBox VoiceATISEnable{*this, "VoiceATISEnable", &Panels(VoiceAtisPanel),
                             "Allow to play Voice ATIS on this computer"};
    Label LblVoiceATISVolume{*this, "LblVoiceATISVolume", &Panels(VoiceAtisPanel), "Voice ATIS Volume"};
    Slider VoiceATISVolume{*this, "VoiceATISVolume", &Panels(VoiceAtisPanel), Slider::Range{-5000, 0, 250, 1}};

    // Extra settings of the framework
    CheckBox FS2004DPCompatible{*this, "FS2004DPCompatible", &Panels(ExtraPanel),
                                "FS2004 Multiplayer DirectPlay Session Mode Compatible"};

    // VATSIM key mappings
    Label LblVVLFSKeyDisplay{*this, "LblVVLFSKeyDisplay", &Panels(VatsimKeysPanel), "FS PTT Key Mapping :"};
    TextBox VVLFSKeyDisplay{*this, "VVLFSKeyDisplay", &Panels(VatsimKeysPanel), TextBox::Kind::Locked};
    CommandButton VVLKeySet{*this, "VVLKeySet", &Panels(VatsimKeysPanel), "Set"};
    CommandButton VVLKeyClear{*this, "VVLKeyClear", &Panels(VatsimKeysPanel), "Clear"};
    Label LblVVLFSJoyDisplay{*this, "LblVVLFSJoyDisplay", &Panels(VatsimKeysPanel), "FS PTT Joystick Button :"};
    TextBox VVLFSJoyDisplay{*this, "VVLFSJoyDisplay", &Panels(VatsimKeysPanel), TextBox::Kind::Locked};
    CommandButton VVLJoySet{*this, "VVLJoySet", &Panels(VatsimKeysPanel), "Set"};
    CommandButton VVLJoyClear{*this, "VVLJoyClear", &Panels(VatsimKeysPanel), "Clear"};
    CheckBox VVLFSKeyFSNotActivated{*this, "VVLFSKeyFSNotActivated", &Panels(VatsimKeysPanel),
                                    "FS Key works even when FS isnt activated"};
    CheckBox VVLPrivEnable{*this, "VVLPrivEnable", &Panels(VatsimKeysPanel),
                           "Use a special mapping for private VVL channel"};
    Label LblVVLPrivFSKeyDisplay{*this, "LblVVLPrivFSKeyDisplay", &Panels(VatsimKeysPanel),
                                 "FS Priv PTT Key Mapping :"};
    TextBox VVLPrivFSKeyDisplay{*this, "VVLPrivFSKeyDisplay", &Panels(VatsimKeysPanel), TextBox::Kind::Locked};
    CommandButton VVLPrivKeySet{*this, "VVLPrivKeySet", &Panels(VatsimKeysPanel), "Set"};
    CommandButton VVLPrivKeyClear{*this, "VVLPrivKeyClear", &Panels(VatsimKeysPanel), "Clear"};
    Label LblVVLPrivFSJoyDisplay{*this, "LblVVLPrivFSJoyDisplay", &Panels(VatsimKeysPanel),
                                 "FS Priv PTT Joystick Button :"};
    TextBox VVLPrivFSJoyDisplay{*this, "VVLPrivFSJoyDisplay", &Panels(VatsimKeysPanel), TextBox::Kind::Locked};
    CommandButton VVLPrivJoySet{*this, "VVLPrivJoySet", &Panels(VatsimKeysPanel), "Set"};
    CommandButton VVLPrivJoyClear{*this, "VVLPrivJoyClear", &Panels(VatsimKeysPanel), "Clear"};

private:
    static constexpr Slider::Range MixerRange{0, 100, 5, 1};
    static constexpr Slider::Range EngineRange{0, 400, 40, 1};
};

}  // namespace orvelle
