#include "tests/simulators/XPlaneServer.h"

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>

#include "simulators/UdpSocket.h"

namespace orvelle::simulators {

namespace {

constexpr Long BeaconPeriod = 1000;
constexpr std::size_t RequestLength = 413;
constexpr const char* RunningTime = "sim/time/total_running_time_sec";

FileDescriptor Bound(std::uint16_t& port) {
    FileDescriptor made = OpenUdp();
    EXPECT_TRUE(BindUdp(made, {INADDR_ANY, port})) << std::strerror(errno);
    port = PlaceOf(made).Port;
    return made;
}

template <typename Number>
void Append(std::string& packet, Number number) {
    std::array<char, sizeof(Number)> bytes;
    std::memcpy(bytes.data(), &number, sizeof(Number));
    packet.append(bytes.data(), bytes.size());
}

std::int32_t NumberAt(const std::string& packet, std::size_t place) {
    std::int32_t number = 0;
    std::memcpy(&number, packet.data() + place, sizeof(number));
    return number;
}

}  // namespace

XPlaneServer::XPlaneServer(std::uint16_t sharedBeaconPort) : beaconPort(sharedBeaconPort) {
    if (beaconPort == 0) {
        reserved = Bound(beaconPort);
        KeepBeaconPort(PortUse::Shared);
    }
    const std::string folder = "sim/cockpit2/radios/actuators/";
    for (const std::string radio : {"com1", "com2"}) {
        Values[folder + radio + "_frequency_hz_833"] = radio == "com1" ? 118305 : 121500;
        Values[folder + radio + "_power"] = 1;
        Values[folder + "audio_selection_" + radio] = radio == "com1" ? 1 : 0;
        Values[folder + "audio_volume_" + radio] = 1;
    }
    Values[folder + "audio_com_selection"] = 6;
    Values[folder + "audio_selection_com_auto"] = 0;
    Values["sim/cockpit2/switches/avionics_power_on"] = 1;
    Values["sim/time/paused"] = 0;
    Values[RunningTime] = 0;
    Values["sim/flightmodel/position/latitude"] = 63.985F;
    Values["sim/flightmodel/position/longitude"] = -22.6056F;
    Values["sim/flightmodel/position/elevation"] = 52;
    SetText("sim/aircraft/view/acf_tailnum", "N172SP");
    SetText("sim/aircraft/view/acf_ICAO", "C172");
    Start(XPlanePort::Another);
}

std::string XPlaneServer::SubscribersAddress() const {
    if (subscriptions.empty()) return "";
    return Dotted(std::get<0>(subscriptions.begin()->first));
}

// The kernel asks who has a port already at the moment when another one wants it.
void XPlaneServer::KeepBeaconPort(PortUse use) {
    const int isShared = use == PortUse::Shared ? 1 : 0;
    EXPECT_EQ(setsockopt(reserved.Number(), SOL_SOCKET, SO_REUSEADDR, &isShared, sizeof(isShared)), 0);
}

void XPlaneServer::SetText(const std::string& name, const std::string& text) {
    for (std::size_t byte = 0; byte < 40; ++byte)
        Values[name + "[" + std::to_string(byte) + "]"] =
            byte < text.size() ? static_cast<float>(static_cast<unsigned char>(text[byte])) : 0.0F;
}

void XPlaneServer::Stop() {
    socket.Close();
    subscriptions.clear();
}

void XPlaneServer::Start(XPlanePort where) {
    if (where == XPlanePort::Another) port = 0;
    socket = Bound(port);
    started = nextBeacon = now;
}

void XPlaneServer::Pass(Long milliseconds) {
    now += milliseconds;
    if (!Runs()) return;
    Values[RunningTime] = static_cast<float>(now - started) / 1000;
    TakeRequests();
    if (SendsBeacons && now >= nextBeacon) {
        SendBeacon(Beacon());
        nextBeacon = now + BeaconPeriod;
    }
    if (Answers) SendDue();
}

std::string XPlaneServer::Beacon() const {
    std::string packet("BECN\0\1\2", 7);
    Append<std::int32_t>(packet, 1);
    Append<std::int32_t>(packet, 121400);
    Append<std::uint32_t>(packet, 1);
    Append<std::uint16_t>(packet, port);
    packet += std::string("cockpit\0", 8);
    Append<std::uint16_t>(packet, 49010);
    return packet;
}

void XPlaneServer::SendBeacon(const std::string& packet) const {
    const in_addr from{inet_addr(BeaconInterface.c_str())};
    EXPECT_EQ(setsockopt(socket.Number(), IPPROTO_IP, IP_MULTICAST_IF, &from, sizeof(from)), 0);
    Send(packet, ntohl(inet_addr("239.255.1.1")), beaconPort);
}

void XPlaneServer::SendAnswer(const std::string& packet) const {
    std::map<std::uint16_t, std::uint32_t> subscribers;
    for (const auto& [key, subscription] : subscriptions) subscribers[std::get<1>(key)] = std::get<0>(key);
    for (const auto& [to, address] : subscribers) Send(packet, address, to);
}

void XPlaneServer::TakeRequests() {
    std::array<char, 1024> bytes;
    int taken = 0;
    while (const std::optional<UdpPacket> packet = ReceiveUdp(socket, bytes)) {
        ++taken;
        if (!IsLost()) Take(std::string(packet->Bytes), packet->Sender.Address, packet->Sender.Port);
    }
    requests += taken;
    mostAtOnce = std::max(mostAtOnce, taken);
}

void XPlaneServer::Take(const std::string& packet, std::uint32_t address, std::uint16_t from) {
    ASSERT_EQ(packet.size(), RequestLength);
    ASSERT_TRUE(packet.starts_with(std::string("RREF\0", 5)));
    const std::int32_t times = NumberAt(packet, 5);
    const Key key{address, from, NumberAt(packet, 9)};
    const std::string name = packet.c_str() + 13;
    ASSERT_LT(name.size(), 400U);
    if (times <= 0) {
        subscriptions.erase(key);
        return;
    }
    ASSERT_LE(times, 99);
    if (Values.count(name) != 0) subscriptions.try_emplace(key, Subscription{name, 1000 / times, now});
}

void XPlaneServer::SendDue() {
    std::map<std::pair<std::uint32_t, std::uint16_t>, std::vector<std::string>> packets;
    for (auto& [key, subscription] : subscriptions) {
        if (now < subscription.Due) continue;
        subscription.Due = now + subscription.Period;
        std::vector<std::string>& all = packets[{std::get<0>(key), std::get<1>(key)}];
        if (all.empty() || all.back().size() >= Head.size() + PairsInPacket * 8) all.push_back(Head);
        Append<std::int32_t>(all.back(), std::get<2>(key));
        Append<float>(all.back(), Values[subscription.Name]);
    }
    for (const auto& [subscriber, all] : packets)
        for (const std::string& packet : all) Send(packet, subscriber.first, subscriber.second);
}

void XPlaneServer::Send(const std::string& packet, std::uint32_t address, std::uint16_t to) const {
    if (IsLost()) return;
    EXPECT_EQ(SendUdp(socket, packet, {address, to}), static_cast<ssize_t>(packet.size())) << std::strerror(errno);
}

bool XPlaneServer::IsLost() const { return LosesOneOf > 0 && ++sent % static_cast<unsigned>(LosesOneOf) == 0; }

}  // namespace orvelle::simulators
