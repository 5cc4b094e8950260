// The server's operator in a test, who may do everything there.
#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>

#include "adapters/linux/PollEventLoop.h"
#include "adapters/mumble/Messages.h"
#include "adapters/mumble/ServerConnection.h"
#include "tests/mumble/VoiceServerRig.h"
#include "tests/shared/OwnFolder.h"

namespace orvelle::mumble {

namespace wire {
class UserRemove;
class UserState;
}  // namespace wire

class Operator {
public:
    Operator(linux::PollEventLoop& loop, const VoiceServerRig& server);

    // Serves the loop until the user is there.
    void Kick(const std::string& userName, const std::string& reason);
    void Ban(const std::string& userName, const std::string& reason);
    void MoveToRoot(const std::string& userName);
    void Move(const std::string& userName, const std::string& channel);
    enum class Voice { Taken, Allowed };
    void Set(const std::string& userName, Voice voice);
    void RemoveChannel(const std::string& channel);
    // Returns when nobody else can have the name any more.
    void Register(const std::string& userName);

private:
    std::uint32_t SessionOf(const std::string& userName);
    std::uint32_t ChannelOf(const std::string& name);
    void Remove(wire::UserRemove& removal, const std::string& userName);
    void Say(const wire::UserState& state);
    void Take(const Message& message);

    linux::PollEventLoop& loop;
    OwnFolder folder;
    OwnCertificate certificate{folder.Path / "operator.pem"};
    MessageReader reader;
    bool isSynced = false;
    std::map<std::string, std::uint32_t> sessions;  // by name
    std::map<std::string, std::uint32_t> channels;  // likewise
    std::set<std::uint32_t> registered;             // sessions
    ServerConnection connection;
};

}  // namespace orvelle::mumble
