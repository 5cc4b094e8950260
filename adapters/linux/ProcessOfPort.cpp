#include "adapters/linux/ProcessOfPort.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <fstream>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace orvelle::linux {

namespace {

struct CloseFolder {
    void operator()(DIR* folder) const { closedir(folder); }
};
using OpenFolder = std::unique_ptr<DIR, CloseFolder>;

struct Socket {
    std::string Link;  // as a descriptor's link names it
    uid_t Owner = 0;
};

// Addresses as the kernel writes them, words of 32 bits in this computer's order.
bool ServesLoopback(std::string_view address) {
    constexpr std::array<std::string_view, 4> Addresses = {"0100007F", "00000000", "0000000000000000FFFF00000100007F",
                                                           "00000000000000000000000000000000"};
    return std::ranges::find(Addresses, address) != Addresses.end();
}

bool IsPort(std::string_view text, std::uint16_t port) {
    std::uint16_t read = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), read, 16);
    return error == std::errc() && end == text.data() + text.size() && read == port;
}

std::optional<Socket> SocketOf(const char* table, std::uint16_t port) {
    std::ifstream lines(table);
    std::string line;
    while (std::getline(lines, line)) {
        std::istringstream words(line);
        std::string number, local, remote, state, queues, timer, again, timeouts, inode;
        uid_t owner = 0;
        words >> number >> local >> remote >> state >> queues >> timer >> again >> owner >> timeouts >> inode;
        const std::size_t colon = local.find(':');
        if (!words || colon == std::string::npos) continue;
        const std::string_view text = local;
        if (ServesLoopback(text.substr(0, colon)) && IsPort(text.substr(colon + 1), port))
            return Socket{"socket:[" + inode + "]", owner};
    }
    return std::nullopt;
}

// Numbers alone, so without whatever else lies there.
std::vector<pid_t> Processes() {
    std::vector<pid_t> processes;
    const OpenFolder folder(opendir("/proc"));
    while (const dirent* const entry = folder ? readdir(folder.get()) : nullptr) {
        const std::string_view name = entry->d_name;
        pid_t process = 0;
        const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), process);
        if (error == std::errc() && end == name.data() + name.size()) processes.push_back(process);
    }
    std::ranges::sort(processes);
    return processes;
}

bool HasOpen(pid_t process, const Socket& socket) {
    const std::string path = "/proc/" + std::to_string(process) + "/fd";
    struct stat status {};
    if (stat(path.c_str(), &status) != 0 || status.st_uid != socket.Owner) return false;
    const OpenFolder folder(opendir(path.c_str()));
    while (const dirent* const entry = folder ? readdir(folder.get()) : nullptr) {
        std::array<char, 64> link{};
        const ssize_t length = readlinkat(dirfd(folder.get()), entry->d_name, link.data(), link.size());
        if (length > 0 && std::string_view(link.data(), static_cast<std::size_t>(length)) == socket.Link) return true;
    }
    return false;
}

}  // namespace

pid_t ProcessOfPort(std::uint16_t port) {
    std::optional<Socket> socket = SocketOf("/proc/net/udp", port);
    if (!socket) socket = SocketOf("/proc/net/udp6", port);
    if (!socket) return 0;
    for (const pid_t process : Processes())
        if (HasOpen(process, *socket)) return process;
    return 0;
}

}  // namespace orvelle::linux
