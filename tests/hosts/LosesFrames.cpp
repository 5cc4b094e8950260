// A bad stretch of a network: takes each frame that one network interface receives to another one and back, later, and
// loses some. What it loses is lost to both ends' TCP, as on a real wire. Runs until it is killed.
//
//   loses-frames INTERFACE INTERFACE PERCENT MILLISECONDS
#include <arpa/inet.h>
#include <linux/if_ether.h>
#include <linux/if_packet.h>
#include <net/if.h>
#include <sys/socket.h>

#include <cstdlib>
#include <deque>
#include <iostream>
#include <random>
#include <string>

#include "adapters/linux/PollEventLoop.h"
#include "adapters/shared/FileDescriptor.h"

namespace orvelle::hosts {
namespace {

// Sums that the sender left to its network card, and segments that it left whole, are told before each frame, and have
// to be told again where it goes out.
constexpr std::size_t ToldBefore = 10;  // bytes of a virtio_net_hdr, whose header C++ can't read
constexpr std::size_t LargestFrame = ToldBefore + ETH_HLEN + 65535;
constexpr int IgnoreOutgoing = 23;  // PACKET_IGNORE_OUTGOING, which older headers lack

FileDescriptor OpenInterface(const char* name) {
    FileDescriptor opened(socket(AF_PACKET, SOCK_RAW | SOCK_CLOEXEC | SOCK_NONBLOCK, htons(ETH_P_ALL)));
    const int yes = 1;
    setsockopt(opened.Number(), SOL_PACKET, PACKET_VNET_HDR, &yes, sizeof yes);
    setsockopt(opened.Number(), SOL_PACKET, IgnoreOutgoing, &yes, sizeof yes);
    sockaddr_ll address{};
    address.sll_family = AF_PACKET;
    address.sll_protocol = htons(ETH_P_ALL);
    address.sll_ifindex = static_cast<int>(if_nametoindex(name));
    const bool isBound = bind(opened.Number(), reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    return address.sll_ifindex != 0 && isBound ? std::move(opened) : FileDescriptor();
}

// One direction.
class BadWay {
public:
    BadWay(EventLoop& eventLoop, const FileDescriptor& from, const FileDescriptor& to, int lostPercent,
           Long milliseconds)
        : loop(eventLoop),
          source(from.Number()),
          target(to.Number()),
          percent(lostPercent),
          delay(milliseconds),
          readable(loop.WhenReadable(source, [this] { Take(); })) {}

private:
    void Take() {
        std::string frame(LargestFrame, '\0');
        const ssize_t size = read(source, frame.data(), frame.size());
        if (size <= 0 || std::uniform_int_distribution(1, 100)(dice) <= percent) return;
        frame.resize(static_cast<std::size_t>(size));
        under.push_back(loop.After(delay, [this, frame = std::move(frame)] {
            // One that the other interface has no room for is one more that is lost.
            [[maybe_unused]] const ssize_t written = write(target, frame.data(), frame.size());
            under.pop_front();
        }));
    }

    EventLoop& loop;
    const int source;
    const int target;
    const int percent;
    const Long delay;
    std::mt19937 dice{1};  // every run loses alike
    std::deque<Ticket> under;
    Ticket readable;
};

}  // namespace
}  // namespace orvelle::hosts

int main(int count, char** words) {
    using namespace orvelle;
    if (count != 5) return EXIT_FAILURE;
    const FileDescriptor one = hosts::OpenInterface(words[1]);
    const FileDescriptor other = hosts::OpenInterface(words[2]);
    if (!one || !other) {
        std::cerr << "loses-frames: " << words[1] << " or " << words[2] << " can't be opened" << std::endl;
        return EXIT_FAILURE;
    }
    linux::PollEventLoop loop;
    const int percent = std::atoi(words[3]);
    const Long delay = std::atoi(words[4]);
    const hosts::BadWay there(loop, one, other, percent, delay);
    const hosts::BadWay back(loop, other, one, percent, delay);
    std::cout << "ready" << std::endl;
    loop.Run();
    return EXIT_SUCCESS;
}
