// Everything outside the logic, by reference: the names by which the controller, whose base this is, says what is
// outside. `main` builds the objects and passes them in, each by its name; they outlive the panel.
#pragma once

#include "platform/Clock.h"
#include "platform/Dialogs.h"
#include "platform/Keyboard.h"
#include "platform/MediaPlayer.h"
#include "platform/NotificationArea.h"
#include "platform/Processes.h"
#include "platform/Registry.h"
#include "platform/SettingsStore.h"
#include "platform/TSRemote.h"
#include "platform/Tessaly.h"
#include "platform/UrlFunctions.h"
#include "platform/Velmarc.h"
#include "platform/VoiceEngine.h"
#include "platform/VolumeControl.h"
#include "platform/Windows.h"

namespace orvelle {

struct Platform {
    VelmarcControl& Velmarc;
    SettingsStore& Settings;
    orvelle::Registry& Registry;
    TessalyControl& Tessaly;
    VoiceEngineControl& VVL;
    MixerControl& VolumeControl;
    MixerControl& VolumeControlHP;
    TeamSpeakRemote& TSRemote;
    MediaPlayerFactory& MediaPlayers;
    FileDialog& Dialog;
    MessageBox& Messages;
    orvelle::Keyboard& Keyboard;
    MessageQueue& Queue;
    orvelle::Windows& Windows;
    orvelle::Clock& Clock;
    orvelle::Processes& Processes;
    orvelle::Program& Program;
    NotificationArea& Tray;
    UrlFunctions& Urls;
};

}  // namespace orvelle
