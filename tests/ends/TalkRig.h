// The real panel between the ends of the links and a voice engine that writes down what it is told of its rooms, on a
// loop driven by hand: both links up, the engine running with a room for each radio, F8 the talk key.
#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "adapters/embedded/NetworkLink.h"
#include "adapters/embedded/SimulatorLink.h"
#include "adapters/embedded/SoundDevices.h"
#include "adapters/embedded/VoiceEngine.h"
#include "adapters/ends/FrameworkEnd.h"
#include "adapters/ends/MicrophoneGuard.h"
#include "adapters/ends/SimulatorEnd.h"
#include "panel/FrmOrvelle.h"
#include "replay/World.h"
#include "tests/shared/HandLoop.h"
#include "tests/shared/MemoryValues.h"

namespace orvelle {

class WrittenDownEngine : public embedded::VoiceEngine {
public:
    using VoiceEngine::VoiceEngine;

    void RoomMute(Long room, bool mute) override {
        Write((mute ? "mute " : "open ") + std::to_string(room));
        VoiceEngine::RoomMute(room, mute);
    }
    bool RoomJoin(Long room, const std::string& clientName, const std::string& roomAddress) override {
        Write("join " + std::to_string(room) + " " + roomAddress + " as " + clientName);
        return VoiceEngine::RoomJoin(room, clientName, roomAddress);
    }
    void RoomLeave(Long room) override {
        Write("leave " + std::to_string(room));
        VoiceEngine::RoomLeave(room);
    }
    void ChannelOutput(Long room, Long output, bool on) override {
        Write("output " + std::to_string(room) + " " + std::to_string(output) + (on ? " on" : " off"));
        VoiceEngine::ChannelOutput(room, output, on);
    }

    std::vector<std::string> Calls;

private:
    void Write(const std::string& call) { Calls.push_back(call); }
};

enum class Engine { Guarded, Bare };

struct TalkRig {
    static constexpr const char* OtherServer = "elsewhere";

    explicit TalkRig(Engine kind) {
        SimulatorLines.Enter(OtherServer, OtherSimulator);
        if (kind == Engine::Guarded) Guard.emplace(VVL, Velmarc);
        for (const char* name : {"VVLEnable", "VVLFSKeyFSNotActivated"}) world.Store.Put("OrvelleCP", name, Long{1});
        world.Store.Put("OrvelleCP", "VVLFSKey", "F8");
        world.Store.Put("OrvelleCP", "VVLFSJoy", "Stick.Button 3");
        world.Store.Put("OrvelleCP", "VVLPrivFSKey", "F9");
        Panel.emplace(Outside());
        Panel->Show();
        Simulator.SetLink(LinkState::Up);
        Network.SetLink(LinkState::Up);
        Network.SetCallsign("ABC123");
        Network.SetStatus(ConnectedToMultiplayer);
        Network.SetReceive(SelectsBoth);
        Network.SetTransmit(SelectsCom1);
        Network.SetVoice(0, {VatsimVoice, "voice.example", "tower", "me", ""});
        Network.SetVoice(1, {VatsimVoice, "voice.example", "ground", "me", ""});
        Network.StartSession();
        Run();
        EXPECT_TRUE(Panel->Variables().VVLRunning);
    }

    void Run() { Loop.Run(); }
    void Press(const std::string& key) {
        Simulator.PressKey(key);
        Run();
    }
    void Release(const std::string& key) {
        Simulator.ReleaseKey(key);
        Run();
    }
    void Transmit(const std::string& selection) {
        Network.SetTransmit(selection);
        Run();
    }
    void Click(CommandButton& button) {
        button.UserClick();
        Run();
    }

    // The rooms that the microphone goes to: "02" for COM1 and the private one.
    std::string Open() const {
        std::string rooms;
        for (Long room = 0; room < Rooms; ++room)
            if (!VVL.Room(room).Muted) rooms += std::to_string(room);
        return rooms;
    }

private:
    std::ostringstream output;
    replay::World world{output};

public:
    HandLoop Loop;
    MemoryValues Values;
    embedded::SoundDevices Devices;
    embedded::SimulatorLink Simulator{Loop};
    embedded::NetworkLink Network{Loop};
    WrittenDownEngine VVL{Loop, Devices};
    embedded::SimulatorLink OtherSimulator{Loop};
    ends::LineTable<SimulatorLine> SimulatorLines{Simulator};
    const ends::LineTable<FrameworkLine> FrameworkLines{Network};
    ends::SimulatorEnd Velmarc{Loop, Values, SimulatorLines, {}};
    ends::FrameworkEnd Tessaly{Loop, Values, FrameworkLines};
    std::optional<ends::MicrophoneGuard> Guard;
    std::optional<FrmOrvelle> Panel;

private:
    Platform Outside() {
        const Platform scripted = world.Outside();
        return {
            .Velmarc = Velmarc,
            .Settings = scripted.Settings,
            .Registry = scripted.Registry,
            .Tessaly = Tessaly,
            .VVL = Guard ? static_cast<VoiceEngineControl&>(*Guard) : VVL,
            .VolumeControl = scripted.VolumeControl,
            .VolumeControlHP = scripted.VolumeControlHP,
            .TSRemote = scripted.TSRemote,
            .MediaPlayers = scripted.MediaPlayers,
            .Dialog = scripted.Dialog,
            .Messages = scripted.Messages,
            .Keyboard = scripted.Keyboard,
            .Queue = scripted.Queue,
            .Windows = scripted.Windows,
            .Clock = scripted.Clock,
            .Processes = scripted.Processes,
            .Program = scripted.Program,
            .Tray = scripted.Tray,
            .Urls = scripted.Urls,
        };
    }
};

}  // namespace orvelle
