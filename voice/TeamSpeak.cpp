// TeamSpeak: its file is started by command line and then remote-controlled through a library.
#include "links/WinInetURL.h"
#include "panel/FrmOrvelle.h"
#include "panel/Texts.h"
#include "platform/RegistryPaths.h"
#include "voice/TuningSounds.h"

namespace orvelle {

namespace {

constexpr Long StartWait = 1000;  // ms, all that a freshly started program gets
constexpr Long PollWait = 100;    // ms
constexpr int Polls = 10;

}  // namespace

void FrmOrvelle::TSDisconnect() {
    TSRemote.tsrDisconnect();
    TSServer = "";
    TSChannel = "";
}

// The program is started also if it runs already, and counts as active whether or not it could be reached.
void FrmOrvelle::TSConnectFresh(const VoiceRecord& candidate) {
    Processes.WinExec(TSPath.Text, ShowMinimisedInactive);
    Clock.Sleep(StartWait);
    TSConnect(candidate);
    ActiveVoiceSoftware = candidate.Software;
}

void FrmOrvelle::TSRetune(const VoiceRecord& candidate) {
    if (candidate.Software == TeamSpeakHost && TSSwitchChannel(candidate)) return;
    TSConnect(candidate);
}

// Tries to change the channel on the running connection: only if TeamSpeak answers, is on the wanted server, and finds
// and enters the channel. The sound of this way does not ask for the user's choice.
bool FrmOrvelle::TSSwitchChannel(const VoiceRecord& candidate) {
    TS_SERVER_INFO server{};
    TS_CHANNEL_INFO channel{};
    TS_PLAYER_INFO player{};

    int polls = 0;
    while (TSRemote.tsrGetServerInfo(server) != 0) {
        if (polls >= Polls) return false;
        Clock.Sleep(PollWait);
        ++polls;
    }
    if (polls >= Polls) return false;

    // Compared with all 30 characters of the field: one that is padded with zeros is another address.
    const std::string wanted = Tessaly.ResolveServerAddress(candidate.Server);
    if (Trimmed({server.Address.data(), server.Address.size()}) != wanted) return false;

    Long count = 0;
    if (TSRemote.tsrGetChannelInfoByName(candidate.Channel, channel, player, count) != 0) return false;
    if (TSRemote.tsrSwitchChannelID(channel.ChannelId, "") != 0) return false;
    TSServer = candidate.Server;
    TSChannel = candidate.Channel;
    Velmarc.PlaySound(OnChannelSound);
    return true;
}

void FrmOrvelle::TSConnect(const VoiceRecord& candidate) {
    WinInetURL helper(Urls);
    if (TSRemote.tsrConnect(helper.CanonicalizeUrl(TSConnectionUrl(candidate), 0)) != 0) return;
    TSServer = candidate.Server;
    TSChannel = candidate.Channel;
    PlayTuningSound(OnChannelSound);
}

// Each part stands behind its own question mark. In the URL form the server is the head of the URL, as the network gave
// it, and neither login name nor password is told.
std::string FrmOrvelle::TSConnectionUrl(const VoiceRecord& candidate) const {
    const bool isHost = candidate.Software == TeamSpeakHost;
    std::string url = (isHost ? "teamspeak://" : "") + candidate.Server + "?nickname=" + Callsign;
    if (isHost && !candidate.LoginName.empty()) url += "?loginname=" + candidate.LoginName;
    if (isHost && !candidate.Password.empty()) url += "?password=" + candidate.Password;
    if (!candidate.Channel.empty()) url += "?channel=" + candidate.Channel;
    return url;
}

void FrmOrvelle::TSEnable_Click() {
    SaveSettingLong("TSEnable", TSEnable.Value);
    UpdateVoiceInterfaces();
    ApplyVoiceRouting();
}

void FrmOrvelle::optTSDriver_Click(Long index) {
    SaveSettingLong("TSDriven", index);
    UpdateVoiceInterfaces();
}

// The command's place for the URL goes, the blank before it stays.
void FrmOrvelle::TSRescan_Click() {
    const std::string command = Registry.ReadRegistryDefault(TeamSpeakCommandPath, "", "");
    SaveSettingString("TSPath", Without(command, "\"%1\""));
    TSPath.Text = GetSettingString("TSPath", "");
}

}  // namespace orvelle
