// The voice duties that the panels of several computers share: each is one record, and whoever holds it answers.
#include "panel/FrmOrvelle.h"
#include "platform/EngineRecord.h"
#include "platform/VoiceRoles.h"

namespace orvelle {

using namespace engine_record;

std::array<VoiceRole, 5> FrmOrvelle::VoiceRoles() {
    return {{
        {RogerWilcoCom1Role, RWCom1, ForeignRWCom1, RWEnable, &optRWDriver, 1},
        {RogerWilcoCom2Role, RWCom2, ForeignRWCom2, RWEnable, &optRWDriver, 2},
        {TeamSpeakCom1Role, TSCom1, ForeignTSCom1, TSEnable, &optTSDriver, 1},
        {TeamSpeakCom2Role, TSCom2, ForeignTSCom2, TSEnable, &optTSDriver, 2},
        {EngineRole, OwnVVL, ForeignVVL, VVLEnable, nullptr, 0},
    }};
}

// Offers the roles that are wanted and free, and gives back those that are no longer wanted. A role that is held here
// is not given up because another computer claims it, too.
void FrmOrvelle::UpdateVoiceInterfaces() {
    for (const VoiceRole& role : VoiceRoles()) {
        if (role.Wanted()) {
            if (role.Foreign != 0 || role.Own != 0) continue;
            role.Own = Tessaly.CreateInterface(VoiceRecordType, role.Name);
            if (role.Own == 0) continue;
            if (&role.Own == &OwnVVL) {
                Tessaly.SetParam(FirstConstant, FirstConstantValue);
                Tessaly.SetParam(SecondConstant, SecondConstantValue);
                Tessaly.SetParam(EngineRuns, 0);
            }
            Tessaly.CloseInterface();
        } else if (role.Own != 0) {
            Tessaly.DeleteInterface(role.Own);
            role.Own = 0;
        }
    }
    RefreshStatus();
    ApplyVoiceRouting();
}

void FrmOrvelle::Tessaly_InterfaceAppeared(Long id) {
    if (!Tessaly.OpenInterface(id)) return;
    const std::string type = Tessaly.InterfaceType();
    const std::string name = Tessaly.InterfaceRole();
    const bool isLocal = Tessaly.InterfaceIsLocal();
    Tessaly.CloseInterface();
    if (type != VoiceRecordType) return;
    for (const VoiceRole& role : VoiceRoles())
        if (name == role.Name) (isLocal ? role.Own : role.Foreign) = id;
    UpdateVoiceInterfaces();
}

// No value is read: changes of parameters come as events of their own.
void FrmOrvelle::Tessaly_InterfaceChanged(Long id) {
    if (id == OwnVVL && VVLRunning && Tessaly.OpenInterface(OwnVVL)) Tessaly.CloseInterface();
}

void FrmOrvelle::Tessaly_InterfaceRemoved(Long id) {
    for (const VoiceRole& role : VoiceRoles()) {
        if (role.Own == id) role.Own = 0;
        if (role.Foreign == id) role.Foreign = 0;
    }
    UpdateVoiceInterfaces();
}

}  // namespace orvelle
