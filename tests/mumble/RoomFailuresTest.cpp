// What can go wrong with a voice room, each at something real: one event and one sentence, soon.
#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <iostream>
#include <regex>

#include "adapters/shared/PrivateFile.h"
#include "tests/mumble/Operator.h"
#include "tests/mumble/PlayedPilot.h"
#include "tests/mumble/PlayedServer.h"
#include "tests/mumble/VoiceRelay.h"
#include "tests/mumble/VoiceServerRig.h"

namespace orvelle::mumble {

namespace {

using Told = std::vector<std::string>;

class RoomFailuresTest : public testing::Test {
protected:
    // The sentence by which the room fails, and by nothing else.
    std::string Failure(const std::string& address) {
        const auto start = std::chrono::steady_clock::now();
        const std::size_t before = one.Told.size();
        EXPECT_EQ(one.JoinAndWait(0, address), "failed");
        const auto took = std::chrono::steady_clock::now() - start;
        std::cout << "failed after " << std::chrono::duration_cast<std::chrono::milliseconds>(took).count()
                  << " ms: " << one.Status(0) << '\n';
        EXPECT_EQ(one.Told.size(), before + 1);
        return one.Status(0);
    }
    // The name of the place in a sentence.
    static std::string ServerOf(const std::string& address) { return address.substr(0, address.find('/')); }

    linux::PollEventLoop loop;
    PlayedPilot one{loop, "AAL12"};
    PlayedPilot two{loop, "DLH3K"};
};

std::string Header(unsigned type, unsigned length) {
    std::string bytes;
    for (const unsigned part : {type >> 8, type, length >> 24, length >> 16, length >> 8, length})
        bytes += static_cast<char>(part & 0xFF);
    return bytes;
}

}  // namespace

TEST_F(RoomFailuresTest, AHostThatDoesNotExist) {
    EXPECT_EQ(Failure("no-such-host.invalid/122.8"), "There is no computer named no-such-host.invalid.");
}

TEST_F(RoomFailuresTest, NobodyAtThePort) {
    const std::string place = "127.0.0.1:" + std::to_string(FreePort());
    EXPECT_EQ(Failure(place + "/122.8"), "No voice server runs at " + place + ".");
}

TEST_F(RoomFailuresTest, SomebodyWhoNeverAnswers) {
    const SilentServer server;
    EXPECT_EQ(Failure(server.Room("122.8")), ServerOf(server.Room("")) + " does not answer.");
}

TEST_F(RoomFailuresTest, SomebodyWhoNeverAnswersInTls) {
    const EncryptedServer server("");
    EXPECT_EQ(Failure(server.Room("122.8")), ServerOf(server.Room("")) + " does not answer.");
}

TEST_F(RoomFailuresTest, SomebodyWhoSaysOtherThings) {
    BabblingServer server(loop, "220 mail.example ESMTP ready, and what else there is to say\r\n");
    EXPECT_EQ(Failure(server.Room("122.8")), "What answers at " + ServerOf(server.Room("")) + " is no voice server.");
    BabblingServer silent(loop, "");
    EXPECT_EQ(Failure(silent.Room("122.8")),
              ServerOf(silent.Room("")) + " closed the connection; it may be full, or we came too often.");
}

TEST_F(RoomFailuresTest, GarbageInTls) {
    std::string garbage = "HTTP/1.1 400 Bad Request\r\n\r\n";
    for (unsigned number = 0; number < 20000; ++number) garbage += static_cast<char>(number * number >> 3);
    const EncryptedServer server(garbage);
    EXPECT_EQ(Failure(server.Room("122.8")), "What answers at " + ServerOf(server.Room("")) + " is no voice server.");
}

// Seventy thousand channels of a megabyte and more, and messages that hold nothing.
TEST_F(RoomFailuresTest, AFloodOfChannels) {
    std::string flood;
    for (unsigned number = 0; number < 70000; ++number) {
        std::string channel = {0x08,
                               static_cast<char>(0x80 | (number & 0x7F)),
                               static_cast<char>(0x80 | (number >> 7 & 0x7F)),
                               static_cast<char>(number >> 14),
                               0x1A,
                               4};
        flood += Header(7, 10) + channel + "name" + Header(1, 0) + Header(9, 0) + Header(0xFFFF, 3) + "abc";
    }
    const EncryptedServer server(flood);
    EXPECT_EQ(Failure(server.Room("122.8")), "What answers at " + ServerOf(server.Room("")) + " is no voice server.");
}

TEST_F(RoomFailuresTest, AClosedConnectionInTheMiddleOfEverything) {
    VoiceServerRig server;
    for (unsigned long bytes = 100; bytes < 6000; bytes += 700) {
        VoiceRelay relay(loop, server.Port());
        one.Told.clear();
        one.Join(0, relay.Room("122.8"));
        ASSERT_TRUE(one.Until([&] { return relay.Tunnelled >= bytes || !one.Told.empty(); }));
        relay.Cut();
        // Cut off before it is in, it fails; after that, it comes back.
        ASSERT_TRUE(one.Until([&] { return !one.Told.empty(); })) << bytes;
        EXPECT_EQ(one.Told.size(), 1U);
        one.Leave(0);
    }
}

TEST_F(RoomFailuresTest, AWrongPasswordThenTheRightOne) {
    VoiceServerRig server({.Password = "green flash"});
    const std::string asked = "password " + server.Address();
    const std::string wrong = "The password for " + server.Address() + " is wrong; join again to give another.";
    const std::string again = "another " + asked;
    one.Password = "gren flash";
    EXPECT_EQ(one.JoinAndWait(0, server.Room("122.8")), "failed");
    EXPECT_EQ(one.Told, (Told{asked, again, "failed 0"}));
    EXPECT_EQ(one.Status(0), wrong);

    one.Told.clear();
    one.NextPassword = "green flash";
    EXPECT_EQ(one.JoinAndWait(0, server.Room("122.8")), "joined");
    EXPECT_EQ(one.JoinAndWait(1, server.Room("122.8")), "joined");
    EXPECT_EQ(one.Told, (Told{asked, again, "joined 0", "joined 1"}));
    const std::filesystem::path file = one.Folder.Path / "server-passwords";
    EXPECT_EQ(std::filesystem::status(file).permissions(), std::filesystem::perms(0600));

    // It is kept over a restart, and asked for anew where the server takes it no more.
    one.Restart();
    one.Told.clear();
    EXPECT_EQ(one.JoinAndWait(0, server.Room("122.8")), "joined");
    one.Restart();
    server.Kill();
    server.TakePassword("another");
    server.Start();
    EXPECT_EQ(one.JoinAndWait(0, server.Room("122.8")), "failed");
    EXPECT_EQ(one.Status(0), wrong);
    EXPECT_FALSE(exists(file));
    one.Password = "another";
    EXPECT_EQ(one.JoinAndWait(0, server.Room("122.8")), "joined");
    EXPECT_EQ(one.Told, (Told{"joined 0", again, "failed 0", asked, "joined 0"}));
}

TEST_F(RoomFailuresTest, APasswordIsAskedForOnceForAllRooms) {
    VoiceServerRig server({.Password = "green"});
    for (Long room = 0; room < Rooms; ++room) one.Join(room, server.Room("122.8"));
    ASSERT_TRUE(one.Until([&] {
        return one.Status(0) == one.Status(2) && one.Status(1) == one.Status(2) &&
               one.Status(0) == server.Address() + " asks for its password";
    }));
    EXPECT_EQ(one.Told, (Told{"password " + server.Address()}));
    one.Leave(2);
    one.Rooms->GivePassword(server.Address(), "green");
    EXPECT_TRUE(one.WaitFor("joined 0") && one.WaitFor("joined 1"));
    EXPECT_EQ(one.Told.size(), 3U);

    two.Join(0, server.Room("122.8"));
    ASSERT_TRUE(two.WaitFor("password " + server.Address()));
    two.Rooms->GivePassword(server.Address(), std::nullopt);
    EXPECT_EQ(two.Told, (Told{"password " + server.Address(), "failed 0"}));
    EXPECT_EQ(two.Status(0), server.Address() + " lets nobody in without its password.");
}

TEST_F(RoomFailuresTest, NoRightToMakeTheChannel) {
    VoiceServerRig server({.Of = VoiceServerSetting::Rights::AsDelivered});
    EXPECT_EQ(Failure(server.Room("122.8")), server.Address() + " does not let us make the channel 122.8.");
    EXPECT_EQ(Failure(server.Room("121.5")), server.Address() + " does not let us make the channel 121.5.");
    EXPECT_EQ(server.TimesLogged("Authenticated"), 1);
}

TEST_F(RoomFailuresTest, AFullServer) {
    VoiceServerRig server({.Users = 1});
    ASSERT_EQ(two.JoinAndWait(0, server.Room("122.8")), "joined");
    EXPECT_EQ(Failure(server.Room("122.8")),
              server.Address() + " closed the connection; it may be full, or we came too often.");
}

TEST_F(RoomFailuresTest, ABan) {
    VoiceServerRig server({.BansAfter = 2});
    for (int attempt = 0; attempt < 4 && !one.HasTold("failed 0"); ++attempt) {
        one.JoinAndWait(0, server.Room("122.8"));
        one.Restart();
    }
    EXPECT_EQ(one.Status(0), server.Address() + " closed the connection; it may be full, or we came too often.");
}

TEST_F(RoomFailuresTest, AKickIsFinal) {
    VoiceServerRig server;
    Operator chief(loop, server);
    ASSERT_EQ(one.JoinAndWait(0, server.Room("122.8")), "joined");
    chief.Kick("AAL12.1", "Use\nplain\x01 words");
    ASSERT_TRUE(one.WaitFor("kicked 0"));
    EXPECT_EQ(one.Status(0), "The server's operator put us out: Useplain words");
    EXPECT_EQ(one.Told, (Told{"joined 0", "kicked 0"}));
    ASSERT_EQ(two.JoinAndWait(0, server.Room("122.8")), "joined");
    EXPECT_EQ(server.TimesLogged("AAL12.1(-1)> Authenticated"), 1);
    EXPECT_EQ(one.JoinAndWait(0, server.Room("122.8")), "joined");
}

TEST_F(RoomFailuresTest, BeingTakenOutOfTheChannelIsFinal) {
    VoiceServerRig server;
    Operator chief(loop, server);
    ASSERT_EQ(one.JoinAndWait(0, server.Room("122.8")), "joined");
    chief.MoveToRoot("AAL12.1");
    ASSERT_TRUE(one.WaitFor("kicked 0"));
    EXPECT_EQ(one.Status(0), "The server's operator took us out of 122.8.");
    EXPECT_EQ(one.JoinAndWait(0, server.Room("122.8")), "joined");
}

// Two panels of one name would throw each other out for ever.
TEST_F(RoomFailuresTest, TheSameNameTwiceIsFinalForTheOlder) {
    VoiceServerRig server;
    PlayedPilot again(loop, "AAL12");
    ASSERT_EQ(one.JoinAndWait(0, server.Room("122.8")), "joined");
    ASSERT_EQ(again.JoinAndWait(0, server.Room("122.8")), "joined");
    ASSERT_TRUE(one.WaitFor("kicked 0"));
    EXPECT_EQ(one.Status(0), "Somebody else came to " + server.Address() + " with our name.");
    ASSERT_EQ(two.JoinAndWait(0, server.Room("122.8")), "joined");
    EXPECT_EQ(server.TimesLogged("AAL12.1(-1)> Authenticated"), 2);
    EXPECT_EQ(again.Told, (Told{"joined 0"}));
}

TEST_F(RoomFailuresTest, AnotherCertificateOfTheServer) {
    VoiceServerRig server;
    ASSERT_EQ(one.JoinAndWait(0, server.Room("122.8")), "joined");
    one.Leave(0);
    server.Kill();
    server.TakeAnotherCertificate();
    server.Start();
    one.Restart();
    one.Told.clear();
    const std::filesystem::path file = one.Folder.Path / "known-servers";
    const std::string kept = ReadPrivateFile(file, 1000).Text.value_or("");
    // As openssl prints a fingerprint, so that an operator's can be laid beside it.
    EXPECT_TRUE(std::regex_match(kept, std::regex(server.Address() + " ([0-9A-F]{2}:){31}[0-9A-F]{2}\n"))) << kept;
    EXPECT_EQ(Failure(server.Room("122.8")),
              server.Address() + " is not the server that it was. If its operator says that its certificate is new, " +
                  "remove its line from " + file.string() + ".");
    EXPECT_EQ(ReadPrivateFile(file, 1000).Text, kept);
    // The user removes the line, or the file.
    std::ofstream(file, std::ios::trunc) << "";
    EXPECT_EQ(one.JoinAndWait(0, server.Room("122.8")), "joined");
    one.Leave(0);
    server.Kill();
    server.TakeAnotherCertificate();
    server.Start();
    ASSERT_TRUE(remove(file));
    EXPECT_EQ(two.JoinAndWait(0, server.Room("122.8")), "joined");
    one.Join(0, server.Room("121.5"));
    EXPECT_TRUE(one.WaitFor("joined 0", 2)) << one.Status(0);
}

}  // namespace orvelle::mumble
