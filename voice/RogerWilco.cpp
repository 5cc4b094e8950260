// RogerWilco: each command is a separate start of the program's file, and the running instance does the work. Whether a
// command succeeded is never learnt.
#include "panel/FrmOrvelle.h"
#include "platform/RegistryPaths.h"
#include "voice/TuningSounds.h"

namespace orvelle {

void FrmOrvelle::RWLeave() {
    Processes.WinExec(RWPath.Text() + " /leave ", ShowMinimisedInactive);
    RWServer = "";
    RWChannel = "";
}

void FrmOrvelle::RWJoin(const VoiceRecord& candidate) {
    Processes.WinExec(RWPath.Text() + " /join1 " + candidate.Server + "/" + candidate.Channel +
                          " /priority high /netspeed 2 /callsign " + Callsign,
                      ShowMinimisedInactive);
    RWServer = candidate.Server;
    RWChannel = candidate.Channel;
    PlayTuningSound(OnChannelSound);
}

void FrmOrvelle::RWEnable_Click() {
    SaveSettingLong("RWEnable", RWEnable.Value);
    UpdateVoiceInterfaces();
    ApplyVoiceRouting();
}

void FrmOrvelle::optRWDriver_Click(Long index) {
    SaveSettingLong("RWDriven", index);
    UpdateVoiceInterfaces();
}

void FrmOrvelle::RWRescan_Click() {
    SaveSettingString("RWPath", Registry.ReadRegistryDefault(RogerWilcoPath, "", ""));
    RWPath.Text = GetSettingString("RWPath", "");
}

}  // namespace orvelle
