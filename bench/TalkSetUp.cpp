#include "bench/TalkSetUp.h"

#include "adapters/looks/Text.h"
#include "adapters/store/SqliteStore.h"
#include "apps/Waiting.h"
#include "apps/three/ChildPrograms.h"
#include "platform/RadioSelection.h"
#include "platform/SessionSetting.h"
#include "platform/Tessaly.h"
#include "platform/VoiceRoles.h"

namespace orvelle {

namespace {

constexpr int PanelIdentity = 2;  // orvelle-sim is c01

}  // namespace

TalkSetUp::TalkSetUp(EventLoop& loop, const QDir& folder, const QString& displayScript, const PanelSound& sound)
    : simulator(loop, folder.filePath("simulator")), computer(folder.filePath("panel"), displayScript) {
    TalkButton::PutInto(simulator.Environment);
    computer.Environment.insert("PULSE_SERVER", ToQt(sound.Server));
    computer.Environment.insert("PULSE_SOURCE", ToQt(sound.Microphone));
    computer.Environment.insert("PULSE_SINK", ToQt(sound.Headset));
    SetUpPanel(loop, computer.SettingsFile());
}

TalkSetUp::~TalkSetUp() { EndChild(panel); }

void TalkSetUp::SetUpPanel(EventLoop& loop, const std::string& settingsFile) {
    store::SqliteStore settings(loop, settingsFile, [](const std::string&) {});
    settings.SaveSettingLong("OrvelleCP", "VVLEnable", 1);
    settings.SaveSettingString("OrvelleCP", "VVLFSJoy", TalkButton::Name);
    // What is waited for is the voice, not a tone before it.
    settings.SaveSettingLong("OrvelleCP", "VVLSignalVolume", 0);
    settings.HandlerEnded();
}

std::string TalkSetUp::Begin() {
    simulator.Start();
    computer.SwitchOn();
    if (!WaitUntil([this] { return simulator.Serves(); })) return "orvelle-sim does not serve";
    if (!WaitUntil([this] { return computer.IsOn(); })) return "the panel's display does not come";
    simulator.AskForCode();
    if (!WaitUntil([this] { return !simulator.Code().empty(); })) return "no code is made";
    computer.Join(simulator.Code(), simulator.Port());
    if (!WaitUntil([this] { return computer.HasJoined(); })) return "the panel's computer can't join";
    computer.Run(panel, "orvelle-panel", {});
    const auto hasEngine = [this] { return Watch().Holders(EngineRole) == std::vector{PanelIdentity}; };
    return WaitUntil(hasEngine) ? "" : "the panel does not take the engine's duty";
}

void TalkSetUp::Tune(const std::string& server, const std::string& channel) {
    Watch().SetSession({.Handle = 1,
                        .Status = ConnectedToMultiplayer,
                        .Callsign = Callsign,
                        .Receive = SelectsCom1,
                        .Transmit = SelectsCom1,
                        .Frequency = {channel, ""},
                        .Voice = {{{VatsimVoice, server, channel, "", ""}, {}}}});
}

}  // namespace orvelle
