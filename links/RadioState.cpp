// The panel's copy of the session and its radio set: read afresh at the framework's events, shown on the overview, and
// handed to the voice routing.
#include "panel/FrmOrvelle.h"
#include "platform/EngineRecord.h"

namespace orvelle {

namespace {

constexpr Long CurrentSession = 0;

// Whether a selection leaves a radio out.
bool LeavesOut(const std::string& selection, Long radio) {
    return selection != SelectsBoth && selection != (radio == 0 ? SelectsCom1 : SelectsCom2);
}

void ShowSoftware(Label& label, Long software) {
    switch (software) {
        case NoVoice:
            label.Caption = "";
            break;
        case RogerWilco:
            label.Caption = "RogerWilco";
            break;
        case TeamSpeakHost:
        case TeamSpeakUrl:
            label.Caption = "TeamSpeak";
            break;
        case VatsimVoice:
            label.Caption = "VATSIM";
            break;
        case VoiceAtis:
            label.Caption = "VoiceATIS";
            break;
        default:
            break;
    }
}

std::string Comment(const VoiceRecord& record) {
    return record.Channel.empty() ? record.Server : record.Server + "/" + record.Channel;
}

}  // namespace

void FrmOrvelle::Tessaly_SessionOpened() {
    SessionHandle = Tessaly.SessionHandle();
    if (!Tessaly.OpenSession(SessionHandle)) return;
    MultiplayerConnected = Tessaly.SessionStatus() == ConnectedToMultiplayer;
    Callsign = Tessaly.SessionCallsign();
    ReadVoiceRecord(0);
    ReadVoiceRecord(1);
    Tessaly.CloseSession();
    RefreshStatus();
    RadioChanged();
    ApplyVoiceRouting();
}

// The lamps, the flags and the labels of software and comment stay until the next change of the radios.
void FrmOrvelle::Tessaly_SessionClosed() {
    SessionHandle = 0;
    FreqCOM1.Caption = "";
    FreqCOM2.Caption = "";
    ReceiveSelect = SelectsNone;
    TransmitSelect = SelectsNone;
    RadioVoice.Fill(VoiceRecord{});
    MultiplayerConnected = false;
    RefreshStatus();
    ApplyVoiceRouting();
}

void FrmOrvelle::Tessaly_SessionStatusChanged() {
    if (!Tessaly.OpenSession(CurrentSession)) return;
    MultiplayerConnected = Tessaly.SessionStatus() == ConnectedToMultiplayer;
    Tessaly.CloseSession();
    RefreshStatus();
    ApplyVoiceRouting();
}

// Voice software that already runs under the old callsign is not touched.
void FrmOrvelle::Tessaly_CallsignChanged() {
    if (!Tessaly.OpenSession(CurrentSession)) return;
    Callsign = Tessaly.SessionCallsign();
    Tessaly.CloseSession();
}

void FrmOrvelle::Tessaly_RadioVoiceChanged(Long radio) {
    if (!Tessaly.OpenSession(CurrentSession)) return;
    ReadVoiceRecord(radio == 0 ? 0 : 1);
    Tessaly.CloseSession();
    RadioChanged();
    ApplyVoiceRouting();
}

void FrmOrvelle::ReadVoiceRecord(Long radio) {
    VoiceRecord& record = RadioVoice[radio];
    record.Software = Tessaly.VoiceSoftware(radio);
    record.Server = Tessaly.VoiceServer(radio);
    record.Channel = Tessaly.VoiceChannel(radio);
    record.LoginName = Tessaly.VoiceLogin(radio);
    record.Password = Tessaly.VoicePassword(radio);
}

void FrmOrvelle::RadioChanged() {
    ReadRadioSelections();
    ShowRadios();
    ApplyVoiceRouting();
    Tessaly_InterfaceParamChanged(OwnVVL, engine_record::RoomOnSpeakers + 0);
    Tessaly_InterfaceParamChanged(OwnVVL, engine_record::RoomOnSpeakers + 1);
    ReapplyPushToTalk();
}

// Without a session no radio is received and none transmits; frequencies and selections keep their values.
void FrmOrvelle::ReadRadioSelections() {
    if (!Tessaly.OpenSession(CurrentSession)) {
        for (const Long radio : {0, 1}) ReceiveOff[radio] = TransmitOff[radio] = true;
        return;
    }
    FreqCOM1.Caption = Tessaly.FreqCOM1();
    FreqCOM2.Caption = Tessaly.FreqCOM2();
    ReceiveSelect = Tessaly.ReceiveRadio();
    TransmitSelect = Tessaly.TransmitRadio();
    Tessaly.CloseSession();

    const bool isOpen = Tessaly.OpenInterface(OwnVVL);
    const auto flag = [this, isOpen](Long parameter) { return isOpen && Tessaly.GetParam(parameter) != 0; };
    for (const Long radio : {0, 1})
        ReceiveOff[radio] = LeavesOut(ReceiveSelect, radio) || flag(engine_record::RoomNotReceived + radio);
    for (const Long radio : {0, 1})
        TransmitOff[radio] = LeavesOut(TransmitSelect, radio) || flag(engine_record::RoomNotTransmitting + radio);
    if (isOpen) Tessaly.CloseInterface();
}

void FrmOrvelle::ShowRadios() {
    RecvCOM1.Visible = !ReceiveOff[0];
    RecvCOM2.Visible = !ReceiveOff[1];
    TransmitCOM1.Visible = !TransmitOff[0];
    TransmitCOM2.Visible = !TransmitOff[1];
    ShowSoftware(SoftwareCOM1, RadioVoice[0].Software);
    ShowSoftware(SoftwareCOM2, RadioVoice[1].Software);
    CommentCOM1.Caption = Comment(RadioVoice[0]);
    CommentCOM2.Caption = Comment(RadioVoice[1]);
}

}  // namespace orvelle
