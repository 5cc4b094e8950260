#include "adapters/embedded/TeamSpeak.h"

#include <algorithm>

namespace orvelle::embedded {

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

Integer TeamSpeak::tsrConnect(const std::string& url) {
    lastUrl = url;
    changes.Mark();
    const Integer result = Answer(results.Connect);
    if (result != 0) return result;
    address = PartBehind(url, "://");
    if (address.find(':') == std::string::npos) address += ":8767";
    channel = PartBehind(url, "channel=");
    return 0;
}

Integer TeamSpeak::tsrDisconnect() {
    const Integer result = Answer(results.Disconnect);
    if (result == 0) Leave();
    return result;
}

Integer TeamSpeak::tsrGetServerInfo(TS_SERVER_INFO& info) {
    const Integer result = Answer(results.ServerInfo);
    if (result != 0) return result;
    if (address.empty()) return Failed;
    info = {};
    info.Address.fill(padding == AddressPadding::Blanks ? ' ' : '\0');
    std::copy_n(address.begin(), std::min(address.size(), info.Address.size()), info.Address.begin());
    return 0;
}

Integer TeamSpeak::tsrGetChannelInfoByName(const std::string& name, TS_CHANNEL_INFO& found, TS_PLAYER_INFO&, Long&) {
    const Integer result = Answer(results.ChannelInfo);
    if (result != 0) return result;
    const auto entry = channels.find(name);
    if (address.empty() || entry == channels.end()) return Failed;
    found = {};
    found.ChannelId = entry->second;
    return 0;
}

Integer TeamSpeak::tsrSwitchChannelID(Long channelId, const std::string&) {
    const Integer result = Answer(results.SwitchChannel);
    if (result != 0) return result;
    const auto entry =
        std::ranges::find_if(channels, [channelId](const auto& known) { return known.second == channelId; });
    if (address.empty() || entry == channels.end()) return Failed;
    channel = entry->first;
    changes.Mark();
    return 0;
}

void TeamSpeak::SetProgram(ProgramState state) {
    program = state;
    if (state == ProgramState::NotRunning) Leave();
    changes.Mark();
}

void TeamSpeak::SetChannels(const std::map<std::string, Long>& idsByName) { channels = idsByName; }

Integer TeamSpeak::Answer(Integer failure) const { return program == ProgramState::Running ? failure : Failed; }

void TeamSpeak::Leave() {
    address.clear();
    channel.clear();
    changes.Mark();
}

}  // namespace orvelle::embedded
