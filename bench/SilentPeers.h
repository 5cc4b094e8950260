// Everything outside the logic, doing nothing: no link, no device, an empty store, and one session whose radios are
// tuned to nothing. What is measured against it is the logic's own cost. Each benchmark owns its peers.
#pragma once

#include <cstdlib>
#include <memory>
#include <string>

#include "platform/Platform.h"

namespace orvelle {

class SilentVelmarc : public VelmarcControl {
public:
    void SetServer(const std::string&) override {}
    std::string GetServer() override { return AutomaticServer; }
    bool LinkUp() override { return false; }
    void ClientReady() override {}
    std::string IPAddress() override { return ""; }
    std::string ComputerName() override { return ""; }
    std::string DesktopName() override { return ""; }
    bool IsLocalAddress(const std::string&) override { return false; }
    void PlaySound(const std::string&) override {}
};

class SilentStore : public SettingsStore {
public:
    Long GetSettingLong(const std::string&, const std::string&, Long defaultValue) override { return defaultValue; }
    std::string GetSettingString(const std::string&, const std::string&, const std::string& defaultValue) override {
        return defaultValue;
    }
    void SaveSettingLong(const std::string&, const std::string&, Long) override {}
    void SaveSettingString(const std::string&, const std::string&, const std::string&) override {}
    void DeleteSettingSection(const std::string&) override {}
    void OpenSettingList(const std::string&) override {}
    Long SettingListCount() override { return 0; }
    bool SettingListItem(Long, std::string&) override { return false; }
    void CloseSettingList() override {}
    void HandlerEnded() override {}
};

class SilentRegistry : public Registry {
public:
    void WriteRegistryString(Long, const std::string&, const std::string&, const std::string&) override {}
    std::string ReadRegistryString(Long, const std::string&, const std::string&,
                                   const std::string& defaultValue) override {
        return defaultValue;
    }
    void DeleteRegistryValue(Long, const std::string&, const std::string&) override {}
    void WriteRegistryLong(Long, const std::string&, const std::string&, Long) override {}
    Long ReadRegistryLong(Long, const std::string&, const std::string&, Long defaultValue) override {
        return defaultValue;
    }
    std::string ReadRegistryDefault(const std::string&, const std::string&, const std::string& defaultValue) override {
        return defaultValue;
    }
};

class SilentTessaly : public TessalyControl {
public:
    std::string TransmitSelection = SelectsCom1;  // a benchmark turns the selector

    void SetServer(const std::string&) override {}
    std::string GetServer() override { return AutomaticServer; }
    bool Embedded() override { return false; }
    void Embedded(Long) override {}
    bool LinkUp() override { return false; }
    void LinkPrepare() override {}
    void LinkStart() override {}
    void LinkStarted() override {}
    void LinkStop() override {}
    std::string ResolveServerAddress(const std::string&) override { return ""; }

    Long SessionHandle() override { return 1; }
    bool OpenSession(Long) override { return true; }
    void CloseSession() override {}
    Long SessionStatus() override { return 1; }
    std::string SessionCallsign() override { return ""; }
    std::string ReceiveRadio() override { return SelectsBoth; }
    std::string TransmitRadio() override { return TransmitSelection; }
    std::string FreqCOM1() override { return ""; }
    std::string FreqCOM2() override { return ""; }
    Long VoiceSoftware(Long) override { return NoVoice; }
    std::string VoiceServer(Long) override { return ""; }
    std::string VoiceChannel(Long) override { return ""; }
    std::string VoiceLogin(Long) override { return ""; }
    std::string VoicePassword(Long) override { return ""; }

    Long CreateInterface(const std::string&, const std::string&) override { return 0; }
    void DeleteInterface(Long) override {}
    bool OpenInterface(Long) override { return false; }
    void CloseInterface() override {}
    std::string InterfaceType() override { return ""; }
    std::string InterfaceRole() override { return ""; }
    bool InterfaceIsLocal() override { return false; }
    Long GetParam(Long) override { return 0; }
    void SetParam(Long, Long) override {}
    std::string GetParamText(Long) override { return ""; }
    void SetParamText(Long, const std::string&) override {}
};

class SilentEngine : public VoiceEngineControl {
public:
    bool Running() override { return false; }
    bool Start(Long) override { return false; }
    void Stop() override {}
    void InputSquelch(double) override {}
    void OutputSquelch(double) override {}
    std::string InputDevices() override { return ""; }
    std::string OutputDevices() override { return ""; }
    void InputDevice(Long) override {}
    void OutputDevice(Long, Long) override {}
    void OutputVolume(Long, Long) override {}
    void SignalVolume(Long, Long) override {}
    void OutputFilter(Long, bool) override {}
    void ChannelOutput(Long, Long, bool) override {}
    bool InputStatus() override { return false; }
    bool OutputStatus(Long) override { return false; }
    bool RoomJoin(Long, const std::string&, const std::string&) override { return false; }
    void RoomLeave(Long) override {}
    void RoomMute(Long, bool) override {}
    std::string RoomStatus(Long) override { return ""; }
    bool Calibrate(Long, Long, float&, float&) override { return false; }
};

class SilentMixer : public MixerControl {
public:
    void InputDevice(const std::string&) override {}
    void OutputDevice(const std::string&) override {}
    void Open() override {}
    void Close() override {}
    bool MicUnavailable() override { return true; }
    Integer MicMin() override { return 0; }
    Integer MicMax() override { return 0; }
    Integer MicStep() override { return 0; }
    Integer MicVolume() override { return 0; }
    void MicVolume(Long) override {}
    bool MasterUnavailable() override { return true; }
    Integer MasterMin() override { return 0; }
    Integer MasterMax() override { return 0; }
    Integer MasterStep() override { return 0; }
    Integer MasterVolume() override { return 0; }
    void MasterVolume(Long) override {}
    bool WaveUnavailable() override { return true; }
    Integer WaveMin() override { return 0; }
    Integer WaveMax() override { return 0; }
    Integer WaveStep() override { return 0; }
    Integer WaveVolume() override { return 0; }
    void WaveVolume(Long) override {}
};

class SilentRemote : public TeamSpeakRemote {
public:
    Integer tsrConnect(const std::string&) override { return 1; }
    Integer tsrDisconnect() override { return 1; }
    Integer tsrGetServerInfo(TS_SERVER_INFO&) override { return 1; }
    Integer tsrGetChannelInfoByName(const std::string&, TS_CHANNEL_INFO&, TS_PLAYER_INFO&, Long&) override { return 1; }
    Integer tsrSwitchChannelID(Long, const std::string&) override { return 1; }
};

class SilentPlayer : public MediaPlayer {
public:
    void AutoRewind(bool) override {}
    void Open(const std::string&) override {}
    void Stop() override {}
    void Mute(bool) override {}
    void Volume(Long) override {}
    Long PlayState() override { return 0; }
};

class SilentPlayerFactory : public MediaPlayerFactory {
public:
    std::unique_ptr<MediaPlayer> New(Long) override { return std::make_unique<SilentPlayer>(); }
};

class SilentDialog : public FileDialog {
public:
    void DialogTitle(const std::string&) override {}
    void Flags(Long) override {}
    void FileName(const std::string&) override {}
    std::string FileName() override { return ""; }
    void ShowOpen() override {}
};

class SilentMessages : public MessageBox {
public:
    void MsgBox(const std::string&) override {}
};

class SilentKeyboard : public Keyboard {
public:
    void keybd_event(Long, Long, Long, Long) override {}
    Long MapVirtualKeyA(Long, Long) override { return 0; }
    std::string GetKeyNameTextA(Long, Long) override { return ""; }
};

class SilentQueue : public MessageQueue {
public:
    void DoEvents() override {}
    bool PeekMessageA(WindowMessage&, Long) override { return false; }
    void TranslateMessage(const WindowMessage&) override {}
    void DispatchMessageA(const WindowMessage&) override {}
};

class SilentWindows : public Windows {
public:
    void SetCapture(Control&) override {}
    void ReleaseCapture() override {}
    void SetWindowPos(Control&, Long, Long, Long, Long, Long, Long) override {}
    Rectangle GetWindowRect(Control&) override { return {}; }
    Rectangle GetClientRect(Control&) override { return {}; }
    std::intptr_t SetWindowLongA(Control&, Long, std::intptr_t) override { return 0; }
    std::intptr_t GetWindowLongA(Control&, Long) override { return 0; }
    Long CallWindowProcA(std::intptr_t, Control&, Long, Long, Long) override { return 0; }
    void DrawEdge(Control&, Long, Long) override {}
};

class SilentClock : public Clock {
public:
    Long GetTickCount() override { return 0; }
    void Sleep(Long) override {}
};

class SilentProcesses : public Processes {
public:
    Long WinExec(const std::string&, Long) override { return 32; }
    std::string GetModuleFileNameA() override { return ""; }
    std::string GetCurrentDirectoryA(Long) override { return ""; }
    void SetCurrentDirectoryA(const std::string&) override {}
};

class SilentProgram : public Program {
public:
    bool PrevInstance() override { return false; }
    [[noreturn]] void End() override { std::_Exit(0); }
};

class SilentTray : public NotificationArea {
public:
    void Shell_NotifyIconA(Long, const NotifyIconData&) override {}
};

class SilentUrls : public UrlFunctions {
public:
    bool InternetCombineUrlA(const std::string&, const std::string&, std::string&, Long&, Long) override {
        return false;
    }
    bool InternetCanonicalizeUrlA(const std::string&, std::string&, Long&, Long) override { return false; }
    bool InternetCrackUrlA(const std::string&, Long, URL_COMPONENTS&) override { return false; }
    bool InternetCreateUrlA(const URL_COMPONENTS&, Long, std::string&, Long&) override { return false; }
    Long GetLastError() override { return 0; }
};

struct SilentPeers {
    SilentVelmarc Velmarc;
    SilentStore Settings;
    SilentRegistry Registry;
    SilentTessaly Tessaly;
    SilentEngine Engine;
    SilentMixer Mixer;
    SilentMixer MixerHP;
    SilentRemote Remote;
    SilentPlayerFactory Players;
    SilentDialog Dialog;
    SilentMessages Messages;
    SilentKeyboard Keyboard;
    SilentQueue Queue;
    SilentWindows Windows;
    SilentClock Clock;
    SilentProcesses Processes;
    SilentProgram Program;
    SilentTray Tray;
    SilentUrls Urls;

    Platform Outside() { return Outside(Settings, Registry); }
    // With a real store in the place of the silent one.
    Platform Outside(SettingsStore& settings, orvelle::Registry& registry) {
        return Outside(settings, registry, Tessaly);
    }
    // With a real framework link, too.
    Platform Outside(SettingsStore& settings, orvelle::Registry& registry, TessalyControl& tessaly) {
        return {
            .Velmarc = Velmarc,
            .Settings = settings,
            .Registry = registry,
            .Tessaly = tessaly,
            .VVL = Engine,
            .VolumeControl = Mixer,
            .VolumeControlHP = MixerHP,
            .TSRemote = Remote,
            .MediaPlayers = Players,
            .Dialog = Dialog,
            .Messages = Messages,
            .Keyboard = Keyboard,
            .Queue = Queue,
            .Windows = Windows,
            .Clock = Clock,
            .Processes = Processes,
            .Program = Program,
            .Tray = Tray,
            .Urls = Urls,
        };
    }
};

}  // namespace orvelle
