// Remote control of the TeamSpeak program by the library libTSRemote.so, which is looked for at the first call: beside
// this program, then where the system looks for libraries. Without the library, or without one function of it, the
// calls concerned return NotThere and do nothing; the next call looks again. The library hands URLs on to the system,
// so one of another scheme than TeamSpeak's own does not reach it.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/TSRemote.h"

namespace orvelle::linux {

class DynamicTeamSpeak : public TeamSpeakRemote {
public:
    static constexpr Integer NotThere = -1;
    static constexpr Integer OtherScheme = -2;  // of tsrConnect

    DynamicTeamSpeak();
    // Other places, in the order in which they are tried; one without a "/" is searched by the system.
    explicit DynamicTeamSpeak(std::vector<std::string> places) : places(std::move(places)) {}

    // Whether the library can be loaded now.
    bool IsThere();

    Integer tsrConnect(const std::string& url) override;
    Integer tsrDisconnect() override;
    Integer tsrGetServerInfo(TS_SERVER_INFO& info) override;
    Integer tsrGetChannelInfoByName(const std::string& name, TS_CHANNEL_INFO& channel, TS_PLAYER_INFO& player,
                                    Long& count) override;
    Integer tsrSwitchChannelID(Long channelId, const std::string& password) override;

private:
    struct Unload {
        void operator()(void* loaded) const;
    };

    template <typename... Parameters, typename... Arguments>
    Integer Call(const char* function, Arguments... arguments);
    void* Find(const char* function);

    std::vector<std::string> places;
    std::unique_ptr<void, Unload> library;
};

}  // namespace orvelle::linux
