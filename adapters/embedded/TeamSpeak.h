// A stand-in for the remote control of the TeamSpeak program. Until the deck starts the program every call fails with
// -1; then it connects, tells its server and switches channels, or gives the result that the deck put in. Answers at
// once; main thread only.
#pragma once

#include <map>
#include <string>

#include "adapters/shared/Changes.h"
#include "platform/TSRemote.h"

namespace orvelle {

enum class ProgramState { NotRunning, Running };
enum class AddressPadding { Blanks, Zeros };  // what fills the address field behind the address

class EmbeddedTeamSpeak : public TeamSpeakRemote {
public:
    explicit EmbeddedTeamSpeak(EventLoop& loop) : Changed(loop) {}

    Integer tsrConnect(const std::string& url) override;
    Integer tsrDisconnect() override;
    Integer tsrGetServerInfo(TS_SERVER_INFO& info) override;
    Integer tsrGetChannelInfoByName(const std::string& name, TS_CHANNEL_INFO& channel, TS_PLAYER_INFO& player,
                                    Long& count) override;
    Integer tsrSwitchChannelID(Long channelId, const std::string& password) override;

    // The deck's side.
    void SetProgram(ProgramState state);  // a program that ends is connected to nothing
    ProgramState Program() const { return program; }
    void SetPadding(AddressPadding newPadding) { padding = newPadding; }
    void SetChannels(const std::map<std::string, Long>& idsByName);  // none at first
    const std::string& Address() const { return address; }  // host and port of the server, "" when not connected
    const std::string& LastUrl() const { return lastUrl; }
    const std::string& Channel() const { return channel; }

    // Results in place of success, 0 for none
    struct Results {
        Integer Connect = 0;
        Integer Disconnect = 0;
        Integer ServerInfo = 0;
        Integer ChannelInfo = 0;
        Integer SwitchChannel = 0;
    };
    Results Fail;

    Changes Changed;

private:
    Integer Answer(Integer failure) const;
    void Leave();

    ProgramState program = ProgramState::NotRunning;
    AddressPadding padding = AddressPadding::Blanks;
    std::map<std::string, Long> channels;
    std::string address;
    std::string channel;
    std::string lastUrl;
};

}  // namespace orvelle
