// Recorded airfield broadcasts: one media player for each radio, beside whatever voice software runs. Everything is
// behind the guard of both players, which are absent after start-up.
#include "panel/FrmOrvelle.h"

namespace orvelle {

namespace {

constexpr Long Stopped = 0;

}  // namespace

// One source never plays twice: it is COM1's.
void FrmOrvelle::PlayVoiceAtis() {
    if (!WMPCOM1 || !WMPCOM2) return;
    const auto isDue = [this](Long radio) {
        return VoiceATISEnable.Value != 0 && RadioVoice[radio].Software == VoiceAtis;
    };
    if (isDue(0))
        PlayRecording(*WMPCOM1, 0, SelectsCom1);
    else
        StopRecording(*WMPCOM1, 0);
    if (RadioVoice[1].Server != RadioVoice[0].Server && isDue(1))
        PlayRecording(*WMPCOM2, 1, SelectsCom2);
    else
        StopRecording(*WMPCOM2, 1);
}

void FrmOrvelle::PlayRecording(MediaPlayer& player, Long radio, const std::string& receive) {
    if (RadioVoice[radio].Server != ATISSource[radio]) {
        ATISSource[radio] = RadioVoice[radio].Server;
        player.AutoRewind(true);
        player.Open(ATISSource[radio]);
    }
    player.Mute(ReceiveSelect != receive && ReceiveSelect != SelectsBoth);
}

void FrmOrvelle::StopRecording(MediaPlayer& player, Long radio) {
    ATISSource[radio] = "";
    player.Stop();
}

// A recording that ended is opened again by the routing, once its source is forgotten.
void FrmOrvelle::Timer1_Timer() {
    if (!WMPCOM1 || !WMPCOM2) return;
    for (const Long radio : {0, 1}) {
        MediaPlayer& player = radio == 0 ? *WMPCOM1 : *WMPCOM2;
        if (player.PlayState() != Stopped || ATISSource[radio].empty()) continue;
        ATISSource[radio] = "";
        ApplyVoiceRouting();
    }
}

void FrmOrvelle::SetPlayerVolumes() {
    if (!WMPCOM1 || !WMPCOM2) return;
    WMPCOM1->Volume(VoiceATISVolume.Value);
    WMPCOM2->Volume(VoiceATISVolume.Value);
}

void FrmOrvelle::VoiceATISEnable_Click() {
    SaveSettingLong("VoiceATISEnable", VoiceATISEnable.Value);
    ApplyVoiceRouting();
}

void FrmOrvelle::VoiceATISVolume_Change() {
    SaveSettingLong("VoiceATISVolume", VoiceATISVolume.Value);
    SetPlayerVolumes();
}

}  // namespace orvelle
