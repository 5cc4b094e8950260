#include "adapters/linux/DynamicTeamSpeak.h"

#include <dlfcn.h>

#include "adapters/linux/OwnFile.h"
#include "adapters/shared/TeamSpeakUrl.h"

namespace orvelle::linux {

namespace {

constexpr const char* LibraryName = "libTSRemote.so";

}  // namespace

DynamicTeamSpeak::DynamicTeamSpeak() : DynamicTeamSpeak({BesideOwnFile(LibraryName), LibraryName}) {}

void DynamicTeamSpeak::Unload::operator()(void* loaded) const { dlclose(loaded); }

bool DynamicTeamSpeak::IsThere() {
    for (const std::string& place : places) {
        if (library) break;
        library.reset(dlopen(place.c_str(), RTLD_NOW | RTLD_LOCAL));
    }
    return library != nullptr;
}

void* DynamicTeamSpeak::Find(const char* function) { return IsThere() ? dlsym(library.get(), function) : nullptr; }

// Only the lower 16 bits of what the library returns are a result, and so the function's type says.
template <typename... Parameters, typename... Arguments>
Integer DynamicTeamSpeak::Call(const char* function, Arguments... arguments) {
    const auto call = reinterpret_cast<Integer (*)(Parameters...)>(Find(function));
    return call ? call(arguments...) : NotThere;
}

Integer DynamicTeamSpeak::tsrConnect(const std::string& url) {
    return IsTeamSpeakUrl(url) ? Call<const char*>("tsrConnect", url.c_str()) : OtherScheme;
}

Integer DynamicTeamSpeak::tsrDisconnect() { return Call<>("tsrDisconnect"); }

Integer DynamicTeamSpeak::tsrGetServerInfo(TS_SERVER_INFO& info) {
    return Call<TS_SERVER_INFO*>("tsrGetServerInfo", &info);
}

Integer DynamicTeamSpeak::tsrGetChannelInfoByName(const std::string& name, TS_CHANNEL_INFO& channel,
                                                  TS_PLAYER_INFO& player, Long& count) {
    return Call<const char*, TS_CHANNEL_INFO*, TS_PLAYER_INFO*, Long*>("tsrGetChannelInfoByName", name.c_str(),
                                                                       &channel, &player, &count);
}

Integer DynamicTeamSpeak::tsrSwitchChannelID(Long channelId, const std::string& password) {
    return Call<Long, const char*>("tsrSwitchChannelID", channelId, password.c_str());
}

}  // namespace orvelle::linux
