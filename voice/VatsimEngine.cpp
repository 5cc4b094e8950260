// What happens when the voice engine reports that it runs or stopped: everything is set on it in order, and the record
// of the role says so.
#include "panel/FrmOrvelle.h"
#include "panel/Texts.h"
#include "platform/EngineRecord.h"

namespace orvelle {

using namespace engine_record;

void FrmOrvelle::VVL_Started() {
    VVLCalibrate.Enabled = false;
    VVLStatusBar.SetPanelText(2, "Engine Running");
    TimerDeviceStatus.Enabled = true;
    VVLMicrophoneStatus.Visible = true;
    VVLHeadsetStatus.Visible = true;
    VVLSpeakersStatus.Visible = VVLSpeakers.ListIndex() != 0;

    if (!Tessaly.OpenInterface(OwnVVL)) return;
    Tessaly.SetParam(EngineRuns, 1);
    Tessaly.SetParam(AudioRuns, 0);
    Tessaly.SetParam(Transmitting, 0);
    Tessaly.SetParam(AllRoomsOnSpeakers, 0);
    SetEngineDevices();

    PriorityActive = false;
    TransmitOff.Fill(false);
    ReceiveOff.Fill(false);
    RoomPriority.Fill(false);
    // Nothing is heard until the flags are evaluated at the end.
    for (Long room = 0; room < Rooms; ++room)
        for (const Long output : {Headset, Speakers}) VVL.ChannelOutput(room, output, false);
    for (Long room = 0; room < Rooms; ++room) JoinRoomAtStart(room);
    Tessaly.CloseInterface();

    RadioChanged();
    for (const Long index : {RoomHasPriority + 0, RoomHasPriority + 1, RoomHasPriority + 2, RoomNotReceived + 2,
                             RoomNotTransmitting + 2, RoomOnSpeakers + 2})
        Tessaly_InterfaceParamChanged(OwnVVL, index);
}

// Output 0 is the headset. Output 1 is the speakers, or the headset once more where there are none.
void FrmOrvelle::SetEngineDevices() {
    VVL.InputSquelch(LeadingNumber(GetSettingString("VVLInputSquelch", "50.0")));
    VVL.OutputSquelch(LeadingNumber(GetSettingString("VVLOutputSquelch", "50.0")));
    VVL.InputDevice(VVLMicrophone.ListIndex() - 1);
    VVL.OutputDevice(Headset, VVLHeadset.ListIndex() - 1);
    VVL.OutputVolume(Headset, VVLOut.Value);
    VVL.SignalVolume(Headset, VVLSignal.Value);
    if (VVLSpeakers.ListIndex() == 0) {
        VVL.OutputDevice(Speakers, VVLHeadset.ListIndex() - 1);
        Tessaly.SetParam(SpeakersHaveDevice, 0);
        VVL.OutputVolume(Speakers, VVLOut.Value);
    } else {
        VVL.OutputDevice(Speakers, VVLSpeakers.ListIndex() - 2);
        Tessaly.SetParam(SpeakersHaveDevice, 1);
        VVL.OutputVolume(Speakers, VVLOutHP.Value);
    }
    VVL.SignalVolume(Speakers, VVLSignal.Value);
    VVL.OutputFilter(Headset, VVLFilter.Value == 1);
    VVL.OutputFilter(Speakers, VVLFilter.Value == 1);
}

void FrmOrvelle::VVL_Stopped() {
    VVLCalibrate.Enabled = true;
    VVLStatusBar.SetPanelText(2, "Engine off");
    TimerDeviceStatus.Enabled = false;
    VVLMicrophoneStatus.Visible = false;
    VVLHeadsetStatus.Visible = false;
    VVLSpeakersStatus.Visible = false;

    if (!Tessaly.OpenInterface(OwnVVL)) return;
    Tessaly.SetParam(EngineRuns, 0);
    Tessaly.SetParam(AudioRuns, 0);
    Tessaly.SetParam(Transmitting, 0);
    for (Long room = 0; room < Rooms; ++room) {
        Tessaly.SetParam(RoomCarriesAudio + room, 0);
        Tessaly.SetParam(RoomTransmits + room, 0);
        Tessaly.SetParam(RoomState + room, NotInRoom);
    }
    Tessaly.CloseInterface();
}

void FrmOrvelle::VVL_AudioStarted() {
    if (!Tessaly.OpenInterface(OwnVVL)) return;
    Tessaly.SetParam(AudioRuns, 1);
    Tessaly.CloseInterface();
}

void FrmOrvelle::VVL_AudioStopped() {
    if (!Tessaly.OpenInterface(OwnVVL)) return;
    Tessaly.SetParam(AudioRuns, 0);
    Tessaly.CloseInterface();
}

void FrmOrvelle::VVLEnable_Click() {
    SaveSettingLong("VVLEnable", VVLEnable.Value);
    UpdateVoiceInterfaces();
    ApplyVoiceRouting();
}

}  // namespace orvelle
