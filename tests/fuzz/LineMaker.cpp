#include "tests/fuzz/LineMaker.h"

#include <array>

namespace orvelle::fuzz {

namespace {

using Text = const char*;

constexpr std::array<Text, 7> Keys{"F8", "F9", "F10", "A", "Ctrl+A", "Ctrl", ""};
constexpr std::array<Text, 5> Buttons{"Stick.1", "Stick.2", "Pad.1", "Wheel", ""};
constexpr std::array<Text, 6> Servers{"one", "two", "127.0.0.1", "localhost", " ", ""};
constexpr std::array<Text, 5> Selections{"1", "2", "B", "b", ""};
constexpr std::array<Text, 5> Roles{"RWCom1", "RWCom2", "TSCom1", "TSCom2", "VVL"};
constexpr std::array<Text, 7> Devices{"Default Mapper", "None", "Wave - One", "DIRECTSOUND - One", "One",
                                      "wave - x",       ""};

constexpr std::array<Text, 14> CheckBoxes{
    "RWEnable",  "TSEnable",        "VVLEnable",   "VVLPrivEnable",    "VVLFilter",       "VVLFSKeyFSNotActivated",
    "Topmost",   "Autostart",       "AutoStartFS", "VoiceTuningSound", "VoiceATISEnable", "J2KToggle",
    "K2KToggle", "KestrineEmbedded"};
constexpr std::array<Text, 11> Options{"optVelmarc(0)",  "optVelmarc(1)",  "optTessaly(0)",  "optTessaly(1)",
                                       "optTessaly(2)",  "optRWDriver(0)", "optRWDriver(1)", "optRWDriver(2)",
                                       "optTSDriver(0)", "optTSDriver(1)", "optTSDriver(2)"};
constexpr std::array<Text, 35> ButtonsToClick{
    "TSKeySet",     "TSKeyClear",  "VVLKeySet",      "VVLKeyClear",     "VVLPrivKeySet", "VVLPrivKeyClear",
    "RWKeySet",     "RWKeyClear",  "K2KFSKeySet",    "K2KFSKeyClear",   "TSJoySet",      "TSJoyClear",
    "VVLJoySet",    "VVLJoyClear", "VVLPrivJoySet",  "VVLPrivJoyClear", "RWJoySet",      "RWJoyClear",
    "J2KJoySet",    "J2KJoyClear", "J2KKeyClear",    "K2KKeyClear",     "J2KApply",      "J2KDelete",
    "K2KApply",     "K2KDelete",   "RWRescan",       "TSRescan",        "RWSearch",      "TSSearch",
    "VVLCalibrate", "mnuTrayShow", "mnuTrayVisible", "RWPTTKeyClear",   "TSPTTKeyClear"};
constexpr std::array<Text, 9> Sliders{"WaveIn", "WaveOut",  "WaveOutWave", "WaveOutHP",      "WaveOutWaveHP",
                                      "VVLOut", "VVLOutHP", "VVLSignal",   "VoiceATISVolume"};
constexpr std::array<Text, 14> Nodes{"Config",       "Velmarc",        "Kestrine",   "Extra",     "Options",
                                     "Voice",        "Teamspeak",      "RogerWilco", "VATSIM",    "Volumes",
                                     "Key mappings", "Key Management", "Joy to Key", "Key to Key"};
constexpr std::array<Text, 15> MixerEvents{"VolumeControl.InputOpened",
                                           "VolumeControl.InputClosed",
                                           "VolumeControl.MicVolumeChanged",
                                           "VolumeControl.OutputOpened",
                                           "VolumeControl.OutputClosed",
                                           "VolumeControl.MasterVolumeChanged",
                                           "VolumeControl.WaveVolumeChanged",
                                           "VolumeControlHP.OutputOpened",
                                           "VolumeControlHP.OutputClosed",
                                           "VolumeControlHP.MasterVolumeChanged",
                                           "VolumeControlHP.WaveVolumeChanged",
                                           "Velmarc.Connected",
                                           "Velmarc.Disconnected",
                                           "Tessaly.Connected",
                                           "Tessaly.Disconnected"};
constexpr std::array<Text, 4> Flags{"MicUnavailable", "MasterUnavailable", "WaveUnavailable", "MasterUnavailable"};

std::string Quoted(const std::string& text) { return '"' + text + '"'; }

}  // namespace

std::size_t LineMaker::Pick(std::size_t count) { return AtEnd() ? 0 : *next++ % count; }

std::string LineMaker::Number(int first, int last) {
    return std::to_string(first +
                          static_cast<int>(Pick(static_cast<std::size_t>(last) - static_cast<std::size_t>(first) + 1)));
}

std::string LineMaker::Key() { return Quoted(OneOf(Keys)); }

std::string LineMaker::Button() { return Quoted(OneOf(Buttons)); }

std::string LineMaker::Preparation() {
    switch (Pick(4)) {
        case 0:
            return Answer();
        case 1:
            return OtherComputer();
        default:
            return Setting();
    }
}

std::string LineMaker::Setting() {
    static constexpr std::array<Text, 8> KeySettings{"TSFSKey", "RWFSKey", "VVLFSKey", "VVLPrivFSKey",
                                                     "TSFSJoy", "RWFSJoy", "VVLFSJoy", "VVLPrivFSJoy"};
    static constexpr std::array<Text, 3> DeviceSettings{"VVLMicrophone", "VVLHeadset", "VVLSpeakers"};
    const std::string store = R"(store "OrvelleCP" )";
    switch (Pick(6)) {
        case 0: {
            const std::size_t index = Pick(KeySettings.size());
            return store + Quoted(KeySettings[index]) + ' ' + (index < 4 ? Key() : Button());
        }
        case 1:
            return store + Quoted(OneOf(DeviceSettings)) + ' ' + Quoted(OneOf(Devices));
        case 2:
            return store + (Pick(2) == 0 ? R"("RWDriven" )" : R"("TSDriven" )") + Number(0, 2);
        case 3:
            return store + R"("RWPTTKey" )" + Quoted(std::to_string(RogerWilcoCode));
        case 4:
            return store + (Pick(2) == 0 ? R"("VVLInputSquelch" "x")" : R"("VVLOutVolume" 500)");
        default:
            return store + Quoted(std::string(OneOf(CheckBoxes))) + ' ' + Number(0, 2);
    }
}

std::string LineMaker::Answer() {
    const auto boolean = [this] { return Pick(3) == 0 ? "False" : "True"; };
    const std::string radio = "(" + Number(0, 1) + ") = ";
    switch (Pick(17)) {
        case 0:
            return std::string("give Tessaly.OpenSession = ") + boolean();
        case 1:
            return "give Tessaly.SessionStatus = " + Number(0, 2);
        case 2:
            return "give Tessaly.ReceiveRadio = " + Quoted(OneOf(Selections));
        case 3:
            return "give Tessaly.TransmitRadio = " + Quoted(OneOf(Selections));
        case 4:
        case 5:
            return "give Tessaly.VoiceSoftware" + radio + Number(0, 6);
        case 6:
            return "give Tessaly.VoiceServer" + radio + Quoted(OneOf(Servers));
        case 7:
            return "give Tessaly.VoiceChannel" + radio + Quoted(OneOf(Keys));
        case 8:
            return std::string("give VVL.Start = ") + boolean();
        case 9:
            return std::string("give VVL.Running = ") + boolean();
        case 10:
            return std::string("give VVL.RoomJoin = ") + boolean();
        case 11:
            return "give TSRemote.tsrConnect = " + Number(0, 1);
        case 12:
            return "give TSRemote.tsrGetServerInfo = " + Number(0, 1);
        case 13:
            return "give Tessaly.SessionHandle = " + Number(0, 2);
        case 14:
            return std::string("give VVL.Calibrate = (") + boolean() + ", 12.5, 30)";
        case 15:
            return "give VolumeControl." + OneOf(Flags) + " = " + boolean();
        default:
            return std::string("give Velmarc.LinkUp = ") + boolean();
    }
}

std::string LineMaker::OtherComputer() {
    const std::string id = Number(1, 12);
    switch (Pick(4)) {
        case 0:
            return "record " + id + R"( "VOICE" )" + Quoted(OneOf(Roles)) + " foreign";
        case 1:
            return "paramtext " + id + " 9 " + Quoted(OneOf(Servers));
        case 2:
            return "drop " + id;
        default:
            return "param " + id + ' ' + Number(0, 30) + ' ' + Number(0, 4);
    }
}

std::string LineMaker::Stimulus() {
    switch (Pick(16)) {
        case 0:
        case 1:
            return Answer();
        case 2:
            return OtherComputer();
        case 3:
        case 4:
        case 5:
            return UserAct();
        case 6:
        case 7:
        case 8:
            return SimulatorEvent();
        case 9:
        case 10:
        case 11:
            return NetworkEvent();
        case 12:
        case 13:
            return EngineEvent();
        case 14:
            return Passing();
        default:
            return LocalCapture();
    }
}

std::string LineMaker::UserAct() {
    switch (Pick(14)) {
        case 0:
        case 1:
        case 2:
            return "check " + OneOf(CheckBoxes) + ' ' + Number(0, 2);
        case 3:
            return "click " + OneOf(Options);
        case 4:
        case 5:
        case 6:
        case 7:
            return "click " + OneOf(ButtonsToClick);
        case 8:
            return "scroll " + OneOf(Sliders) + ' ' + Number(0, 120);
        case 9:
            return "node " + Quoted(OneOf(Nodes));
        case 10:
            return std::string("text ") + (Pick(2) == 0 ? "VelmarcServer " : "TessalyServer ") + Quoted(OneOf(Servers));
        case 11:
            return std::string("key ") + (Pick(2) == 0 ? "VelmarcServer " : "TessalyServer ") +
                   (Pick(4) == 0 ? "65" : "13");
        case 12:
            return std::string("state ") + Number(0, 2);
        default:
            return "text RWPath " + Quoted(OneOf(Devices));
    }
}

std::string LineMaker::SimulatorEvent() {
    const auto boolean = [this] { return Pick(4) == 0 ? "False" : "True"; };
    const std::string repeat = Pick(4) == 0 ? "True" : "False";
    switch (Pick(5)) {
        case 0:
        case 1: {
            const std::string key = Key();
            return "raise Velmarc.FSKeyDown(" + repeat + ", " + boolean() + ", " + key + ", " +
                   (Pick(3) == 0 ? Key() : key) + ")";
        }
        case 2:
            return "raise Velmarc.FSKeyUp(0, 0, " + Key() + R"(, ""))";
        case 3:
            return "raise Velmarc.FSJoyDown(0, 0, " + Button() + R"(, ""))";
        default:
            return "raise Velmarc.FSJoyUp(0, 0, " + Button() + R"(, ""))";
    }
}

std::string LineMaker::NetworkEvent() {
    switch (Pick(13)) {
        case 0:
        case 1:
            return "raise Tessaly.SessionOpened";
        case 2:
            return "raise Tessaly.SessionClosed";
        case 3:
            return "raise Tessaly.SessionStatusChanged";
        case 4:
            return "raise Tessaly.RadioChanged";
        case 5:
            return "raise Tessaly.RadioVoiceChanged(" + Number(0, 2) + ")";
        case 6:
            return "raise Tessaly.CallsignChanged";
        case 7:
            return "raise Tessaly.InterfaceAppeared(" + Number(1, 12) + ")";
        case 8:
            return "raise Tessaly.InterfaceRemoved(" + Number(1, 12) + ")";
        case 9:
            return "raise Tessaly.InterfaceChanged(" + Number(1, 12) + ")";
        case 10:
            return std::string("raise ") + (Pick(2) == 0 ? "Velmarc" : "Tessaly") + ".ServerFound(" +
                   Quoted(OneOf(Servers)) + ")";
        default:
            return "raise Tessaly.InterfaceParamChanged(" + Number(1, 8) + ", " + Number(0, 30) + ")";
    }
}

std::string LineMaker::EngineEvent() {
    static constexpr std::array<Text, 7> RoomEvents{
        "VVL_RoomJoinSucceed",  "VVL_RoomJoinFailed",   "VVL_RoomKicked",       "VVL_RoomLeft",
        "VVL_RoomAudioStarted", "VVL_RoomAudioStopped", "VVL_RoomStatusChanged"};
    switch (Pick(8)) {
        case 0:
            return "raise VVL_Started";
        case 1:
            return Pick(3) == 0 ? "raise VVL_Stopped" : "raise VVL_Started";
        case 2:
            return Pick(2) == 0 ? "raise VVL_AudioStarted" : "raise VVL_AudioStopped";
        case 3:
            return "raise " + OneOf(MixerEvents);
        default:
            return "raise " + OneOf(RoomEvents) + "(" + Number(0, 2) + ")";
    }
}

std::string LineMaker::Passing() {
    switch (Pick(5)) {
        case 0:
            return "advance " + std::to_string(Pick(256) * 20);
        case 1:
            return "clock " + std::to_string(static_cast<std::int64_t>(Pick(256) << 24) - 2147483648LL);
        case 2:
            return "message ST 1125 0 " + Number(512, 519);
        case 3:
            return Pick(8) == 0 ? "close 1" : "close 0";
        default:
            return "advance 1000";
    }
}

std::string LineMaker::LocalCapture() {
    switch (Pick(6)) {
        case 0:
            return "at 100 keydown " + std::to_string(RogerWilcoCode);
        case 1:
            return "at 100 keydown " + std::to_string(TeamSpeakCode);
        case 2:
            return "at 300 " + SimulatorEvent();
        case 3:
            return "click RWPTTKeySet";
        case 4:
            return "click TSPTTKeySet";
        default:
            return Pick(2) == 0 ? "click J2KKeySet" : "click K2KKeySet";
    }
}

}  // namespace orvelle::fuzz
