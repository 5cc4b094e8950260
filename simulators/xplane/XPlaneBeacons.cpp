#include "simulators/xplane/XPlaneBeacons.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <system_error>
#include <utility>

#include "simulators/UdpSocket.h"

namespace orvelle::simulators {

namespace {

constexpr Long AgainMilliseconds = 1000;
constexpr std::size_t LongestPacket = 2048;

// The beacon's group, on an interface.
ip_mreqn GroupOn(int interface) {
    ip_mreqn group{};
    inet_pton(AF_INET, BeaconGroup, &group.imr_multiaddr);
    group.imr_ifindex = interface;
    return group;
}

bool Set(const FileDescriptor& socket, int level, int option, int value) {
    return setsockopt(socket.Number(), level, option, &value, sizeof(value)) == 0;
}

// Bound to the group, so that nothing else that is sent to the port comes in.
FileDescriptor Open(std::uint16_t port) {
    FileDescriptor opened = OpenUdp();
    const bool isOpen = opened && Set(opened, SOL_SOCKET, SO_REUSEADDR, 1) &&
                        Set(opened, IPPROTO_IP, IP_MULTICAST_ALL, 0) &&
                        BindUdp(opened, {ntohl(GroupOn(0).imr_multiaddr.s_addr), port});
    return isOpen ? std::move(opened) : FileDescriptor();
}

}  // namespace

XPlaneBeacons::XPlaneBeacons(EventLoop& eventLoop, Ipv4Interfaces& known, std::uint16_t usedPort)
    : loop(eventLoop), interfaces(known), port(usedPort) {
    interfaces.Changed = [this] { Join(); };
    Listen();
}

void XPlaneBeacons::Listen() {
    FileDescriptor opened = Open(port);
    if (!opened) {
        const std::string why =
            errno == EADDRINUSE ? "another program keeps it to itself" : std::generic_category().message(errno);
        again = loop.After(AgainMilliseconds, [this] { Listen(); });
        return Tell("X-Plane can't be found, since port " + std::to_string(port) + " can't be had: " + why +
                    "; it is tried again each second.");
    }
    socket = std::move(opened);
    readable = loop.WhenReadable(socket.Number(), [this] { Serve(); });
    Tell("");
    Join();
}

// The kernel allows a socket some 20 groups; what is beyond stays out, and loopback is the first.
void XPlaneBeacons::Join() {
    if (!socket) return;
    const std::vector<int>& present = interfaces.Indexes();
    for (auto each = joined.begin(); each != joined.end();) {
        if (std::find(present.begin(), present.end(), *each) != present.end()) {
            ++each;
            continue;
        }
        const ip_mreqn group = GroupOn(*each);
        setsockopt(socket.Number(), IPPROTO_IP, IP_DROP_MEMBERSHIP, &group, sizeof(group));
        each = joined.erase(each);
    }
    for (const int interface : present) {
        const ip_mreqn group = GroupOn(interface);
        const bool isNew = joined.count(interface) == 0;
        if (isNew && setsockopt(socket.Number(), IPPROTO_IP, IP_ADD_MEMBERSHIP, &group, sizeof(group)) == 0)
            joined.insert(interface);
    }
}

void XPlaneBeacons::Serve() {
    std::array<char, LongestPacket> bytes;
    const std::optional<UdpPacket> packet = ReceiveUdp(socket, bytes);
    if (!packet) return;
    const std::optional<Beacon> beacon = ReadBeacon(packet->Bytes);
    if (beacon) Heard(*beacon, packet->Sender.Address);
}

void XPlaneBeacons::LeaveOut() {
    if (socket) LeaveOutUdp(socket);
}

void XPlaneBeacons::Tell(const std::string& what) {
    if (std::exchange(problem, what) != what) Changed();
}

}  // namespace orvelle::simulators
