#include "tests/mumble/PlayedServer.h"

#include <arpa/inet.h>
#include <sys/socket.h>

#include <csignal>
#include <fstream>
#include <utility>

namespace orvelle::mumble {

SilentServer::SilentServer() : listener(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(port);
    EXPECT_EQ(bind(listener.Number(), reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    EXPECT_EQ(listen(listener.Number(), 8), 0);
}

BabblingServer::BabblingServer(EventLoop& loop, std::string bytes) : words(std::move(bytes)) {
    accepting = loop.WhenReadable(listener.Number(), [this] {
        const FileDescriptor accepted(accept4(listener.Number(), nullptr, nullptr, SOCK_CLOEXEC));
        send(accepted.Number(), words.data(), words.size(), MSG_NOSIGNAL);
    });
}

EncryptedServer::EncryptedServer(const std::string& bytes) {
    const std::string certificate = folder.Path / "certificate";
    const std::string key = folder.Path / "key";
    const std::string words = folder.Path / "words";
    std::ofstream(words) << bytes;
    linux::ChildProcess make({"openssl", "req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:P-256",
                              "-nodes", "-keyout", key, "-out", certificate, "-subj", "/CN=other"});
    EXPECT_EQ(make.Wait(), 0) << make.Errors();
    // What comes to its input it says, and it goes on for as long as the input does, which ends with the test.
    process = std::make_unique<linux::ChildProcess>(std::vector<std::string>{
        "sh", "-c",
        "cat " + words + " - | exec timeout 120 openssl s_server -quiet -naccept 1 -accept 127.0.0.1:" +
            std::to_string(port) + " -cert " + certificate + " -key " + key});
    linux::Await({process.get()}, [this] { return IsListenedTo(port); });
}

EncryptedServer::~EncryptedServer() {
    kill(-process->Id(), SIGKILL);  // the whole pipe
}

}  // namespace orvelle::mumble
