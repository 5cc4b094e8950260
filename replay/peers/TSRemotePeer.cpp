#include "replay/peers/TSRemotePeer.h"

#include <algorithm>

namespace orvelle::replay {

namespace {

constexpr Integer Success = 0;

}  // namespace

Integer TSRemotePeer::tsrConnect(const std::string& url) { return Ask("tsrConnect", {url}, Success); }

Integer TSRemotePeer::tsrDisconnect() { return Ask("tsrDisconnect", {}, Success); }

Integer TSRemotePeer::tsrGetServerInfo(TS_SERVER_INFO& info) {
    info.Address = address;
    return Ask("tsrGetServerInfo", {}, Success);
}

// The id of the channel is answered behind the result, in its record, and not printed.
Integer TSRemotePeer::tsrGetChannelInfoByName(const std::string& name, TS_CHANNEL_INFO& channel, TS_PLAYER_INFO&,
                                              Long& count) {
    const Values answer = Answer("tsrGetChannelInfoByName", {name, count}, {Success, Long{0}});
    PrintCall("tsrGetChannelInfoByName", {name, count}, {answer[0]});
    channel.ChannelId = answer[1].As<Long>();
    return As<Integer>(answer[0]);
}

Integer TSRemotePeer::tsrSwitchChannelID(Long channelId, const std::string& password) {
    return Ask("tsrSwitchChannelID", {channelId, password}, Success);
}

void TSRemotePeer::PutAddress(const std::string& text, Padding padding) {
    if (text.size() > address.size()) throw LineError("the address is longer than 30 characters");
    address.fill(static_cast<char>(padding));
    std::copy(text.begin(), text.end(), address.begin());
}

}  // namespace orvelle::replay
