// A TeamSpeak library that writes its calls, one a line, into the file that TSREMOTE_RECORD names. Its results have
// something in the upper half, which is none of the caller's business: 0x50000 is success, 0x5FFFE is -2.
#include <cstdlib>
#include <fstream>
#include <string>

#include "platform/TSRemote.h"

using namespace orvelle;

namespace {

constexpr int Success = 0x50000;
constexpr int Failure = 0x5FFFE;

void Record(const std::string& call) { std::ofstream(std::getenv("TSREMOTE_RECORD"), std::ios::app) << call << "\n"; }

}  // namespace

extern "C" {

__attribute__((visibility("default"))) int tsrConnect(const char* url) {
    Record(std::string("tsrConnect ") + url);
    return std::string(url).starts_with("teamspeak://") ? Success : Failure;
}

__attribute__((visibility("default"))) int tsrDisconnect() {
    Record("tsrDisconnect");
    return Success;
}

__attribute__((visibility("default"))) int tsrGetServerInfo(TS_SERVER_INFO* info) {
    Record("tsrGetServerInfo");
    info->Address.fill(' ');
    std::string("127.0.0.1:8767").copy(info->Address.data(), info->Address.size());
    return Success;
}

__attribute__((visibility("default"))) int tsrGetChannelInfoByName(const char* name, TS_CHANNEL_INFO* channel,
                                                                   TS_PLAYER_INFO* player, Long* count) {
    Record(std::string("tsrGetChannelInfoByName ") + name + " " + std::to_string(*count));
    channel->ChannelId = 4711;
    player->Unused0[1] = 815;
    *count = 3;
    return Success;
}

__attribute__((visibility("default"))) int tsrSwitchChannelID(Long id, const char* password) {
    Record("tsrSwitchChannelID " + std::to_string(id) + " [" + password + "]");
    return Failure;
}
}
