// Priority traffic: while a room marked as priority carries audio, the other rooms fall silent. The mode begins at once
// and ends by the timer alone, more than three seconds after the last mark.
#include "panel/FrmOrvelle.h"
#include "platform/EngineRecord.h"

namespace orvelle {

using namespace engine_record;

namespace {

constexpr Long HoldTime = 3000;  // ms

}  // namespace

// For a room whose flags changed, with the interface open, which it closes; then the outputs are worked out again, of
// all rooms if this one is on the air, else of this room alone.
void FrmOrvelle::EvaluatePriority(Long room) {
    const bool onAir = !ReceiveOff[room] && Tessaly.GetParam(RoomCarriesAudio + room) != 0;
    if (onAir && !PriorityActive)
        PriorityActive = AnyPriorityRoomOnAir();
    else
        MarkPriorityTraffic();
    Tessaly.CloseInterface();
    Tessaly_InterfaceParamChanged(OwnVVL, onAir ? AllRoomsOnSpeakers : RoomOnSpeakers + room);
}

bool FrmOrvelle::AnyPriorityRoomOnAir() {
    for (Long room = 0; room < Rooms; ++room)
        if (Tessaly.GetParam(RoomCarriesAudio + room) != 0 && RoomPriority[room] && !ReceiveOff[room]) return true;
    return false;
}

void FrmOrvelle::MarkPriorityTraffic() {
    PriorityStamp = Clock.GetTickCount();
    VVLPriorityTraffic.Enabled = true;
}

void FrmOrvelle::VVLPriorityTraffic_Timer() {
    if (TickDifference(Clock.GetTickCount(), PriorityStamp) <= HoldTime) return;
    if (PriorityActive && Tessaly.OpenInterface(OwnVVL)) {
        PriorityActive = AnyPriorityRoomOnAir();
        Tessaly.CloseInterface();
        Tessaly_InterfaceParamChanged(OwnVVL, AllRoomsOnSpeakers);
    }
    VVLPriorityTraffic.Enabled = false;
}

void FrmOrvelle::VVL_RoomAudioStarted(Long room) {
    if (!Tessaly.OpenInterface(OwnVVL)) return;
    Tessaly.SetParam(RoomCarriesAudio + room, 1);
    // Only the room that reports is looked at here.
    if (!PriorityActive && RoomPriority[room] && !ReceiveOff[room]) PriorityActive = true;
    Tessaly.CloseInterface();
    Tessaly_InterfaceParamChanged(OwnVVL, AllRoomsOnSpeakers);
}

void FrmOrvelle::VVL_RoomAudioStopped(Long room) {
    if (!Tessaly.OpenInterface(OwnVVL)) return;
    Tessaly.SetParam(RoomCarriesAudio + room, 0);
    Tessaly.CloseInterface();
    Tessaly_InterfaceParamChanged(OwnVVL, AllRoomsOnSpeakers);
    if (PriorityActive) MarkPriorityTraffic();
}

}  // namespace orvelle
