// A room that was lost, and finds on its way back that it is not let in any more: that is told, and ends the way back.
#include <gtest/gtest.h>

#include <chrono>
#include <iostream>

#include "tests/mumble/PlayedPilot.h"
#include "tests/mumble/VoiceRelay.h"
#include "tests/mumble/VoiceServerRig.h"

namespace orvelle::mumble {

namespace {

using Told = std::vector<std::string>;
using Clock = std::chrono::steady_clock;

class ReturnRefusedTest : public testing::Test {
protected:
    std::string AnotherCertificate(const std::string& address) const {
        return address + " is not the server that it was. If its operator says that its certificate is new, " +
               "remove its line from " + (one.Folder.Path / "known-servers").string() + ".";
    }
    // The server ends; once the room has left it is started again, changed.
    void LoseAndChange(const std::function<void()>& change) {
        server.Kill();
        ASSERT_TRUE(one.WaitFor("left 0"));
        change();
        server.Start();
        const Clock::time_point back = Clock::now();
        ASSERT_TRUE(one.WaitFor("failed 0"));
        const auto took = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - back).count();
        std::cout << "refused " << took << " ms after the server is back: " << one.Status(0) << '\n';
        EXPECT_EQ(one.Told, (Told{"joined 0", "left 0", "failed 0"}));
    }
    // Whoever joins now finds that the way back has ended.
    void ExpectNoReturn(const std::string& password = "") {
        const int before = server.TimesLogged("AAL12.1(-1)> Authenticated");
        PlayedPilot two(loop, "DLH3K");
        two.Password = password;
        ASSERT_EQ(two.JoinAndWait(0, server.Room("122.8")), "joined");
        EXPECT_EQ(one.Told, (Told{"joined 0", "left 0", "failed 0"}));
        EXPECT_EQ(server.TimesLogged("AAL12.1(-1)> Authenticated"), before);
    }

    VoiceServerRig server;
    linux::PollEventLoop loop;
    PlayedPilot one{loop, "AAL12"};
};

}  // namespace

TEST_F(ReturnRefusedTest, ByAnotherCertificateOfTheServer) {
    ASSERT_EQ(one.JoinAndWait(0, server.Room("122.8")), "joined");
    LoseAndChange([this] { server.TakeAnotherCertificate(); });
    EXPECT_EQ(one.Status(0), AnotherCertificate(server.Address()));
    ExpectNoReturn();
}

// He has left for good, which is all that he is told beside the sentence.
TEST_F(ReturnRefusedTest, ByAnotherServerAtOnce) {
    VoiceRelay relay(loop, server.Port());
    ASSERT_EQ(one.JoinAndWait(0, relay.Room("122.8")), "joined");
    VoiceServerRig other;
    relay.LeadTo(other.Port());
    relay.Cut();
    ASSERT_TRUE(one.WaitFor("left 0"));
    const std::string address = relay.Room("");
    EXPECT_EQ(one.Status(0), AnotherCertificate(address.substr(0, address.find('/'))));
    EXPECT_EQ(one.Told, (Told{"joined 0", "left 0"}));
    EXPECT_EQ(other.TimesLogged("Authenticated"), 0);
}

TEST_F(ReturnRefusedTest, ByAPassword) {
    ASSERT_EQ(one.JoinAndWait(0, server.Room("122.8")), "joined");
    LoseAndChange([this] { server.TakePassword("green"); });
    EXPECT_EQ(one.Status(0), server.Address() + " lets nobody in without its password.");
    ExpectNoReturn("green");
    one.Password = "green";
    EXPECT_EQ(one.JoinAndWait(0, server.Room("122.8")), "joined");

    one.Told = {"joined 0"};
    LoseAndChange([this] { server.TakePassword("another"); });
    EXPECT_EQ(one.Status(0), "The password for " + server.Address() + " is wrong; join again to give another.");
    ExpectNoReturn("another");
    one.Password = "another";
    EXPECT_EQ(one.JoinAndWait(0, server.Room("122.8")), "joined");
}

}  // namespace orvelle::mumble
