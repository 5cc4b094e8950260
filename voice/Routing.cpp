// Which voice software this computer runs at this moment, and the step from what ran to what shall run.
#include "panel/FrmOrvelle.h"
#include "voice/TuningSounds.h"

namespace orvelle {

namespace {

bool IsTeamSpeak(Long software) { return software == TeamSpeakHost || software == TeamSpeakUrl; }

}  // namespace

void FrmOrvelle::ApplyVoiceRouting() {
    PlayVoiceAtis();
    const VoiceRecord candidate = ChooseCandidate();
    if (candidate.Software == ActiveVoiceSoftware) {
        KeepVoiceSoftware(candidate);
    } else {
        StopVoiceSoftware(candidate);
        StartVoiceSoftware(candidate);
    }
}

// The engine needs no radio. A leading radio that wins takes the computer away from it; the other radio is asked only
// where both are received and nothing has won yet.
VoiceRecord FrmOrvelle::ChooseCandidate() {
    VoiceRecord candidate;
    if (VVLEnable.Value == 1 && OwnVVL != 0 && MultiplayerConnected) candidate.Software = VatsimVoice;
    if (TransmitSelect != SelectsCom1 && TransmitSelect != SelectsCom2) return candidate;

    const auto consider = [this, &candidate](Long radio, RadioTest test) {
        if (!RadioWins(radio, test)) return;
        const VoiceRecord& record = RadioVoice[radio];
        if (record.Software == VatsimVoice)
            candidate.Software = VatsimVoice;
        else
            candidate = record;
    };
    const Long leading = TransmitSelect == SelectsCom1 ? 0 : 1;
    consider(leading, RadioTest::Leading);
    if (ReceiveSelect == SelectsBoth && candidate.Software == NoVoice) consider(1 - leading, RadioTest::Other);
    return candidate;
}

// The transmit selector counts for the leading radio alone, as the other one is not selected for transmission.
bool FrmOrvelle::RadioWins(Long radio, RadioTest test) {
    const VoiceRecord& record = RadioVoice[radio];
    const auto driven = [radio, test](const OptionButton::Group& driver) {
        return (test == RadioTest::Leading && driver(0).Value) || driver(radio + 1).Value;
    };
    if (record.Server.empty()) return false;
    switch (record.Software) {
        case RogerWilco:
            return RWEnable.Value == 1 && driven(optRWDriver) && (radio == 0 ? RWCom1 : RWCom2) != 0;
        case TeamSpeakHost:
        case TeamSpeakUrl:
            return TSEnable.Value == 1 && driven(optTSDriver) && (radio == 0 ? TSCom1 : TSCom2) != 0;
        case VatsimVoice:
            return VVLEnable.Value == 1 && OwnVVL != 0 && MultiplayerConnected;
        default:
            return false;
    }
}

// TeamSpeak keeps running when it only changes the form of its address.
void FrmOrvelle::StopVoiceSoftware(const VoiceRecord& candidate) {
    switch (ActiveVoiceSoftware) {
        case RogerWilco:
            RWLeave();
            break;
        case TeamSpeakHost:
        case TeamSpeakUrl:
            if (!IsTeamSpeak(candidate.Software)) TSDisconnect();
            break;
        case VatsimVoice:
            VVLStop();
            break;
        default:
            break;
    }
    ActiveVoiceSoftware = NoVoice;
}

void FrmOrvelle::StartVoiceSoftware(const VoiceRecord& candidate) {
    switch (candidate.Software) {
        case NoVoice:
            PlayTuningSound(NoChannelSound);
            break;
        case RogerWilco:
            RWJoin(candidate);
            ActiveVoiceSoftware = RogerWilco;
            break;
        case TeamSpeakHost:
        case TeamSpeakUrl:
            TSConnectFresh(candidate);
            break;
        case VatsimVoice: {
            bool started = false;
            VVLStart(started);
            ActiveVoiceSoftware = started ? VatsimVoice : NoVoice;
            break;
        }
        default:
            break;
    }
}

void FrmOrvelle::KeepVoiceSoftware(const VoiceRecord& candidate) {
    switch (candidate.Software) {
        case RogerWilco:
            if (candidate.Server != RWServer || candidate.Channel != RWChannel) RWJoin(candidate);
            break;
        case TeamSpeakHost:
        case TeamSpeakUrl:
            if (candidate.Server != TSServer || candidate.Channel != TSChannel) TSRetune(candidate);
            break;
        case VatsimVoice:
            SyncVoiceRooms();
            break;
        default:
            break;
    }
}

void FrmOrvelle::PlayTuningSound(const char* sound) {
    if (VoiceTuningSound.Value == 1) Velmarc.PlaySound(sound);
}

}  // namespace orvelle
