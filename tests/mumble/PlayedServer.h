// Something that answers at a port and is no voice server: it never says a word, says other words, or speaks TLS and
// then whatever a test has it say.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "adapters/shared/FileDescriptor.h"
#include "apps/FreePort.h"
#include "platform/EventLoop.h"
#include "tests/linux/ChildProcess.h"
#include "tests/shared/OwnFolder.h"

namespace orvelle::mumble {

// Takes every connection; the system does that, while nobody looks.
class SilentServer {
public:
    SilentServer();
    std::string Room(const std::string& channel) const { return "127.0.0.1:" + std::to_string(port) + "/" + channel; }

protected:
    const std::uint16_t port = FreePort();
    FileDescriptor listener;
};

// Takes each, says the words, and hangs up.
class BabblingServer : public SilentServer {
public:
    BabblingServer(EventLoop& loop, std::string words);

private:
    std::string words;
    Ticket accepting;
};

// Speaks TLS, says the bytes to each who comes, then keeps the connection.
class EncryptedServer {
public:
    explicit EncryptedServer(const std::string& bytes);
    ~EncryptedServer();
    std::string Room(const std::string& channel) const { return "127.0.0.1:" + std::to_string(port) + "/" + channel; }

private:
    const std::uint16_t port = FreePort();
    OwnFolder folder;
    std::unique_ptr<linux::ChildProcess> process;
};

}  // namespace orvelle::mumble
