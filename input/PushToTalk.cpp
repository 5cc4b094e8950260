// Push-to-talk of the voice engine: the microphone goes to the rooms of the selected radios, and the engine's record
// says which rooms transmit.
#include "panel/FrmOrvelle.h"
#include "platform/EngineRecord.h"

namespace orvelle {

using namespace engine_record;

void FrmOrvelle::VVLStartTransmitting() {
    if (!VVLRunning || !Tessaly.OpenInterface(OwnVVL)) return;
    TransmitToRoom(0);
    TransmitToRoom(1);
    UpdateInterfaceTransmits();
    Tessaly.CloseInterface();
}

void FrmOrvelle::VVLPrivStartTransmitting() {
    if (!VVLRunning || !Tessaly.OpenInterface(OwnVVL)) return;
    TransmitToRoom(PrivateRoom);
    UpdateInterfaceTransmits();
    Tessaly.CloseInterface();
}

void FrmOrvelle::VVLStopTransmitting() {
    if (!VVLRunning || !Tessaly.OpenInterface(OwnVVL)) return;
    Tessaly.SetParam(RoomTransmits + 0, 0);
    Tessaly.SetParam(RoomTransmits + 1, 0);
    VVL.RoomMute(0, true);
    VVL.RoomMute(1, true);
    UpdateInterfaceTransmits();
    Tessaly.CloseInterface();
}

void FrmOrvelle::VVLPrivStopTransmitting() {
    if (!VVLRunning || !Tessaly.OpenInterface(OwnVVL)) return;
    Tessaly.SetParam(RoomTransmits + PrivateRoom, 0);
    VVL.RoomMute(PrivateRoom, true);
    UpdateInterfaceTransmits();
    Tessaly.CloseInterface();
}

void FrmOrvelle::TransmitToRoom(Long room) {
    const bool off = TransmitOff[room];
    Tessaly.SetParam(RoomTransmits + room, off ? 0 : 1);
    VVL.RoomMute(room, off);
}

// The interface transmits while any room does.
void FrmOrvelle::UpdateInterfaceTransmits() {
    Tessaly.SetParam(Transmitting, 0);
    for (Long room = 0; room < Rooms; ++room) {
        if (Tessaly.GetParam(RoomTransmits + room) != 1) continue;
        Tessaly.SetParam(Transmitting, 1);
        break;
    }
}

// A push-to-talk that is held goes on under what changed.
void FrmOrvelle::ReapplyPushToTalk() {
    if (VVLTransmitting) VVLStartTransmitting();
    if (VVLPrivTransmitting) VVLPrivStartTransmitting();
}

}  // namespace orvelle
