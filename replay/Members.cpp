#include "replay/Members.h"

#include <algorithm>
#include <iterator>

#include "replay/LineError.h"

namespace orvelle::replay {

namespace {

constexpr Member Members[] = {
    {"App.PrevInstance", "", "b"},

    {"Velmarc.GetServer", "", "t"},
    {"Velmarc.LinkUp", "", "b"},
    {"Velmarc.IPAddress", "", "t"},
    {"Velmarc.ComputerName", "", "t"},
    {"Velmarc.DesktopName", "", "t"},
    {"Velmarc.IsLocalAddress", "t", "b"},
    {"Velmarc.GetSettingLong", "ttn", "n"},
    {"Velmarc.GetSettingString", "ttt", "t"},
    {"Velmarc.SettingListCount", "", "n"},
    {"Velmarc.SettingListItem", "n", "bt"},
    {"Velmarc.ReadRegistryString", "httt", "t"},
    {"Velmarc.ReadRegistryLong", "httn", "n"},
    {"Velmarc.ReadRegistryDefault", "ttt", "t"},

    {"Tessaly.GetServer", "", "t"},
    {"Tessaly.Embedded", "", "b"},
    {"Tessaly.LinkUp", "", "b"},
    {"Tessaly.ResolveServerAddress", "t", "t"},
    {"Tessaly.SessionHandle", "", "n"},
    {"Tessaly.OpenSession", "n", "b"},
    {"Tessaly.SessionStatus", "", "n"},
    {"Tessaly.SessionCallsign", "", "t"},
    {"Tessaly.ReceiveRadio", "", "t"},
    {"Tessaly.TransmitRadio", "", "t"},
    {"Tessaly.FreqCOM1", "", "t"},
    {"Tessaly.FreqCOM2", "", "t"},
    {"Tessaly.VoiceSoftware", "n", "n"},
    {"Tessaly.VoiceServer", "n", "t"},
    {"Tessaly.VoiceChannel", "n", "t"},
    {"Tessaly.VoiceLogin", "n", "t"},
    {"Tessaly.VoicePassword", "n", "t"},
    {"Tessaly.CreateInterface", "tt", "n"},
    {"Tessaly.OpenInterface", "n", "b"},
    {"Tessaly.InterfaceType", "", "t"},
    {"Tessaly.InterfaceRole", "", "t"},
    {"Tessaly.InterfaceIsLocal", "", "b"},
    {"Tessaly.GetParam", "n", "n"},
    {"Tessaly.GetParamText", "n", "t"},

    {"VVL.Running", "", "b"},
    {"VVL.Start", "n", "b"},
    {"VVL.InputDevices", "", "t"},
    {"VVL.OutputDevices", "", "t"},
    {"VVL.InputStatus", "", "b"},
    {"VVL.OutputStatus", "n", "b"},
    {"VVL.RoomJoin", "ntt", "b"},
    {"VVL.RoomStatus", "n", "t"},
    {"VVL.Calibrate", "nn", "brr"},

    {"VolumeControl.MicUnavailable", "", "b"},
    {"VolumeControl.MicMin", "", "n"},
    {"VolumeControl.MicMax", "", "n"},
    {"VolumeControl.MicStep", "", "n"},
    {"VolumeControl.MicVolume", "", "n"},
    {"VolumeControl.MasterUnavailable", "", "b"},
    {"VolumeControl.MasterMin", "", "n"},
    {"VolumeControl.MasterMax", "", "n"},
    {"VolumeControl.MasterStep", "", "n"},
    {"VolumeControl.MasterVolume", "", "n"},
    {"VolumeControl.WaveUnavailable", "", "b"},
    {"VolumeControl.WaveMin", "", "n"},
    {"VolumeControl.WaveMax", "", "n"},
    {"VolumeControl.WaveStep", "", "n"},
    {"VolumeControl.WaveVolume", "", "n"},

    {"VolumeControlHP.MicUnavailable", "", "b"},
    {"VolumeControlHP.MicMin", "", "n"},
    {"VolumeControlHP.MicMax", "", "n"},
    {"VolumeControlHP.MicStep", "", "n"},
    {"VolumeControlHP.MicVolume", "", "n"},
    {"VolumeControlHP.MasterUnavailable", "", "b"},
    {"VolumeControlHP.MasterMin", "", "n"},
    {"VolumeControlHP.MasterMax", "", "n"},
    {"VolumeControlHP.MasterStep", "", "n"},
    {"VolumeControlHP.MasterVolume", "", "n"},
    {"VolumeControlHP.WaveUnavailable", "", "b"},
    {"VolumeControlHP.WaveMin", "", "n"},
    {"VolumeControlHP.WaveMax", "", "n"},
    {"VolumeControlHP.WaveStep", "", "n"},
    {"VolumeControlHP.WaveVolume", "", "n"},

    {"TSRemote.tsrConnect", "t", "n"},
    {"TSRemote.tsrDisconnect", "", "n"},
    {"TSRemote.tsrGetServerInfo", "", "n"},
    {"TSRemote.tsrGetChannelInfoByName", "tn", "nn"},  // and the id of the channel found
    {"TSRemote.tsrSwitchChannelID", "nt", "n"},

    {"WMPCOM1.New", "", "b"},  // whether there is a player to create
    {"WMPCOM2.New", "", "b"},
    {"WMPCOM1.PlayState", "", "n"},
    {"WMPCOM2.PlayState", "", "n"},

    {"Dialog.FileName", "", "t"},  // what the user picks

    {"user32.MapVirtualKeyA", "nn", "n"},
    {"user32.GetKeyNameTextA", "nn", "t"},
    {"kernel32.GetTickCount", "", "n"},
    {"kernel32.WinExec", "tn", "n"},
    {"kernel32.GetModuleFileNameA", "", "t"},
    {"kernel32.GetCurrentDirectoryA", "n", "t"},

    {"wininet.InternetCombineUrlA", "ttn", "bt"},
    {"wininet.InternetCanonicalizeUrlA", "tn", "bt"},
    {"wininet.InternetCrackUrlA", "tn", "b"},
    {"wininet.InternetCreateUrlA", "n", "bt"},
    {"wininet.GetLastError", "", "n"},
};

}  // namespace

const Member& AnsweringMember(const std::string& name) {
    const auto found =
        std::find_if(std::begin(Members), std::end(Members), [&](const Member& member) { return name == member.Name; });
    if (found == std::end(Members)) throw LineError("nothing that can be told to answer is called " + name);
    return *found;
}

}  // namespace orvelle::replay
