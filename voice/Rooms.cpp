// The rooms of the voice engine follow the radios, and the engine's reports go into the record of the role.
#include "panel/FrmOrvelle.h"
#include "platform/EngineRecord.h"
#include "voice/TuningSounds.h"

namespace orvelle {

using namespace engine_record;

bool FrmOrvelle::RadioIsVatsimReady(Long room) const {
    const VoiceRecord& record = RadioVoice[room];
    return !record.Server.empty() && record.Software == VatsimVoice;
}

std::string FrmOrvelle::RoomAddress(Long room) const {
    const VoiceRecord& record = RadioVoice[room];
    return record.Server + "/" + record.Channel;
}

bool FrmOrvelle::EnterRadioRoom(Long room) {
    const std::string address = RoomAddress(room);
    const std::string name = Callsign + " (" + RadioVoice[room].LoginName + ")";
    VVL.RoomLeave(room);
    const bool accepted = VVL.RoomJoin(room, name, address);
    Tessaly.SetParamText(RoomAddressText + room, address);
    return accepted;
}

void FrmOrvelle::ForgetRadioRoom(Long room) {
    Tessaly.SetParamText(RoomAddressText + room, "");
    Tessaly.SetParam(RoomState + room, NotInRoom);
}

bool FrmOrvelle::EnterPrivateRoom(const std::string& address) {
    VVL.RoomLeave(PrivateRoom);
    return VVL.RoomJoin(PrivateRoom, Callsign, address);
}

void FrmOrvelle::SetJoinState(Long room, bool accepted) {
    Tessaly.SetParam(RoomState + room, accepted ? JoiningRoom : RoomJoinFailed);
}

void FrmOrvelle::JoinRoomAtStart(Long room) {
    if (room == PrivateRoom) {
        const std::string address = Tessaly.GetParamText(RoomAddressText + PrivateRoom);
        if (address.empty())
            Tessaly.SetParam(RoomState + PrivateRoom, NotInRoom);
        else
            SetJoinState(PrivateRoom, EnterPrivateRoom(address));
    } else if (RadioIsVatsimReady(room)) {
        SetJoinState(room, EnterRadioRoom(room));
    } else {
        ForgetRadioRoom(room);
    }
}

// The private room plays no part: it has no radio behind it.
void FrmOrvelle::SyncVoiceRooms() {
    if (!VVLRunning || !Tessaly.OpenInterface(OwnVVL)) return;
    for (Long room = 0; room < PrivateRoom; ++room) {
        if (!RadioIsVatsimReady(room)) {
            VVL.RoomLeave(room);
            ForgetRadioRoom(room);
        } else if (RoomAddress(room) != Tessaly.GetParamText(RoomAddressText + room)) {
            SetJoinState(room, EnterRadioRoom(room));
        }
    }
    Tessaly.CloseInterface();
}

void FrmOrvelle::ReportRoomState(Long room, const char* sound, Long state) {
    PlayTuningSound(sound);
    if (!Tessaly.OpenInterface(OwnVVL)) return;
    Tessaly.SetParam(RoomState + room, state);
    Tessaly.CloseInterface();
}

void FrmOrvelle::VVL_RoomJoinSucceed(Long room) { ReportRoomState(room, OnChannelSound, InRoom); }

void FrmOrvelle::VVL_RoomJoinFailed(Long room) { ReportRoomState(room, NoChannelSound, RoomJoinFailed); }

void FrmOrvelle::VVL_RoomKicked(Long room) { ReportRoomState(room, NoChannelSound, KickedFromRoom); }

void FrmOrvelle::VVL_RoomLeft(Long room) {
    PlayTuningSound(NoChannelSound);
    if (!Tessaly.OpenInterface(OwnVVL)) return;
    Tessaly.SetParam(RoomState + room, NotInRoom);
    Tessaly.SetParam(RoomCarriesAudio + room, 0);
    Tessaly.SetParam(RoomTransmits + room, 0);
    Tessaly.CloseInterface();
}

void FrmOrvelle::VVL_RoomStatusChanged(Long room) {
    if (!Tessaly.OpenInterface(OwnVVL)) return;
    Tessaly.SetParamText(RoomStatusText + room, VVL.RoomStatus(room));
    Tessaly.CloseInterface();
}

}  // namespace orvelle
