// Everything outside the panel, scripted: one peer for each interface, the virtual clock they share, and what the
// scenario told them. Nothing here knows the controller.
#pragma once

#include <set>
#include <string>

#include "platform/Platform.h"
#include "replay/Answers.h"
#include "replay/Transcript.h"
#include "replay/VirtualTime.h"
#include "replay/peers/DialogPeer.h"
#include "replay/peers/KernelPeer.h"
#include "replay/peers/KeyboardPeer.h"
#include "replay/peers/MediaPlayerPeer.h"
#include "replay/peers/MessageQueuePeer.h"
#include "replay/peers/MixerPeer.h"
#include "replay/peers/NotificationAreaPeer.h"
#include "replay/peers/RegistryPeer.h"
#include "replay/peers/StorePeer.h"
#include "replay/peers/TSRemotePeer.h"
#include "replay/peers/TessalyPeer.h"
#include "replay/peers/UrlPeer.h"
#include "replay/peers/VelmarcPeer.h"
#include "replay/peers/VoiceEnginePeer.h"
#include "replay/peers/WindowsPeer.h"

namespace orvelle::replay {

struct World {
    explicit World(std::ostream& output);
    ~World();

    Platform Outside() { return Outside(TSRemote); }
    // With another remote control of TeamSpeak, and another voice engine, than the scripted ones.
    Platform Outside(TeamSpeakRemote& teamSpeak) { return Outside(teamSpeak, VVL); }
    Platform Outside(TeamSpeakRemote& teamSpeak, VoiceEngineControl& engine) {
        return {
            .Velmarc = Velmarc,
            .Settings = Store,
            .Registry = Registry,
            .Tessaly = Tessaly,
            .VVL = engine,
            .VolumeControl = VolumeControl,
            .VolumeControlHP = VolumeControlHP,
            .TSRemote = teamSpeak,
            .MediaPlayers = Players,
            .Dialog = Dialog,
            .Messages = Messages,
            .Keyboard = Keyboard,
            .Queue = Queue,
            .Windows = Windows,
            .Clock = Kernel,
            .Processes = Kernel,
            .Program = App,
            .Tray = Tray,
            .Urls = Urls,
        };
    }

    Transcript Output;
    Answers Given;
    VirtualTime Time;
    std::set<std::string> MissingIcons;

    VelmarcPeer Velmarc{"Velmarc", Output, Given};
    StorePeer Store{"Velmarc", Output, Given};
    RegistryPeer Registry{"Velmarc", Output, Given};
    TessalyPeer Tessaly{"Tessaly", Output, Given};
    VoiceEnginePeer VVL{"VVL", Output, Given};
    MixerPeer VolumeControl{"VolumeControl", Output, Given};
    MixerPeer VolumeControlHP{"VolumeControlHP", Output, Given};
    TSRemotePeer TSRemote{"TSRemote", Output, Given};
    MediaPlayerFactoryPeer Players{Output, Given};
    DialogPeer Dialog{"Dialog", Output, Given};
    MessageBoxPeer Messages{Output};
    KeyboardPeer Keyboard{"user32", Output, Given};
    WindowsPeer Windows{"user32", Output, Given};
    MessageQueuePeer Queue{Output, Time, Windows};
    KernelPeer Kernel{Output, Given, Time};
    ProgramPeer App{"App", Output, Given};
    NotificationAreaPeer Tray{"shell32", Output, Given};
    UrlPeer Urls{"wininet", Output, Given};
};

}  // namespace orvelle::replay
