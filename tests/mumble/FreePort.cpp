#include "tests/mumble/FreePort.h"

#include <arpa/inet.h>
#include <sys/socket.h>

#include <fstream>
#include <iomanip>
#include <random>
#include <sstream>
#include <string>

#include "adapters/shared/FileDescriptor.h"

namespace orvelle::mumble {

namespace {

constexpr std::uint16_t First = 20000;
constexpr std::uint16_t Last = 32000;

bool CanBind(int kind, std::uint16_t port) {
    const FileDescriptor opened(socket(AF_INET, kind | SOCK_CLOEXEC, 0));
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
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

// As the system tells it: to connect would be noticed.
bool IsListenedTo(std::uint16_t port) {
    std::ostringstream local;
    local << "0100007F:" << std::hex << std::uppercase << std::setw(4) << std::setfill('0') << port
          << " 00000000:0000 0A";
    std::ifstream connections("/proc/net/tcp");
    for (std::string line; std::getline(connections, line);)
        if (line.find(local.str()) != line.npos) return true;
    return false;
}

}  // namespace orvelle::mumble
