// The scripted remote control of TeamSpeak. Every function succeeds; the records that it fills are not printed.
#pragma once

#include <array>

#include "platform/TSRemote.h"
#include "replay/Peer.h"

namespace orvelle::replay {

class TSRemotePeer final : public TeamSpeakRemote, private Peer {
public:
    enum class Padding : char { Zeros = '\0', Blanks = ' ' };

    using Peer::Peer;

    Integer tsrConnect(const std::string& url) override;
    Integer tsrDisconnect() override;
    Integer tsrGetServerInfo(TS_SERVER_INFO& info) override;
    Integer tsrGetChannelInfoByName(const std::string& name, TS_CHANNEL_INFO& channel, TS_PLAYER_INFO& player,
                                    Long& count) override;
    Integer tsrSwitchChannelID(Long channelId, const std::string& password) override;

    // The server that TeamSpeak is connected to; at most 30 characters.
    void PutAddress(const std::string& text, Padding padding);

private:
    std::array<char, 30> address{};
};

}  // namespace orvelle::replay
