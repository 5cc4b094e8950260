#include "simulators/xplane/Ipv4Interfaces.h"

#include <arpa/inet.h>
#include <ifaddrs.h>
#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <net/if.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <memory>

namespace orvelle::simulators {

namespace {

constexpr std::uint32_t LoopbackNetwork = 127;

}  // namespace

Ipv4Interfaces::Ipv4Interfaces(EventLoop& loop) {
    Watch(loop);
    Read();
}

bool Ipv4Interfaces::IsOwn(std::uint32_t address) const {
    return address == INADDR_ANY || address >> 24 == LoopbackNetwork ||
           std::find(addresses.begin(), addresses.end(), address) != addresses.end();
}

void Ipv4Interfaces::Watch(EventLoop& loop) {
    FileDescriptor opened(socket(AF_NETLINK, SOCK_RAW | SOCK_NONBLOCK | SOCK_CLOEXEC, NETLINK_ROUTE));
    sockaddr_nl groups{};
    groups.nl_family = AF_NETLINK;
    groups.nl_groups = RTMGRP_IPV4_IFADDR;
    if (!opened || bind(opened.Number(), reinterpret_cast<const sockaddr*>(&groups), sizeof(groups)) != 0) return;
    watch = std::move(opened);
    readable = loop.WhenReadable(watch.Number(), [this] {
        // What changed is read anew as a whole; ENOBUFS says that more did than could be told.
        std::array<char, 4096> told;
        while (recv(watch.Number(), told.data(), told.size(), 0) >= 0 || errno == ENOBUFS) continue;
        Read();
        Changed();
    });
}

void Ipv4Interfaces::Read() {
    ifaddrs* first = nullptr;
    if (getifaddrs(&first) != 0) return;
    const std::unique_ptr<ifaddrs, decltype(&freeifaddrs)> all(first, &freeifaddrs);
    indexes.clear();
    addresses.clear();
    for (const ifaddrs* each = first; each != nullptr; each = each->ifa_next) {
        if (each->ifa_addr == nullptr || each->ifa_addr->sa_family != AF_INET) continue;
        sockaddr_in address;
        std::memcpy(&address, each->ifa_addr, sizeof(address));
        addresses.push_back(ntohl(address.sin_addr.s_addr));
        const int index = static_cast<int>(if_nametoindex(each->ifa_name));
        if (index == 0 || std::find(indexes.begin(), indexes.end(), index) != indexes.end()) continue;
        indexes.insert((each->ifa_flags & IFF_LOOPBACK) != 0 ? indexes.begin() : indexes.end(), index);
    }
}

}  // namespace orvelle::simulators
