// Remote control of the TeamSpeak program by a library of C functions. Each result is a signed 16-bit integer, 0 for
// success; where the library or a function is missing every call fails with another value. The records are the
// library's own, byte for byte, little-endian, texts in single-byte characters.
#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "platform/Types.h"

namespace orvelle {

#pragma pack(push, 1)
struct TS_SERVER_INFO {
    std::array<char, 30> Unused0;
    std::array<char, 256> Unused30;
    std::array<char, 4> Unused286;
    std::array<char, 4> Unused290;
    std::array<char, 4> Unused294;
    std::array<char, 4> Unused298;
    std::array<char, 30> Unused302;
    std::array<char, 30> Address;  // of the server that TeamSpeak is connected to, padded
    std::array<char, 100> Unused362;
    std::array<char, 2> Padding462;
    std::array<Long, 5> Unused464;
};

struct TS_CHANNEL_INFO {
    Long ChannelId;
    std::array<Long, 4> Unused4;
    std::array<char, 29> Unused20;
    std::array<char, 3> Padding49;
};

struct TS_PLAYER_INFO {
    std::array<Long, 2> Unused0;
    std::array<char, 29> Unused8;
    std::array<char, 3> Padding37;
    std::array<Long, 3> Unused40;
};
#pragma pack(pop)

static_assert(sizeof(TS_SERVER_INFO) == 484);
static_assert(offsetof(TS_SERVER_INFO, Unused286) == 286);
static_assert(offsetof(TS_SERVER_INFO, Address) == 332);
static_assert(offsetof(TS_SERVER_INFO, Unused464) == 464);
static_assert(sizeof(TS_CHANNEL_INFO) == 52);
static_assert(offsetof(TS_CHANNEL_INFO, Unused20) == 20);
static_assert(sizeof(TS_PLAYER_INFO) == 52);
static_assert(offsetof(TS_PLAYER_INFO, Unused40) == 40);

class TeamSpeakRemote {
public:
    virtual ~TeamSpeakRemote() = default;

    virtual Integer tsrConnect(const std::string& url) = 0;
    virtual Integer tsrDisconnect() = 0;
    virtual Integer tsrGetServerInfo(TS_SERVER_INFO& info) = 0;
    virtual Integer tsrGetChannelInfoByName(const std::string& name, TS_CHANNEL_INFO& channel, TS_PLAYER_INFO& player,
                                            Long& count) = 0;
    virtual Integer tsrSwitchChannelID(Long channelId, const std::string& password) = 0;
};

}  // namespace orvelle
