#include "adapters/linux/ProcessOfPort.h"

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <optional>

#include "adapters/linux/ProcessExecutable.h"
#include "adapters/shared/FileDescriptor.h"
#include "tests/linux/ChildProcess.h"
#include "tests/linux/WaitUntil.h"

namespace orvelle::linux {
namespace {

// A socket with a port of the kernel's choice. Children inherit it.
struct BoundSocket {
    explicit BoundSocket(in_addr_t host) : Descriptor(socket(AF_INET, SOCK_DGRAM, 0)) {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(host);
        EXPECT_EQ(bind(Descriptor.Number(), reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
        socklen_t length = sizeof address;
        getsockname(Descriptor.Number(), reinterpret_cast<sockaddr*>(&address), &length);
        Port = ntohs(address.sin_port);
    }
    FileDescriptor Descriptor;
    std::uint16_t Port = 0;
};

TEST(ProcessOfPortTest, IsTheProcessWhoseSocketIsBoundToIt) {
    const BoundSocket loopback(INADDR_LOOPBACK), all(INADDR_ANY);
    EXPECT_EQ(ProcessOfPort(loopback.Port), getpid());
    EXPECT_EQ(ProcessOfPort(all.Port), getpid());
}

TEST(ProcessOfPortTest, ASocketOfIPv6ThatServesIPv4Counts) {
    const FileDescriptor both(socket(AF_INET6, SOCK_DGRAM | SOCK_CLOEXEC, 0));
    if (!both) {
        EXPECT_EQ(errno, EAFNOSUPPORT);
        return;
    }
    sockaddr_in6 address{};
    address.sin6_family = AF_INET6;
    socklen_t length = sizeof address;
    ASSERT_EQ(bind(both.Number(), reinterpret_cast<sockaddr*>(&address), length), 0);
    getsockname(both.Number(), reinterpret_cast<sockaddr*>(&address), &length);
    EXPECT_EQ(ProcessOfPort(ntohs(address.sin6_port)), getpid());
}

TEST(ProcessOfPortTest, NobodyHasAPortThatIsFree) {
    std::uint16_t port = 0;
    {
        const BoundSocket socket(INADDR_LOOPBACK);
        port = socket.Port;
    }
    EXPECT_EQ(ProcessOfPort(port), 0);
    EXPECT_EQ(ProcessOfPort(0), 0);
}

TEST(ProcessOfPortTest, APortThatIsHandedOnBelongsToWhomItWasHandedTo) {
    std::optional<BoundSocket> socket(std::in_place, INADDR_LOOPBACK);
    const std::uint16_t port = socket->Port;
    ChildProcess heir({"/bin/sh", "-c", "read line; exec cat"});
    EXPECT_EQ(ProcessOfPort(port), std::min(getpid(), heir.Id())) << "of two the lower number";
    socket.reset();
    EXPECT_EQ(ProcessOfPort(port), heir.Id());
    // Which program it runs by then is no matter.
    heir.WriteLine("go");
    EXPECT_EQ(heir.Ask("runs"), "runs");
    EXPECT_EQ(ExecutableOf(heir.Id()), "cat");
    EXPECT_EQ(ProcessOfPort(port), heir.Id());
    heir.Kill(SIGSTOP);
    EXPECT_EQ(ProcessOfPort(port), heir.Id());
    heir.Kill(SIGKILL);
    heir.Wait();
    EXPECT_EQ(ProcessOfPort(port), 0);
}

}  // namespace
}  // namespace orvelle::linux
