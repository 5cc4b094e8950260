#include "simulators/xplane/XPlaneSubscriptions.h"

#include <netinet/in.h>

#include <algorithm>
#include <array>
#include <utility>

#include "simulators/UdpSocket.h"

namespace orvelle::simulators {

namespace {

constexpr Long NextMilliseconds = 100;
constexpr std::size_t LongestPacket = 2048;

}  // namespace

XPlaneSubscriptions::XPlaneSubscriptions(EventLoop& eventLoop, const Ipv4Interfaces& known, std::vector<Dataref> asked)
    : loop(eventLoop), interfaces(known), datarefs(std::move(asked)) {}

XPlaneSubscriptions::~XPlaneSubscriptions() { End(); }

// A new socket each time, so that nothing is left in it of the one that was asked before. An X-Plane of this computer
// is asked over loopback, where no other computer's word comes in.
void XPlaneSubscriptions::Begin(const XPlaneTarget& asked) {
    End();
    target = asked;
    FileDescriptor opened = OpenUdp();
    const std::uint32_t own = asked.Owner == XPlaneOwner::ThisComputer ? INADDR_LOOPBACK : INADDR_ANY;
    if (!opened || !BindUdp(opened, {own, 0})) return;
    socket = std::move(opened);
    readable = loop.WhenReadable(socket.Number(), [this] { Serve(); });
    Ask();
}

void XPlaneSubscriptions::End() {
    if (!socket) return;
    for (std::size_t number = 0; number < datarefs.size(); ++number) Send(number, Request::End);
    readable.End();
    again.End();
    socket.Close();
}

void XPlaneSubscriptions::Ask() {
    if (socket) AskFrom(0);
}

void XPlaneSubscriptions::AskFrom(std::size_t first) {
    const std::size_t end = std::min(first + MostAtOnce, datarefs.size());
    for (std::size_t number = first; number < end; ++number) Send(number, Request::Begin);
    if (end < datarefs.size())
        again = loop.After(NextMilliseconds, [this, end] { AskFrom(end); });
    else
        again = loop.After(AgainMilliseconds, [this] { AskFrom(0); });
}

// What can't be sent now is asked again in its time.
void XPlaneSubscriptions::Send(std::size_t number, Request request) const {
    const Dataref& dataref = datarefs[number];
    const std::int32_t times = request == Request::Begin ? dataref.TimesASecond : 0;
    const std::string packet = WriteSubscription(times, static_cast<std::int32_t>(number), dataref.Name);
    SendUdp(socket, packet, {target.Address, target.Port});
}

// One packet in a turn, as whoever hears it may begin or end. Which port an answer comes from is not documented.
void XPlaneSubscriptions::Serve() {
    std::array<char, LongestPacket> bytes;
    const std::optional<UdpPacket> packet = ReceiveUdp(socket, bytes);
    if (!packet) return;
    const std::uint32_t address = packet->Sender.Address;
    const bool isItsOwn =
        target.Owner == XPlaneOwner::ThisComputer ? interfaces.IsOwn(address) : address == target.Address;
    if (!isItsOwn) return;
    const std::optional<std::vector<NumberedValue>> values = ReadValues(packet->Bytes);
    if (values) Heard(*values);
}

}  // namespace orvelle::simulators
