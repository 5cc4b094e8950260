// The TeamSpeak program from its own side: whether it runs, where the panel sent it, and the results that it gives.
#pragma once

#include <functional>
#include <map>
#include <string>

#include "platform/Ticket.h"
#include "platform/Types.h"

namespace orvelle {

enum class ProgramState { NotRunning, Running };
enum class AddressPadding { Blanks, Zeros };  // what fills the address field behind the address

// Results in place of success, 0 for none
struct TeamSpeakResults {
    Integer Connect = 0;
    Integer Disconnect = 0;
    Integer ServerInfo = 0;
    Integer ChannelInfo = 0;
    Integer SwitchChannel = 0;
};

class TeamSpeakSide {
public:
    virtual ~TeamSpeakSide() = default;

    virtual void SetProgram(ProgramState state) = 0;  // a program that ends is connected to nothing
    virtual ProgramState Program() const = 0;
    virtual void SetPadding(AddressPadding padding) = 0;
    virtual void SetChannels(const std::map<std::string, Long>& idsByName) = 0;  // none at first
    virtual const std::string& Address() const = 0;  // host and port of the server, "" when not connected
    virtual const std::string& LastUrl() const = 0;
    virtual const std::string& Channel() const = 0;
    virtual TeamSpeakResults& Fail() = 0;

    // Called from the loop after changes.
    [[nodiscard]] virtual Ticket Observe(std::function<void()> observer) = 0;
};

}  // namespace orvelle
