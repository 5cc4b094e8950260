#include "adapters/embedded/TeamSpeak.h"

#include <algorithm>

namespace orvelle {

namespace {

constexpr Integer Failed = -1;

// What stands behind `mark` in a URL, up to the next mark.
std::string PartBehind(const std::string& url, const std::string& mark) {
    const std::size_t found = url.find(mark);
    if (found == std::string::npos) return "";
    const std::size_t start = found + mark.size();
    return url.substr(start, url.find_first_of("?&/", start) - start);
}

}  // namespace

Integer EmbeddedTeamSpeak::tsrConnect(const std::string& url) {
    lastUrl = url;
    Changed.Mark();
    const Integer result = Answer(Fail.Connect);
    if (result != 0) return result;
    address = PartBehind(url, "://");
    if (address.find(':') == std::string::npos) address += ":8767";
    channel = PartBehind(url, "channel=");
    return 0;
}

Integer EmbeddedTeamSpeak::tsrDisconnect() {
    const Integer result = Answer(Fail.Disconnect);
    if (result == 0) Leave();
    return result;
}

Integer EmbeddedTeamSpeak::tsrGetServerInfo(TS_SERVER_INFO& info) {
    const Integer result = Answer(Fail.ServerInfo);
    if (result != 0) return result;
    if (address.empty()) return Failed;
    info = {};
    info.Address.fill(padding == AddressPadding::Blanks ? ' ' : '\0');
    std::copy_n(address.begin(), std::min(address.size(), info.Address.size()), info.Address.begin());
    return 0;
}

Integer EmbeddedTeamSpeak::tsrGetChannelInfoByName(const std::string& name, TS_CHANNEL_INFO& found, TS_PLAYER_INFO&,
                                                   Long&) {
    const Integer result = Answer(Fail.ChannelInfo);
    if (result != 0) return result;
    const auto entry = channels.find(name);
    if (address.empty() || entry == channels.end()) return Failed;
    found = {};
    found.ChannelId = entry->second;
    return 0;
}

Integer EmbeddedTeamSpeak::tsrSwitchChannelID(Long channelId, const std::string&) {
    const Integer result = Answer(Fail.SwitchChannel);
    if (result != 0) return result;
    const auto entry =
        std::ranges::find_if(channels, [channelId](const auto& known) { return known.second == channelId; });
    if (address.empty() || entry == channels.end()) return Failed;
    channel = entry->first;
    Changed.Mark();
    return 0;
}

void EmbeddedTeamSpeak::SetProgram(ProgramState state) {
    program = state;
    if (state == ProgramState::NotRunning) Leave();
    Changed.Mark();
}

void EmbeddedTeamSpeak::SetChannels(const std::map<std::string, Long>& idsByName) { channels = idsByName; }

Integer EmbeddedTeamSpeak::Answer(Integer failure) const { return program == ProgramState::Running ? failure : Failed; }

void EmbeddedTeamSpeak::Leave() {
    address.clear();
    channel.clear();
    Changed.Mark();
}

}  // namespace orvelle
