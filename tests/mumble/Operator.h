// The server's operator in a test, who may do everything there.
#pragma once

#include <functional>
#include <map>
#include <string>

#include "adapters/linux/PollEventLoop.h"
#include "adapters/mumble/Messages.h"
#include "adapters/mumble/ServerConnection.h"
#include "tests/mumble/VoiceServerRig.h"
#include "tests/shared/OwnFolder.h"

namespace orvelle::mumble {

class Operator {
public:
    Operator(linux::PollEventLoop& loop, const VoiceServerRig& server);

    // Serves the loop until the user is there.
    void Kick(const std::string& userName, const std::string& reason);
    void MoveToRoot(const std::string& userName);

private:
    std::uint32_t SessionOf(const std::string& userName);
    void Take(const Message& message);

    linux::PollEventLoop& loop;
    OwnFolder folder;
    OwnCertificate certificate{folder.Path / "operator.pem"};
    MessageReader reader;
    bool isSynced = false;
    std::map<std::string, std::uint32_t> sessions;  // by name
    ServerConnection connection;
};

}  // namespace orvelle::mumble
