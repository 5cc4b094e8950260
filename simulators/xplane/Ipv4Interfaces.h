// The network interfaces of this computer that have addresses of IPv4, loopback first: as they are, and told by the
// kernel when that changes. Without the kernel's word they stay as they were.
#pragma once

#include <cstdint>
#include <vector>

#include "adapters/shared/FileDescriptor.h"
#include "platform/Event.h"
#include "platform/EventLoop.h"

namespace orvelle::simulators {

class Ipv4Interfaces {
public:
    explicit Ipv4Interfaces(EventLoop& loop);

    const std::vector<int>& Indexes() const { return indexes; }
    // Whether what comes from there comes from this computer; also 0.0.0.0, which a sender has that has no route.
    bool IsOwn(std::uint32_t address) const;

    Event<> Changed;

private:
    void Watch(EventLoop& loop);
    void Read();

    std::vector<int> indexes;
    std::vector<std::uint32_t> addresses;
    FileDescriptor watch;
    Ticket readable;
};

}  // namespace orvelle::simulators
