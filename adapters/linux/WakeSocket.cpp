#include "adapters/linux/WakeSocket.h"

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

#include <array>
#include <cerrno>
#include <cstring>

namespace orvelle::linux {

namespace {

struct Word {
    Wish What;
    std::string_view Text;
};
constexpr std::array Words{Word{Wish::ShowPanel, "show panel"}, Word{Wish::ShowDeck, "show deck"},
                           Word{Wish::ShowSimulator, "show simulator"}};

constexpr std::size_t Longest = 64;

FileDescriptor NewSocket() { return FileDescriptor(socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0)); }

// Nothing for a path that is too long for the system.
std::optional<sockaddr_un> Address(const std::string& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.size() >= sizeof address.sun_path) return std::nullopt;
    std::memcpy(address.sun_path, path.c_str(), path.size() + 1);
    return address;
}

const sockaddr* Plain(const sockaddr_un& address) { return reinterpret_cast<const sockaddr*>(&address); }

// The system tells it; whoever sends can't say another's without being root.
bool IsFromThisUser(msghdr& message) {
    const cmsghdr* const header = CMSG_FIRSTHDR(&message);
    if (header == nullptr || header->cmsg_level != SOL_SOCKET || header->cmsg_type != SCM_CREDENTIALS) return false;
    ucred sender;
    std::memcpy(&sender, CMSG_DATA(header), sizeof sender);
    return sender.uid == getuid();
}

}  // namespace

void WakeSocket::Listen() {
    const auto address = Address(path);
    FileDescriptor made = NewSocket();
    const int yes = 1;
    if (!address || setsockopt(made.Number(), SOL_SOCKET, SO_PASSCRED, &yes, sizeof yes) != 0) return;
    unlink(path.c_str());
    if (bind(made.Number(), Plain(*address), sizeof *address) != 0) return;
    chmod(path.c_str(), S_IRUSR | S_IWUSR);
    socket = std::move(made);
}

std::optional<Wish> WakeSocket::Take() {
    std::array<char, Longest> text;
    alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(ucred))> control;
    iovec part{text.data(), text.size()};
    msghdr message{};
    message.msg_iov = &part;
    message.msg_iovlen = 1;
    message.msg_control = control.data();
    message.msg_controllen = control.size();
    const ssize_t size = recvmsg(socket.Number(), &message, MSG_CMSG_CLOEXEC);
    if (size < 0 || !IsFromThisUser(message)) return std::nullopt;
    const std::string_view said(text.data(), static_cast<std::size_t>(size));
    for (const Word& word : Words)
        if (said == word.Text) return word.What;
    return std::nullopt;
}

bool WakeSocket::Ask(Wish wish) const {
    const auto address = Address(path);
    const FileDescriptor asking = NewSocket();
    if (!address || !asking) return false;
    for (const Word& word : Words) {
        if (word.What != wish) continue;
        const ssize_t sent =
            sendto(asking.Number(), word.Text.data(), word.Text.size(), MSG_NOSIGNAL, Plain(*address), sizeof *address);
        // A panel that has more wishes than it can take listens as well.
        return sent >= 0 || errno == EAGAIN;
    }
    return false;
}

}  // namespace orvelle::linux
