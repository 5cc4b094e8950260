// What a change of a parameter of the engine's record does: rooms are entered and left, outputs switched, flags read.
// The handler is also called directly, to have the outputs worked out again.
#include "panel/FrmOrvelle.h"
#include "platform/EngineRecord.h"

namespace orvelle {

using namespace engine_record;

namespace {

// The room that `index` concerns, if it is one of the three numbers that begin at `first`; else -1.
Long RoomOf(Long index, Long first) { return index >= first && index < first + Rooms ? index - first : -1; }

}  // namespace

// Whatever happens, the handler ends with a closing call of its own, even where nothing was opened and where the branch
// has closed already.
void FrmOrvelle::Tessaly_InterfaceParamChanged(Long id, Long index) {
    if (id != OwnVVL || OwnVVL == 0 || !VVLRunning) return;
    if (RoomOf(index, RoomState) >= 0) {
        WithInterface([this, index] { RoomStateChanged(index - RoomState); });
    } else if (RoomOf(index, RoomOnSpeakers) >= 0) {
        WithInterface([this, index] { SetRoomOutputs(index - RoomOnSpeakers); });
    } else if (index == SpeakersHaveDevice || index == AllRoomsOnSpeakers) {
        WithInterface([this] {
            for (Long room = 0; room < Rooms; ++room) SetRoomOutputs(room);
        });
    } else if (index == RoomNotReceived + PrivateRoom) {
        PrivateReceptionChanged();
    } else if (index == RoomNotTransmitting + PrivateRoom) {
        PrivateTransmissionChanged();
    } else if (RoomOf(index, RoomNotReceived) >= 0 || RoomOf(index, RoomNotTransmitting) >= 0) {
        RadioChanged();
    } else if (RoomOf(index, RoomHasPriority) >= 0) {
        RoomPriorityChanged(index - RoomHasPriority);
    }
    Tessaly.CloseInterface();
}

void FrmOrvelle::WithInterface(const std::function<void()>& work) {
    if (!Tessaly.OpenInterface(OwnVVL)) return;
    work();
    Tessaly.CloseInterface();
}

// Another party asks for a leave by 0 and for a join by 1; any other value only tells.
void FrmOrvelle::RoomStateChanged(Long room) {
    const Long state = Tessaly.GetParam(RoomState + room);
    if (state == NotInRoom) VVL.RoomLeave(room);
    if (state != JoiningRoom) return;

    bool accepted = true;
    if (room == PrivateRoom) {
        const std::string address = Tessaly.GetParamText(RoomAddressText + PrivateRoom);
        if (address.empty())
            Tessaly.SetParam(RoomState + PrivateRoom, NotInRoom);
        else
            accepted = EnterPrivateRoom(address);
    } else if (RadioIsVatsimReady(room)) {
        accepted = EnterRadioRoom(room);
    } else {
        VVL.RoomLeave(room);
        ForgetRadioRoom(room);
    }
    if (!accepted) Tessaly.SetParam(RoomState + room, RoomJoinFailed);
}

bool FrmOrvelle::Heard(Long room) const { return !ReceiveOff[room] && (!PriorityActive || RoomPriority[room]); }

void FrmOrvelle::SetRoomOutputs(Long room) {
    VVL.ChannelOutput(room, Headset, Heard(room));
    const bool onSpeakers = Tessaly.GetParam(SpeakersHaveDevice) != 0 &&
                            (Tessaly.GetParam(AllRoomsOnSpeakers) != 0 || Tessaly.GetParam(RoomOnSpeakers + room) != 0);
    VVL.ChannelOutput(room, Speakers, onSpeakers && Heard(room));
}

void FrmOrvelle::PrivateReceptionChanged() {
    if (!Tessaly.OpenInterface(OwnVVL)) return;
    ReceiveOff[PrivateRoom] = Tessaly.GetParam(RoomNotReceived + PrivateRoom) != 0;
    EvaluatePriority(PrivateRoom);
}

void FrmOrvelle::PrivateTransmissionChanged() {
    if (!Tessaly.OpenInterface(OwnVVL)) return;
    TransmitOff[PrivateRoom] = Tessaly.GetParam(RoomNotTransmitting + PrivateRoom) != 0;
    Tessaly.CloseInterface();
    ReapplyPushToTalk();
}

void FrmOrvelle::RoomPriorityChanged(Long room) {
    if (!Tessaly.OpenInterface(OwnVVL)) return;
    RoomPriority[room] = Tessaly.GetParam(RoomHasPriority + room) != 0;
    EvaluatePriority(room);
}

}  // namespace orvelle
