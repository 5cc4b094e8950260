// Voice servers at addresses of version 6, and names that have addresses of both versions. Runs by two-families, on a
// host of its own.
#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <sys/socket.h>

#include <chrono>
#include <fstream>
#include <iostream>
#include <sstream>
#include <vector>

#include "adapters/mumble/RoomAddress.h"
#include "adapters/shared/FileDescriptor.h"
#include "apps/FreePort.h"
#include "tests/linux/WaitUntil.h"
#include "tests/mumble/PlayedPilot.h"
#include "tests/mumble/VoiceServerRig.h"

namespace orvelle::mumble {

namespace {

using Clock = std::chrono::steady_clock;

// Packets that this host has sent by UDP of version 6.
long DatagramsOfVersion6() {
    std::ifstream counts("/proc/net/snmp6");
    std::string name;
    long count = 0;
    while (counts >> name >> count)
        if (name == "Udp6OutDatagrams") return count;
    return -1;
}

// Likewise of version 4: the system tells the names in one line, the counts in the next one.
long DatagramsOfVersion4() {
    std::ifstream counts("/proc/net/snmp");
    std::vector<std::string> lines;
    for (std::string line; std::getline(counts, line);)
        if (line.starts_with("Udp:")) lines.push_back(line);
    if (lines.size() != 2) return -1;
    std::istringstream names(lines.front());
    std::istringstream values(lines.back());
    std::string name;
    std::string value;
    while (names >> name && values >> value)
        if (name == "OutDatagrams") return std::stol(value);
    return -1;
}

void Run(const std::vector<std::string>& commandLine) {
    linux::ChildProcess program(commandLine);
    EXPECT_EQ(program.Wait(), 0) << program.Errors();
}

// This host is in a network of version 4, and in none of version 6.
class NetworkOfVersion4 {
public:
    NetworkOfVersion4() { Run({"ip", "address", "add", "192.0.2.7/32", "dev", "lo"}); }
    NetworkOfVersion4(const NetworkOfVersion4&) = delete;
    NetworkOfVersion4& operator=(const NetworkOfVersion4&) = delete;
    ~NetworkOfVersion4() { Run({"ip", "address", "delete", "192.0.2.7/32", "dev", "lo"}); }
};

// Whoever connects to ::1 at that port waits for ever, as with a host that is away: the queue is full, and the system
// drops what comes.
class DeafAddress {
public:
    explicit DeafAddress(std::uint16_t port) : listener(socket(AF_INET6, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
        sockaddr_in6 address{};
        address.sin6_family = AF_INET6;
        address.sin6_addr = in6addr_loopback;
        address.sin6_port = htons(port);
        const auto* const place = reinterpret_cast<const sockaddr*>(&address);
        EXPECT_EQ(bind(listener.Number(), place, sizeof address), 0);
        EXPECT_EQ(listen(listener.Number(), 0), 0);
        for (int number = 0; number < 3; ++number) {
            waiting.emplace_back(socket(AF_INET6, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
            connect(waiting.back().Number(), place, sizeof address);
        }
    }

private:
    FileDescriptor listener;
    std::vector<FileDescriptor> waiting;
};

class TwoFamiliesTest : public testing::Test {
protected:
    void Join(PlayedPilot& pilot, const std::string& address) {
        const auto start = Clock::now();
        ASSERT_EQ(pilot.JoinAndWait(0, address), "joined") << pilot.Status(0);
        const auto took = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start).count();
        std::cout << "joined " << address << " after " << took << " ms\n";
    }
    // Until the way to the server and the one on to the other pilot have gone by UDP, of which `sent` counts the
    // packets; those that only ask whether it passes are fewer, for as long as this lasts.
    void TalkByDatagrams(const std::function<long()>& sent) {
        constexpr long Words = 80;
        const long before = sent();
        long said = 0;
        two.Heard.clear();
        one.Rooms->Mute(0, false);
        Ticket next;
        const std::function<void()> say = [&] {
            one.Say("word");
            ++said;
            next = loop.After(10, say);
        };
        say();
        EXPECT_TRUE(one.Until([&] { return two.Heard.size() >= Words && sent() - before >= said + Words; }));
        one.Rooms->Mute(0, true);
    }
    static std::string At(const std::string& host, std::uint16_t port) {
        return host + ":" + std::to_string(port) + "/122.8";
    }

    linux::PollEventLoop loop;
    PlayedPilot one{loop, "AAL12"};
    PlayedPilot two{loop, "DLH3K"};
};

}  // namespace

TEST_F(TwoFamiliesTest, AServerAtAnAddressOfVersion6AndByItsName) {
    const VoiceServerRig server({.Host = "::1"});
    ASSERT_EQ(server.Address(), "[::1]:" + std::to_string(server.Port()));
    Join(one, server.Room("122.8"));
    Join(two, server.Room("122.8"));
    EXPECT_EQ(one.Statuses.front(), "0 Joining 122.8 at " + server.Address());
    const long others = DatagramsOfVersion4();
    ASSERT_GE(others, 0);
    TalkByDatagrams(DatagramsOfVersion6);
    Join(one, At("both.example", server.Port()));
    Join(two, At("both.example", server.Port()));
    TalkByDatagrams(DatagramsOfVersion6);
    EXPECT_EQ(DatagramsOfVersion4(), others);
}

TEST_F(TwoFamiliesTest, AServerAtTheUsualPortOfVersion6) {
    const VoiceServerRig server({.Host = "::1", .Port = DefaultPort});
    Join(one, "[::1]/122.8");
    Join(two, "::1/122.8");
    EXPECT_EQ(one.Statuses.front(), "0 Joining 122.8 at ::1");
    one.Rooms->Mute(0, false);
    one.Say("word");
    EXPECT_TRUE(two.WaitToHear("0 word"));

    const NetworkOfVersion4 network;
    PlayedPilot three{loop, "BAW1"};
    Join(three, "[::1]/122.8");
}

TEST_F(TwoFamiliesTest, NobodyAtAnAddressOfVersion6) {
    const std::uint16_t port = FreePort();
    const std::string place = "[::1]:" + std::to_string(port);
    EXPECT_EQ(one.JoinAndWait(0, place + "/122.8"), "failed");
    EXPECT_EQ(one.Status(0), "No voice server runs at " + place + ".");
}

TEST_F(TwoFamiliesTest, ANameWithBothWhoseServerHasVersion4) {
    VoiceServerRig server;
    Join(one, At("both.example", server.Port()));
    Join(two, At("both.example", server.Port()));
    const long others = DatagramsOfVersion6();
    TalkByDatagrams(DatagramsOfVersion4);
    EXPECT_EQ(DatagramsOfVersion6(), others);
    server.Kill();
    ASSERT_TRUE(one.WaitFor("left 0"));
    server.Start();
    EXPECT_TRUE(one.WaitFor("joined 0", 2));
}

TEST_F(TwoFamiliesTest, ANameWithBothWhoseVersion6IsAway) {
    const VoiceServerRig server;
    const DeafAddress deaf(server.Port());
    Join(one, At("both.example", server.Port()));
    Join(two, At("both.example", server.Port()));
    TalkByDatagrams(DatagramsOfVersion4);
}

}  // namespace orvelle::mumble
