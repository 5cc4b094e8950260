// Every control of the main window, by its panel, with its design caption. Panels(0) is the overview and gives the
// window its size; the other twelve take its place when the tree shows them. Nothing here knows what a control does.
#pragma once

#include <array>

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

// The 13 panels; they come first, as the other controls sit on them.
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

    // Panels(0): overview
    Image StatusIcon{*this, "StatusIcon", &Panels(0)};
    Label StatusVelmarc{*this, "StatusVelmarc", &Panels(0)};
    Label StatusTessaly{*this, "StatusTessaly", &Panels(0)};
    Label StatusMainUser{*this, "StatusMainUser", &Panels(0), "Main Pilot User"};
    Label StatusRogerWilco{*this, "StatusRogerWilco", &Panels(0)};
    Label StatusTeamSpeak{*this, "StatusTeamSpeak", &Panels(0)};
    Label StatusVVL{*this, "StatusVVL", &Panels(0)};
    Label Label21{*this, "Label21", &Panels(0), "COMM1 :"};
    Label Label22{*this, "Label22", &Panels(0), "COMM2 :"};
    Label FreqCOM1{*this, "FreqCOM1", &Panels(0)};
    Label FreqCOM2{*this, "FreqCOM2", &Panels(0)};
    Label SoftwareCOM1{*this, "SoftwareCOM1", &Panels(0)};
    Label SoftwareCOM2{*this, "SoftwareCOM2", &Panels(0)};
    Label CommentCOM1{*this, "CommentCOM1", &Panels(0)};
    Label CommentCOM2{*this, "CommentCOM2", &Panels(0)};
    Shape RecvCOM1{*this, "RecvCOM1", &Panels(0), LampGreen};
    Shape RecvCOM2{*this, "RecvCOM2", &Panels(0), LampGreen};
    Shape TransmitCOM1{*this, "TransmitCOM1", &Panels(0), LampGreen};
    Shape TransmitCOM2{*this, "TransmitCOM2", &Panels(0), LampGreen};
    CommandButton Shutdown{*this, "Shutdown", &Panels(0), "Shutdown"};

    // Panels(1): simulator link
    ControlArray<OptionButton> optVelmarc;
    ComboBox VelmarcServer{*this, "VelmarcServer", &Panels(1), ComboBox::Kind::Editable, "localhost"};
    Label lblVelmarcServer{*this, "lblVelmarcServer", &Panels(1),
                           "Select a computer running FS with Velmarc or input manually the IP or hostname and press "
                           "<Enter>."};
    Label lblVelmarcServerMulti{*this, "lblVelmarcServerMulti", &Panels(1),
                                "Multiple computers running FS with Velmarc on the network were detected. We "
                                "recommand you dont use autodetect !"};
    StatusBar VelmarcStatus{*this, "VelmarcStatus", &Panels(1), {{"Not Connected", "Connection Statue"}, {"", ""}}};

    // Panels(2): RogerWilco
    CheckBox RWEnable{*this, "RWEnable", &Panels(2), "Enable RogerWilco on this computer"};
    ControlArray<OptionButton> optRWDriver;
    Label LblRWPath{*this, "LblRWPath", &Panels(2), "RogerWilco Path :"};
    TextBox RWPath{*this, "RWPath", &Panels(2), TextBox::Kind::Editable};
    CommandButton RWSearch{*this, "RWSearch", &Panels(2), "..."};
    CommandButton RWRescan{*this, "RWRescan", &Panels(2), "Rescan"};
    Label LblRWFSJoyDisplay{*this, "LblRWFSJoyDisplay", &Panels(2), "FS Joystick Mapping :"};
    TextBox RWFSJoyDisplay{*this, "RWFSJoyDisplay", &Panels(2), TextBox::Kind::Locked};
    CommandButton RWJoySet{*this, "RWJoySet", &Panels(2), "Set"};
    CommandButton RWJoyClear{*this, "RWJoyClear", &Panels(2), "Clear"};
    Label LblRWFSKeyDisplay{*this, "LblRWFSKeyDisplay", &Panels(2), "FS Key Mapping :"};
    TextBox RWFSKeyDisplay{*this, "RWFSKeyDisplay", &Panels(2), TextBox::Kind::Locked};
    CommandButton RWKeySet{*this, "RWKeySet", &Panels(2), "Set"};
    CommandButton RWKeyClear{*this, "RWKeyClear", &Panels(2), "Clear"};
    Label LblRWPTTKeyDisplay{*this, "LblRWPTTKeyDisplay", &Panels(2), "RW PTT Key Mapping :"};
    TextBox RWPTTKeyDisplay{*this, "RWPTTKeyDisplay", &Panels(2), TextBox::Kind::Locked};
    CommandButton RWPTTKeySet{*this, "RWPTTKeySet", &Panels(2), "Set"};
    CommandButton RWPTTKeyClear{*this, "RWPTTKeyClear", &Panels(2), "Clear"};

    // Panels(3): TeamSpeak
    CheckBox TSEnable{*this, "TSEnable", &Panels(3), "Enable Teamspeak on this computer"};
    ControlArray<OptionButton> optTSDriver;
    Label LblTSPath{*this, "LblTSPath", &Panels(3), "Teamspeak Path :"};
    TextBox TSPath{*this, "TSPath", &Panels(3), TextBox::Kind::Editable};
    CommandButton TSSearch{*this, "TSSearch", &Panels(3), "..."};
    CommandButton TSRescan{*this, "TSRescan", &Panels(3), "Rescan"};
    Label LblTSFSJoyDisplay{*this, "LblTSFSJoyDisplay", &Panels(3), "FS Joystick Mapping :"};
    TextBox TSFSJoyDisplay{*this, "TSFSJoyDisplay", &Panels(3), TextBox::Kind::Locked};
    CommandButton TSJoySet{*this, "TSJoySet", &Panels(3), "Set"};
    CommandButton TSJoyClear{*this, "TSJoyClear", &Panels(3), "Clear"};
    Label LblTSFSKeyDisplay{*this, "LblTSFSKeyDisplay", &Panels(3), "FS Key Mapping :"};
    TextBox TSFSKeyDisplay{*this, "TSFSKeyDisplay", &Panels(3), TextBox::Kind::Locked};
    CommandButton TSKeySet{*this, "TSKeySet", &Panels(3), "Set"};
    CommandButton TSKeyClear{*this, "TSKeyClear", &Panels(3), "Clear"};
    Label LblTSPTTKeyDisplay{*this, "LblTSPTTKeyDisplay", &Panels(3), "TS PTT Key Mapping :"};
    TextBox TSPTTKeyDisplay{*this, "TSPTTKeyDisplay", &Panels(3), TextBox::Kind::Locked};
    CommandButton TSPTTKeySet{*this, "TSPTTKeySet", &Panels(3), "Set"};
    CommandButton TSPTTKeyClear{*this, "TSPTTKeyClear", &Panels(3), "Clear"};

    // Panels(4): Joy to Key
    ListView ListJoyToKey{*this, "ListJoyToKey", &Panels(4), {"FS PC Joystick Button", "Keys Sequence", "Push/Toggle"}};
    Label LblJ2KJoyDisplay{*this, "LblJ2KJoyDisplay", &Panels(4), "FS Joystick Mapping :"};
    TextBox J2KJoyDisplay{*this, "J2KJoyDisplay", &Panels(4), TextBox::Kind::Locked};
    CommandButton J2KJoySet{*this, "J2KJoySet", &Panels(4), "Set"};
    CommandButton J2KJoyClear{*this, "J2KJoyClear", &Panels(4), "Clear"};
    Label LblJ2KKeyDisplay{*this, "LblJ2KKeyDisplay", &Panels(4), "Key Mapping :"};
    TextBox J2KKeyDisplay{*this, "J2KKeyDisplay", &Panels(4), TextBox::Kind::Locked};
    CommandButton J2KKeySet{*this, "J2KKeySet", &Panels(4), "Set"};
    CommandButton J2KKeyClear{*this, "J2KKeyClear", &Panels(4), "Clear"};
    CheckBox J2KToggle{*this, "J2KToggle", &Panels(4), "Key Sequence Toggled"};
    CommandButton J2KApply{*this, "J2KApply", &Panels(4), "Apply"};
    CommandButton J2KDelete{*this, "J2KDelete", &Panels(4), "Delete Selected"};

    // Panels(5): VATSIM voice
    CheckBox VVLEnable{*this, "VVLEnable", &Panels(5), "Enable VATSIM Voice on this computer"};
    Label LblVVLMicrophone{*this, "LblVVLMicrophone", &Panels(5), "Microphone :"};
    ComboBox VVLMicrophone{*this, "VVLMicrophone", &Panels(5), ComboBox::Kind::List};
    Shape VVLMicrophoneStatus{*this, "VVLMicrophoneStatus", &Panels(5), LampRed, "Microphone Device Status"};
    Label LblVVLHeadset{*this, "LblVVLHeadset", &Panels(5), "Headset :"};
    ComboBox VVLHeadset{*this, "VVLHeadset", &Panels(5), ComboBox::Kind::List};
    Shape VVLHeadsetStatus{*this, "VVLHeadsetStatus", &Panels(5), LampRed, "Headset Device Status"};
    Label LblVVLSpeakers{*this, "LblVVLSpeakers", &Panels(5), "Speakers :"};
    ComboBox VVLSpeakers{*this, "VVLSpeakers", &Panels(5), ComboBox::Kind::List};
    Shape VVLSpeakersStatus{*this, "VVLSpeakersStatus", &Panels(5), LampRed, "Speakers Device Status"};
    StatusBar VVLStatusBar{
        *this, "VVLStatusBar", &Panels(5), {{"VATSIM Not Dectected", "VATSIM Connection Statue"}, {"Engine off", ""}}};

    // Panels(6): volumes
    Label Label8{*this, "Label8", &Panels(6), "Microphone :"};
    Label LblWaveIn{*this, "LblWaveIn", &Panels(6), "Windows Mixer"};
    Slider WaveIn{*this, "WaveIn", &Panels(6), MixerRange};
    Label LblGWaveOut{*this, "LblGWaveOut", &Panels(6), "Headset :"};
    Label LblWaveOut{*this, "LblWaveOut", &Panels(6), "Soundcard General"};
    Slider WaveOut{*this, "WaveOut", &Panels(6), MixerRange};
    Label LblWaveOutWave{*this, "LblWaveOutWave", &Panels(6), "Windows Wave Mixer"};
    Slider WaveOutWave{*this, "WaveOutWave", &Panels(6), MixerRange};
    Label Label18{*this, "Label18", &Panels(6), "VVL Internal Mixer"};
    Slider VVLOut{*this, "VVLOut", &Panels(6), EngineRange};
    Label LblGWaveOutHP{*this, "LblGWaveOutHP", &Panels(6), "Speakers :"};
    Label LblWaveOutHP{*this, "LblWaveOutHP", &Panels(6), "Soundcard General"};
    Slider WaveOutHP{*this, "WaveOutHP", &Panels(6), MixerRange};
    Label LblWaveOutWaveHP{*this, "LblWaveOutWaveHP", &Panels(6), "Windows Wave Mixer"};
    Slider WaveOutWaveHP{*this, "WaveOutWaveHP", &Panels(6), MixerRange};
    Label LblVVLOutHP{*this, "LblVVLOutHP", &Panels(6), "VVL Internal Mixer"};
    Slider VVLOutHP{*this, "VVLOutHP", &Panels(6), EngineRange};
    Label Label9{*this, "Label9", &Panels(6), "Inband voice signal tone Volume"};
    Slider VVLSignal{*this, "VVLSignal", &Panels(6), MixerRange};
    CommandButton VVLCalibrate{*this, "VVLCalibrate", &Panels(6), "Voice Test and Calibration"};
    CheckBox VVLFilter{*this, "VVLFilter", &Panels(6), "Realistic Distortion"};

    // Panels(7): Key to Key
    ListView ListKeyToKey{*this, "ListKeyToKey", &Panels(7), {"FS PC Key Sequence", "Keys Sequence", "Push/Toggle"}};
    Label LblK2KFSKeyDisplay{*this, "LblK2KFSKeyDisplay", &Panels(7), "FS Key Mapping :"};
    TextBox K2KFSKeyDisplay{*this, "K2KFSKeyDisplay", &Panels(7), TextBox::Kind::Locked};
    CommandButton K2KFSKeySet{*this, "K2KFSKeySet", &Panels(7), "Set"};
    CommandButton K2KFSKeyClear{*this, "K2KFSKeyClear", &Panels(7), "Clear"};
    Label LblK2KKeyDisplay{*this, "LblK2KKeyDisplay", &Panels(7), "Key Mapping :"};
    TextBox K2KKeyDisplay{*this, "K2KKeyDisplay", &Panels(7), TextBox::Kind::Locked};
    CommandButton K2KKeySet{*this, "K2KKeySet", &Panels(7), "Set"};
    CommandButton K2KKeyClear{*this, "K2KKeyClear", &Panels(7), "Clear"};
    CheckBox K2KToggle{*this, "K2KToggle", &Panels(7), "Key Sequence Toggled"};
    CommandButton K2KApply{*this, "K2KApply", &Panels(7), "Apply"};
    CommandButton K2KDelete{*this, "K2KDelete", &Panels(7), "Delete Selected"};

    // Panels(8): framework link
    ControlArray<OptionButton> optTessaly;
    ComboBox TessalyServer{*this, "TessalyServer", &Panels(8), ComboBox::Kind::Editable};
    Label lblTessalyServer{*this, "lblTessalyServer", &Panels(8),
                           "Select a remote computer running the Tessaly/Sorvain framework or input manually the IP "
                           "or hostname and press <Enter>."};
    Label lblTessalyServerMulti{*this, "lblTessalyServerMulti", &Panels(8),
                                "Multiple computers running Tessaly or Sorvain on the network were detected. We "
                                "recommand you dont use autodetect !"};
    CheckBox KestrineEmbedded{*this, "KestrineEmbedded", &Panels(8),
                              "If Tessaly is started from FS, the framework will run inside Flight Simulator"};
    StatusBar TessalyStatus{*this, "TessalyStatus", &Panels(8), {{"Not Connected", "Connection Statue"}, {"", ""}}};

    // Panels(9): options
    CheckBox VoiceTuningSound{*this, "VoiceTuningSound", &Panels(9), "Voice Tuning Sound Warning"};
    CheckBox Topmost{*this, "Topmost", &Panels(9), "Orvelle Control Panel Top most Window"};
    CheckBox Autostart{*this, "Autostart", &Panels(9), "Autostart Orvelle Control Panel with Windows"};
    CheckBox AutoStartFS{*this, "AutoStartFS", &Panels(9), "Autostart Orvelle Control Panel with Flight Simulator"};
    CheckBox AutoStartDunmerleFS{*this, "AutoStartDunmerleFS", &Panels(9), "Autostart Dunmerle with Flight Simulator"};

    // Panels(10): Voice ATIS
    CheckBox VoiceATISEnable{*this, "VoiceATISEnable", &Panels(10), "Allow to play Voice ATIS on this computer"};
    Label LblVoiceATISVolume{*this, "LblVoiceATISVolume", &Panels(10), "Voice ATIS Volume"};
    Slider VoiceATISVolume{*this, "VoiceATISVolume", &Panels(10), Slider::Range{-5000, 0, 250, 1}};

    // Panels(11): extra settings of the framework
    CheckBox FS2004DPCompatible{*this, "FS2004DPCompatible", &Panels(11),
                                "FS2004 Multiplayer DirectPlay Session Mode Compatible"};

    // Panels(12): VATSIM key mappings
    Label LblVVLFSKeyDisplay{*this, "LblVVLFSKeyDisplay", &Panels(12), "FS PTT Key Mapping :"};
    TextBox VVLFSKeyDisplay{*this, "VVLFSKeyDisplay", &Panels(12), TextBox::Kind::Locked};
    CommandButton VVLKeySet{*this, "VVLKeySet", &Panels(12), "Set"};
    CommandButton VVLKeyClear{*this, "VVLKeyClear", &Panels(12), "Clear"};
    Label LblVVLFSJoyDisplay{*this, "LblVVLFSJoyDisplay", &Panels(12), "FS PTT Joystick Button :"};
    TextBox VVLFSJoyDisplay{*this, "VVLFSJoyDisplay", &Panels(12), TextBox::Kind::Locked};
    CommandButton VVLJoySet{*this, "VVLJoySet", &Panels(12), "Set"};
    CommandButton VVLJoyClear{*this, "VVLJoyClear", &Panels(12), "Clear"};
    CheckBox VVLFSKeyFSNotActivated{*this, "VVLFSKeyFSNotActivated", &Panels(12),
                                    "FS Key works even when FS isnt activated"};
    CheckBox VVLPrivEnable{*this, "VVLPrivEnable", &Panels(12), "Use a special mapping for private VVL channel"};
    Label LblVVLPrivFSKeyDisplay{*this, "LblVVLPrivFSKeyDisplay", &Panels(12), "FS Priv PTT Key Mapping :"};
    TextBox VVLPrivFSKeyDisplay{*this, "VVLPrivFSKeyDisplay", &Panels(12), TextBox::Kind::Locked};
    CommandButton VVLPrivKeySet{*this, "VVLPrivKeySet", &Panels(12), "Set"};
    CommandButton VVLPrivKeyClear{*this, "VVLPrivKeyClear", &Panels(12), "Clear"};
    Label LblVVLPrivFSJoyDisplay{*this, "LblVVLPrivFSJoyDisplay", &Panels(12), "FS Priv PTT Joystick Button :"};
    TextBox VVLPrivFSJoyDisplay{*this, "VVLPrivFSJoyDisplay", &Panels(12), TextBox::Kind::Locked};
    CommandButton VVLPrivJoySet{*this, "VVLPrivJoySet", &Panels(12), "Set"};
    CommandButton VVLPrivJoyClear{*this, "VVLPrivJoyClear", &Panels(12), "Clear"};

private:
    static constexpr Slider::Range MixerRange{0, 100, 5, 1};
    static constexpr Slider::Range EngineRange{0, 400, 40, 1};
};

}  // namespace orvelle
