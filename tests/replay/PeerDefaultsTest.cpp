#include <memory>

#include "platform/RuntimeError.h"
#include "platform/controls/Form.h"
#include "replay/peers/DialogPeer.h"
#include "replay/peers/KernelPeer.h"
#include "replay/peers/KeyboardPeer.h"
#include "replay/peers/MediaPlayerPeer.h"
#include "replay/peers/MixerPeer.h"
#include "replay/peers/NotificationAreaPeer.h"
#include "replay/peers/TSRemotePeer.h"
#include "replay/peers/VelmarcPeer.h"
#include "replay/peers/VoiceEnginePeer.h"
#include "replay/peers/WindowsPeer.h"
#include "tests/replay/PeerTest.h"

namespace orvelle::replay {
namespace {

class PeerDefaults : public PeerTest {
protected:
    Form form{"FrmOrvelle", ""};
};

TEST_F(PeerDefaults, TheSimulatorLinkIsDownAndKeepsItsServer) {
    VelmarcPeer velmarc("Velmarc", transcript, answers);
    EXPECT_EQ(velmarc.GetServer(), "AUTOMATIC");
    velmarc.SetServer("pc2");
    EXPECT_EQ(velmarc.GetServer(), "pc2");
    EXPECT_FALSE(velmarc.LinkUp());
    EXPECT_FALSE(velmarc.IsLocalAddress("pc2"));
    EXPECT_EQ(velmarc.IPAddress(), "");
    EXPECT_EQ(velmarc.ComputerName(), "");
    EXPECT_EQ(velmarc.DesktopName(), "");
    velmarc.ClientReady();
    velmarc.PlaySound("a.wav");
    EXPECT_EQ(Printed(), R"(Velmarc.GetServer() -> "AUTOMATIC"
Velmarc.SetServer("pc2")
Velmarc.GetServer() -> "pc2"
Velmarc.LinkUp() -> False
Velmarc.IsLocalAddress("pc2") -> False
Velmarc.IPAddress() -> ""
Velmarc.ComputerName() -> ""
Velmarc.DesktopName() -> ""
Velmarc.ClientReady()
Velmarc.PlaySound("a.wav")
)");
}

TEST_F(PeerDefaults, OfAnAnswerAndACallTheLaterHolds) {
    VelmarcPeer velmarc("Velmarc", transcript, answers);
    answers.Give("Velmarc.GetServer", {{"given"}});
    EXPECT_EQ(velmarc.GetServer(), "given");
    velmarc.SetServer("called");
    EXPECT_EQ(velmarc.GetServer(), "called");
    answers.Give("Velmarc.GetServer", {{"given"}});
    EXPECT_EQ(velmarc.GetServer(), "given");
}

TEST_F(PeerDefaults, TheEngineAcceptsEverythingAndHasNoStatus) {
    VoiceEnginePeer engine("VVL", transcript, answers);
    float input = 1;
    float output = 1;
    EXPECT_FALSE(engine.Running());
    EXPECT_TRUE(engine.Start(3));
    EXPECT_TRUE(engine.RoomJoin(0, "ABC123 ()", "srv/ch"));
    EXPECT_FALSE(engine.InputStatus());
    EXPECT_FALSE(engine.OutputStatus(1));
    EXPECT_EQ(engine.RoomStatus(2), "");
    EXPECT_EQ(engine.InputDevices(), "");
    EXPECT_EQ(engine.OutputDevices(), "");
    EXPECT_FALSE(engine.Calibrate(-1, -1, input, output));
    EXPECT_EQ(input + output, 0);
    EXPECT_EQ(Printed(), R"lines(VVL.Running() -> False
VVL.Start(3) -> True
VVL.RoomJoin(0, "ABC123 ()", "srv/ch") -> True
VVL.InputStatus -> False
VVL.OutputStatus(1) -> False
VVL.RoomStatus(2) -> ""
VVL.InputDevices -> ""
VVL.OutputDevices -> ""
VVL.Calibrate(-1, -1) -> False, 0, 0
)lines");
}

TEST_F(PeerDefaults, TheEngineIsDrivenByPropertiesAndFunctions) {
    VoiceEnginePeer engine("VVL", transcript, answers);
    engine.InputSquelch(50);
    engine.OutputSquelch(12.5);
    engine.InputDevice(-1);
    engine.OutputDevice(1, 2);
    engine.OutputVolume(0, 100);
    engine.SignalVolume(1, 30);
    engine.OutputFilter(0, true);
    engine.ChannelOutput(2, 1, false);
    engine.RoomLeave(1);
    engine.RoomMute(0, true);
    engine.Stop();
    EXPECT_EQ(Printed(), R"(VVL.InputSquelch = 50
VVL.OutputSquelch = 12.5
VVL.InputDevice(-1)
VVL.OutputDevice(1, 2)
VVL.OutputVolume(0, 100)
VVL.SignalVolume(1, 30)
VVL.OutputFilter(0, True)
VVL.ChannelOutput(2, 1, False)
VVL.RoomLeave(1)
VVL.RoomMute(0, True)
VVL.Stop()
)");
}

TEST_F(PeerDefaults, ACalibrationGivesItsLevelsByReference) {
    VoiceEnginePeer engine("VVL", transcript, answers);
    answers.Give("VVL.Calibrate", {{true, 12.3, 30.0}});
    float input = 0;
    float output = 0;
    EXPECT_TRUE(engine.Calibrate(-1, 0, input, output));
    EXPECT_EQ(input, 12.3f);
    EXPECT_EQ(output, 30.0f);
    EXPECT_EQ(Printed(), "VVL.Calibrate(-1, 0) -> True, 12.3, 30\n");
}

TEST_F(PeerDefaults, AMixerHasLinesWithoutARange) {
    MixerPeer mixer("VolumeControlHP", transcript, answers);
    mixer.InputDevice("<DEFAULT>");
    mixer.OutputDevice("Card");
    mixer.Open();
    EXPECT_FALSE(mixer.MicUnavailable() || mixer.MasterUnavailable() || mixer.WaveUnavailable());
    EXPECT_EQ(mixer.MicMin() + mixer.MicMax() + mixer.MicStep() + mixer.MicVolume(), 0);
    EXPECT_EQ(mixer.MasterMin() + mixer.MasterMax() + mixer.MasterStep() + mixer.MasterVolume(), 0);
    EXPECT_EQ(mixer.WaveMin() + mixer.WaveMax() + mixer.WaveStep() + mixer.WaveVolume(), 0);
    Printed();
    mixer.MicVolume(1);
    mixer.MasterVolume(2);
    mixer.WaveVolume(3);
    EXPECT_EQ(mixer.WaveVolume(), 0);
    mixer.Close();
    EXPECT_EQ(Printed(), R"(VolumeControlHP.MicVolume = 1
VolumeControlHP.MasterVolume = 2
VolumeControlHP.WaveVolume = 3
VolumeControlHP.WaveVolume -> 0
VolumeControlHP.Close()
)");
}

TEST_F(PeerDefaults, TeamSpeakSucceedsAndItsRecordsAreNotPrinted) {
    TSRemotePeer remote("TSRemote", transcript, answers);
    TS_SERVER_INFO server{};
    TS_CHANNEL_INFO channel{};
    TS_PLAYER_INFO player{};
    Long count = 0;
    server.Address.fill('x');
    channel.ChannelId = 5;
    EXPECT_EQ(remote.tsrConnect("teamspeak://a"), 0);
    EXPECT_EQ(remote.tsrGetServerInfo(server), 0);
    EXPECT_EQ(server.Address, (std::array<char, 30>{}));
    EXPECT_EQ(remote.tsrGetChannelInfoByName("ops", channel, player, count), 0);
    EXPECT_EQ(channel.ChannelId, 0);
    EXPECT_EQ(remote.tsrSwitchChannelID(0, ""), 0);
    EXPECT_EQ(remote.tsrDisconnect(), 0);
    EXPECT_EQ(Printed(), R"(TSRemote.tsrConnect("teamspeak://a") -> 0
TSRemote.tsrGetServerInfo() -> 0
TSRemote.tsrGetChannelInfoByName("ops", 0) -> 0
TSRemote.tsrSwitchChannelID(0, "") -> 0
TSRemote.tsrDisconnect() -> 0
)");
}

TEST_F(PeerDefaults, TheAddressOfTheServerIsPaddedAsTold) {
    TSRemotePeer remote("TSRemote", transcript, answers);
    TS_SERVER_INFO server{};
    remote.PutAddress("10.0.0.1", TSRemotePeer::Padding::Blanks);
    remote.tsrGetServerInfo(server);
    EXPECT_EQ(std::string(server.Address.begin(), server.Address.end()), "10.0.0.1" + std::string(22, ' '));
    remote.PutAddress("10.0.0.1", TSRemotePeer::Padding::Zeros);
    remote.tsrGetServerInfo(server);
    EXPECT_EQ(std::string(server.Address.begin(), server.Address.end()), "10.0.0.1" + std::string(22, '\0'));
    EXPECT_THROW(remote.PutAddress(std::string(31, 'a'), TSRemotePeer::Padding::Zeros), LineError);
}

TEST_F(PeerDefaults, AChannelThatIsFoundHasTheIdThatWasGiven) {
    TSRemotePeer remote("TSRemote", transcript, answers);
    answers.Give("TSRemote.tsrGetChannelInfoByName", {{Long{0}, Long{42}}});
    TS_CHANNEL_INFO channel{};
    TS_PLAYER_INFO player{};
    Long count = 0;
    remote.tsrGetChannelInfoByName("ops", channel, player, count);
    EXPECT_EQ(channel.ChannelId, 42);
    EXPECT_EQ(Printed(), "TSRemote.tsrGetChannelInfoByName(\"ops\", 0) -> 0\n");
}

TEST_F(PeerDefaults, PlayersAreCreatedAndStandStill) {
    MediaPlayerFactoryPeer factory(transcript, answers);
    const std::unique_ptr<MediaPlayer> player = factory.New(0);
    factory.New(1);
    player->AutoRewind(true);
    player->Open("atis");
    player->Mute(false);
    player->Volume(-100);
    EXPECT_EQ(player->PlayState(), 0);
    player->Stop();
    EXPECT_EQ(Printed(), R"(WMPCOM1.New()
WMPCOM2.New()
WMPCOM1.AutoRewind = True
WMPCOM1.Open("atis")
WMPCOM1.Mute = False
WMPCOM1.Volume = -100
WMPCOM1.PlayState -> 0
WMPCOM1.Stop()
)");
}

TEST_F(PeerDefaults, APlayerThatIsNotThereIsARuntimeError) {
    MediaPlayerFactoryPeer factory(transcript, answers);
    answers.Give("WMPCOM2.New", {{false}});
    factory.New(0);
    EXPECT_THROW(factory.New(1), RuntimeError);
}

TEST_F(PeerDefaults, TheFileDialogKeepsTheNameUnlessTheUserPicks) {
    DialogPeer dialog("Dialog", transcript, answers);
    dialog.DialogTitle("Search");
    dialog.Flags(4100);
    dialog.FileName("old.exe");
    dialog.ShowOpen();
    EXPECT_EQ(dialog.FileName(), "old.exe");
    answers.Give("Dialog.FileName", {{"new.exe"}});
    dialog.FileName("old.exe");
    dialog.ShowOpen();
    EXPECT_EQ(dialog.FileName(), "new.exe");
    EXPECT_EQ(Printed(), R"(Dialog.DialogTitle = "Search"
Dialog.Flags = 4100
Dialog.FileName = "old.exe"
Dialog.ShowOpen()
Dialog.FileName -> "old.exe"
Dialog.FileName = "old.exe"
Dialog.ShowOpen()
Dialog.FileName -> "new.exe"
)");
}

TEST_F(PeerDefaults, TheMessageBoxHasNoMember) {
    MessageBoxPeer messages(transcript);
    messages.MsgBox("Missing icon RRRRRR");
    transcript.Hide({"MsgBox"});
    messages.MsgBox("Missing icon VVVVVV");
    EXPECT_EQ(Printed(), "MsgBox(\"Missing icon RRRRRR\")\n");
}

TEST_F(PeerDefaults, KeysAreTheirOwnVirtualKeysAndNamedByTheirCode) {
    KeyboardPeer keyboard("user32", transcript, answers);
    EXPECT_EQ(keyboard.MapVirtualKeyA(29, 3), 29);
    keyboard.keybd_event(29, 29, 1, 0);
    EXPECT_EQ(keyboard.GetKeyNameTextA(29 << 16, 255), "K29");
    EXPECT_EQ(keyboard.GetKeyNameTextA(511 << 16, 255), "K511");
    EXPECT_EQ(Printed(), R"(user32.MapVirtualKeyA(29, 3) -> 29
user32.keybd_event(29, 29, 1, 0)
user32.GetKeyNameTextA(1900544, 255) -> "K29"
user32.GetKeyNameTextA(33488896, 255) -> "K511"
)");
}

TEST_F(PeerDefaults, WindowsAreNamedAsTheirControls) {
    WindowsPeer windows("user32", transcript, answers);
    windows.SetWindowPos(form, -1, 0, 0, 0, 0, 3);
    windows.SetCapture(form);
    windows.ReleaseCapture();
    windows.DrawEdge(form, 1, 0x100F);
    windows.GetWindowRect(form);
    windows.GetClientRect(form);
    EXPECT_EQ(Printed(), R"(user32.SetWindowPos(FrmOrvelle, -1, 0, 0, 0, 0, 3)
user32.SetCapture(FrmOrvelle)
user32.ReleaseCapture()
)");
}

TEST_F(PeerDefaults, TheClockStandsStillUnlessSomebodySleeps) {
    VirtualTime time;
    KernelPeer kernel(transcript, answers, time);
    EXPECT_EQ(kernel.GetTickCount(), 0);
    EXPECT_EQ(kernel.GetTickCount(), 0);
    kernel.Sleep(1000);
    EXPECT_EQ(kernel.GetTickCount(), 1000);
    kernel.SetTickCount(-5);
    EXPECT_EQ(kernel.GetTickCount(), -5);
    EXPECT_EQ(Printed(), "kernel32.Sleep(1000)\n");
}

TEST_F(PeerDefaults, AGivenTickCountHoldsUntilTheNextWait) {
    VirtualTime time;
    KernelPeer kernel(transcript, answers, time);
    answers.Give("kernel32.GetTickCount", {{Long{77}}});
    EXPECT_EQ(kernel.GetTickCount(), 77);
    kernel.Sleep(10);
    EXPECT_EQ(kernel.GetTickCount(), 10);
}

TEST_F(PeerDefaults, ProgramsStartAndTheDirectoryIsKept) {
    VirtualTime time;
    KernelPeer kernel(transcript, answers, time);
    EXPECT_EQ(kernel.WinExec("C:\\RW\\roger.exe /leave ", 7), 33);
    EXPECT_EQ(kernel.GetModuleFileNameA(), "C:\\OrvelleCP\\OrvelleCP.exe");
    EXPECT_EQ(kernel.GetCurrentDirectoryA(4096), "C:\\");
    kernel.SetCurrentDirectoryA("D:\\");
    EXPECT_EQ(kernel.GetCurrentDirectoryA(4096), "D:\\");
    EXPECT_EQ(Printed(), R"(kernel32.WinExec("C:\RW\roger.exe /leave ", 7)
kernel32.GetModuleFileNameA() -> "C:\OrvelleCP\OrvelleCP.exe"
kernel32.GetCurrentDirectoryA(4096) -> "C:\"
kernel32.SetCurrentDirectoryA("D:\")
kernel32.GetCurrentDirectoryA(4096) -> "D:\"
)");
}

TEST_F(PeerDefaults, TheProgramIsTheFirstAndItsEndIsThrown) {
    ProgramPeer program("App", transcript, answers);
    EXPECT_FALSE(program.PrevInstance());
    EXPECT_THROW(program.End(), ProgramEnded);
    EXPECT_EQ(Printed(), "");
}

TEST_F(PeerDefaults, TheNotificationAreaPrintsWhatTheFlagsMark) {
    NotificationAreaPeer tray("shell32", transcript, answers);
    NotifyIconData data;
    data.Window = &form;
    data.CallbackMessage = 1125;
    data.Icon = {Picture::Icon, "RRRRRR"};
    data.Tip = std::string("Orvelle Control Panel\0", 22);
    data.Flags = NotifyIconMessage | NotifyIconPicture | NotifyIconTip;
    tray.Shell_NotifyIconA(NotifyIconAdd, data);
    data.Flags = NotifyIconPicture;
    tray.Shell_NotifyIconA(NotifyIconModify, data);
    data.Flags = 0;
    tray.Shell_NotifyIconA(NotifyIconDelete, data);
    EXPECT_EQ(Printed(),
              R"(shell32.Shell_NotifyIconA(0, 88, FrmOrvelle, 0, 7, 1125, "RRRRRR", "Orvelle Control Panel{0}")
shell32.Shell_NotifyIconA(1, 88, FrmOrvelle, 0, 2, -, "RRRRRR", -)
shell32.Shell_NotifyIconA(2, 88, FrmOrvelle, 0, 0, -, -, -)
)");
}

}  // namespace
}  // namespace orvelle::replay
