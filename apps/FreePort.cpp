#include "apps/FreePort.h"

#include <netinet/in.h>
#include <sys/socket.h>

#include <fstream>
#include <iomanip>
#include <random>
#include <sstream>
#include <string>

#include "adapters/shared/FileDescriptor.h"

namespace orvelle {

namespace {

constexpr std::uint16_t First = 20000;
constexpr std::uint16_t Last = 32000;
constexpr const char* Listening = "0A";  // a connection's state, as the system writes it

bool CanBind(int kind, std::uint16_t port) {
    const FileDescriptor opened(socket(AF_INET, kind | SOCK_CLOEXEC, 0));
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    return bind(opened.Number(), reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
}

}  // namespace

std::uint16_t FreePort() {
    std::random_device chance;
    for (int attempt = 0; attempt < 100; ++attempt) {
        const auto port = std::uniform_int_distribution<std::uint16_t>(First, Last)(chance);
        if (CanBind(SOCK_STREAM, port) && CanBind(SOCK_DGRAM, port)) return port;
    }
    return 0;
}

bool IsListenedTo(std::uint16_t port) {
    std::ostringstream ending;
    ending << ':' << std::hex << std::uppercase << std::setw(4) << std::setfill('0') << port;
    for (const char* const file : {"/proc/net/tcp", "/proc/net/tcp6"}) {
        std::ifstream connections(file);
        std::string number;
        std::string local;
        std::string remote;
        std::string state;
        for (std::string line; std::getline(connections, line);)
            if (std::istringstream(line) >> number >> local >> remote >> state && local.ends_with(ending.str()) &&
                state == Listening)
                return true;
    }
    return false;
}

}  // namespace orvelle
