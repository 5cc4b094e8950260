// A stand-in for the remote control of the TeamSpeak program. Until its own side starts the program every call fails
// with -1; then it connects, tells its server and switches channels, or gives the result that was put in. Answers at
// once; main thread only.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <utility>

#include "adapters/shared/Changes.h"
#include "platform/TSRemote.h"
#include "platform/sides/TeamSpeakSide.h"

namespace orvelle::embedded {

class TeamSpeak : public TeamSpeakRemote, public TeamSpeakSide {
public:
    explicit TeamSpeak(EventLoop& loop) : changes(loop) {}

    Integer tsrConnect(const std::string& url) override;
    Integer tsrDisconnect() override;
    Integer tsrGetServerInfo(TS_SERVER_INFO& info) override;
    Integer tsrGetChannelInfoByName(const std::string& name, TS_CHANNEL_INFO& channel, TS_PLAYER_INFO& player,
                                    Long& count) override;
    Integer tsrSwitchChannelID(Long channelId, const std::string& password) override;

    // The program from its own side.
    void SetProgram(ProgramState state) override;
    ProgramState Program() const override { return program; }
    void SetPadding(AddressPadding newPadding) override { padding = newPadding; }
    void SetChannels(const std::map<std::string, Long>& idsByName) override;
    const std::string& Address() const override { return address; }
    const std::string& LastUrl() const override { return lastUrl; }
    const std::string& Channel() const override { return channel; }
    TeamSpeakResults& Fail() override { return results; }
    Ticket Observe(std::function<void()> observer) override { return changes.Observe(std::move(observer)); }

private:
    Integer Answer(Integer failure) const;
    void Leave();

    Changes changes;
    TeamSpeakResults results;
    ProgramState program = ProgramState::NotRunning;
    AddressPadding padding = AddressPadding::Blanks;
    std::map<std::string, Long> channels;
    std::string address;
    std::string channel;
    std::string lastUrl;
};

}  // namespace orvelle::embedded
