#include "tests/voice/PlayedTSRemote.h"

#include <algorithm>

using namespace orvelle;

namespace {

PlayedTeamSpeak played;

}  // namespace

extern "C" {

PlayedTeamSpeak* PlayedTeamSpeakOfLibrary() { return &played; }

Integer tsrConnect(const char* url) {
    played.Calls.push_back(std::string("connect ") + url);
    return played.Connect;
}

Integer tsrDisconnect() {
    played.Calls.emplace_back("disconnect");
    return 0;
}

Integer tsrGetServerInfo(TS_SERVER_INFO* info) {
    played.Calls.emplace_back("server");
    if (played.ServerInfoFailures-- > 0) return -1;
    std::copy(played.Address.begin(), played.Address.end(), info->Address.begin());
    return 0;
}

Integer tsrGetChannelInfoByName(const char* name, TS_CHANNEL_INFO* channel, TS_PLAYER_INFO*, Long* count) {
    played.Calls.push_back(std::string("channel ") + name + " " + std::to_string(*count));
    channel->ChannelId = 42;
    return played.ChannelInfo;
}

Integer tsrSwitchChannelID(Long channelId, const char* password) {
    played.Calls.push_back("switch " + std::to_string(channelId) + " [" + password + "]");
    return played.SwitchChannel;
}
}
