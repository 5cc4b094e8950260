// Keys and buttons of the simulator's computer: what one event completes, starts and ends. Each test stands by itself;
// only a capture ends an event early. A press must equal the stored text, a key's release need only occur in it.
#include "input/Matching.h"
#include "panel/FrmOrvelle.h"

namespace orvelle {

void FrmOrvelle::Velmarc_FSJoyDown(const std::string& button) {
    if (CaptureJoyDown(button)) return;
    const bool isPrivate = VVLPrivEnable.Value == 1;
    StartPushToTalk(Equals(button, VVLFSJoy), Equals(button, isPrivate ? VVLPrivFSJoy : VVLFSJoy));
    PressVoiceKeys(Equals(button, TSFSJoy), Equals(button, RWFSJoy));
    FireJoyRows(false, button);
}

void FrmOrvelle::Velmarc_FSJoyUp(const std::string& button) {
    const bool isPrivate = VVLPrivEnable.Value == 1;
    StopPushToTalk(Equals(button, VVLFSJoy), Equals(button, isPrivate ? VVLPrivFSJoy : VVLFSJoy));
    ReleaseVoiceKeys(Equals(button, TSFSJoy), Equals(button, RWFSJoy));
    FireJoyRows(true, button);
}

void FrmOrvelle::Velmarc_FSKeyDown(bool repeat, bool fsActive, const std::string& key, const std::string& keySequence) {
    if (CaptureKeyDown(key, keySequence)) return;
    if (!repeat) {
        const bool isPrivate = VVLPrivEnable.Value == 1;
        if (fsActive || VVLFSKeyFSNotActivated.Value != 0)
            StartPushToTalk(Equals(keySequence, VVLFSKey), Equals(keySequence, isPrivate ? VVLPrivFSKey : VVLFSKey));
        if (fsActive) PressVoiceKeys(Equals(keySequence, TSFSKey), Equals(keySequence, RWFSKey));
    }
    FireKeyRows(repeat, fsActive, key, keySequence);
}

void FrmOrvelle::Velmarc_FSKeyUp(const std::string& key) {
    if (CaptureKeyUp()) return;
    const bool isPrivate = VVLPrivEnable.Value == 1;
    StopPushToTalk(Contains(VVLFSKey, key), Contains(isPrivate ? VVLPrivFSKey : VVLFSKey, key));
    ReleaseVoiceKeys(Contains(TSFSKey, key), Contains(RWFSKey, key));
    ReleaseKeyRows(key);
}

void FrmOrvelle::StartPushToTalk(bool radioMatches, bool privateMatches) {
    if (OwnVVL == 0 || VVLEnable.Value != 1 || ActiveVoiceSoftware != VatsimVoice || !VVLRunning) return;
    if (radioMatches && !VVLTransmitting) {
        VVLStartTransmitting();
        VVLTransmitting = true;
    }
    if (privateMatches && !VVLPrivTransmitting) {
        VVLPrivStartTransmitting();
        VVLPrivTransmitting = true;
    }
}

// Asks for no enable box and no software, so that what was started always ends.
void FrmOrvelle::StopPushToTalk(bool radioMatches, bool privateMatches) {
    if (radioMatches && VVLTransmitting) {
        VVLStopTransmitting();
        VVLTransmitting = false;
    }
    if (privateMatches && VVLPrivTransmitting) {
        VVLPrivStopTransmitting();
        VVLPrivTransmitting = false;
    }
}

void FrmOrvelle::PressVoiceKeys(bool teamSpeakMatches, bool rogerWilcoMatches) {
    const auto holdsRole = [this](Long com1, Long com2) {
        return (TransmitSelect == SelectsCom2 && com2 != 0) || (TransmitSelect == SelectsCom1 && com1 != 0);
    };
    if (teamSpeakMatches && TSEnable.Value == 1 &&
        (ActiveVoiceSoftware == TeamSpeakHost || ActiveVoiceSoftware == TeamSpeakUrl) && TSPTTKeyState != Down &&
        holdsRole(TSCom1, TSCom2)) {
        SendKeyStrokes(false, TSPTTKey);
        TSPTTKeyState = Down;
    }
    if (rogerWilcoMatches && RWEnable.Value == 1 && ActiveVoiceSoftware == RogerWilco && RWPTTKeyState != Down &&
        holdsRole(RWCom1, RWCom2)) {
        SendKeyStrokes(false, RWPTTKey);
        RWPTTKeyState = Down;
    }
}

void FrmOrvelle::ReleaseVoiceKeys(bool teamSpeakMatches, bool rogerWilcoMatches) {
    if (teamSpeakMatches && TSPTTKeyState == Down) {
        SendKeyStrokes(true, TSPTTKey);
        TSPTTKeyState = "";
    }
    if (rogerWilcoMatches && RWPTTKeyState == Down) {
        SendKeyStrokes(true, RWPTTKey);
        RWPTTKeyState = "";
    }
}

}  // namespace orvelle
