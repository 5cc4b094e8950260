// Which brokers a panel goes to by the names of its servers, what it is told of the network, and what its user is told,
// with real brokers.
#include <algorithm>
#include <csignal>
#include <fstream>

#include "apps/FreePort.h"
#include "tests/linux/WaitUntil.h"
#include "tests/mqtt/broker/LoopbackPorts.h"
#include "tests/mqtt/broker/SetUpRig.h"
#include "tests/shared/OwnFolder.h"

namespace orvelle::mqtt {
namespace {

constexpr const char* SameBroker = "127.1";  // as the system reads addresses, and another name for us

class BrokersTest : public SetUpRig {
protected:
    bool Tells(const std::string& what) {
        return Until([&] { return std::ranges::find(panel->Told, what) != panel->Told.end(); });
    }
    std::ptrdiff_t Count(const std::string& what) const { return std::ranges::count(panel->Told, what); }
    void Play(const SetUpSetting& setUp, const std::string& simulatorServer, const std::string& frameworkServer) {
        panel = std::make_unique<LinesOfAPanel>(loop, setUp, simulatorServer, frameworkServer);
    }
    FoundServer Here(const std::string& setUp = "Test") const { return {setUp, {"127.0.0.1", broker.Port()}}; }
    // The set-up's file says a host where it isn't any more.
    SetUpSetting Moved() const {
        SetUpSetting setUp = broker.SetUpOf(2);
        setUp.Host = "no-such-host.invalid";
        return setUp;
    }
    bool HasOneConnection() const { return panel->Places.At("localhost") == panel->Places.At(SameBroker); }

    PlayedMember simulator{loop, broker.SetUpOf(1), Program::Simulator};
    std::unique_ptr<LinesOfAPanel> panel;
};

TEST_F(BrokersTest, WhatTheNetworkShowsIsToldByBothLinks) {
    Play(broker.SetUpOf(2), "localhost", "localhost");
    panel->Places.Found.Add({"Test", {"simpc.local", 8883}});
    EXPECT_TRUE(Tells("simulator found simpc.local"));
    EXPECT_TRUE(Tells("framework found simpc.local"));
    panel->Places.Found.Add({"Club", {"club.local", 8883}});
    EXPECT_TRUE(Tells("simulator found club.local"));
    EXPECT_TRUE(Tells("framework found club.local"));
    // A line that is opened later is told of what is known by then.
    panel->Framework.Close();
    panel->Simulator.Close();
    panel->Told.clear();
    panel->Framework.Open("localhost");
    EXPECT_TRUE(Tells("framework found simpc.local"));
    EXPECT_TRUE(Tells("framework found club.local"));
    EXPECT_EQ(Count("simulator found club.local"), 0) << "it is closed";
}

TEST_F(BrokersTest, ServersAreToldAnewWithTheSimulatorLinkAsThePanelForgetsThem) {
    Play(broker.SetUpOf(2), "localhost", "localhost");
    panel->Places.Found.Add({"Test", {"simpc.local", 8883}});
    ASSERT_TRUE(Tells("simulator up"));
    EXPECT_TRUE(Until([this] {
        const auto up = std::ranges::find(panel->Told, "simulator up");
        return std::find(up, panel->Told.end(), "framework found simpc.local") != panel->Told.end();
    }));
}

TEST_F(BrokersTest, AutomaticGoesWhereTheSetUpIsShown) {
    Play(Moved(), "", "");
    panel->Places.Found.Begin();
    panel->Simulator.Open("AUTOMATIC");
    panel->Framework.Open("AUTOMATIC");
    panel->Places.Found.Add(Here("Club"));
    ServeFor(300);
    EXPECT_EQ(Count("simulator up"), 0) << "that is another set-up";
    panel->Places.Found.Add(Here());
    EXPECT_TRUE(Tells("simulator up"));
    EXPECT_TRUE(Tells("framework up"));
}

TEST_F(BrokersTest, AutomaticGoesToTheHostOfTheFileWhereNothingIsShownInTime) {
    Play(broker.SetUpOf(2), "", "");
    panel->Places.Found.Begin();
    const auto begin = std::chrono::steady_clock::now();
    panel->Simulator.Open("AUTOMATIC");
    EXPECT_TRUE(Tells("simulator up"));
    EXPECT_GE(std::chrono::steady_clock::now() - begin, std::chrono::seconds(2));
}

TEST_F(BrokersTest, ASetUpThatMovedIsFoundWhenItIsShownLater) {
    Play(Moved(), "AUTOMATIC", "AUTOMATIC");
    ServeFor(500);
    panel->Places.Found.Add(Here());
    EXPECT_TRUE(Tells("simulator up"));
    EXPECT_TRUE(Tells("framework up"));
    EXPECT_EQ(Count("simulator lost"), 0);
}

TEST_F(BrokersTest, RecordsMadeWhileAutomaticLooksGoAlong) {
    Play(broker.SetUpOf(2), "", "");
    panel->Places.Found.Begin();
    panel->Framework.Open("AUTOMATIC");
    const Long id = panel->Framework.NewRecordId();
    EXPECT_EQ(id, RecordId(2, 1));
    panel->Framework.SayRecord(id, {"VOICE", "VVL", {}}, {});
    EXPECT_TRUE(Until([this] {
        return std::ranges::any_of(simulator.Heard, [](const std::string& each) {
            return each.starts_with("orvelle/1/c02/panel/record/1 {");
        });
    }));
}

// Whoever is on the network can announce our set-up's name.
TEST_F(BrokersTest, NobodyWhoAnnouncesOurNameKeepsUsFromTheHostOfTheFile) {
    const OwnFolder folder;
    const int plainPort = FreePort();
    std::ofstream(folder.Path / "plain") << "listener " << plainPort << " 127.0.0.1\nallow_anonymous true\nuser root\n";
    const linux::ChildProcess plain({"/usr/sbin/mosquitto", "-c", (folder.Path / "plain").string()});
    const LoopbackListener silent;
    const int refusingPort = FreePort();
    const linux::ChildProcess refusing({"openssl", "s_server", "-quiet", "-nocert", "-psk_identity", "c02", "-psk",
                                        std::string(26, 'a'), "-tls1_2", "-accept",
                                        "127.0.0.1:" + std::to_string(refusingPort)});
    EXPECT_TRUE(linux::WaitUntil([&] { return IsListenedTo(plainPort) && IsListenedTo(refusingPort); }));
    for (const int port : {plainPort, silent.Port(), refusingPort}) {
        Play(broker.SetUpOf(2), "", "");
        panel->Places.Found.Add({"Test", {"localhost", port}});
        panel->Simulator.Open("AUTOMATIC");
        EXPECT_TRUE(Tells("simulator up")) << port;
        EXPECT_TRUE(panel->Sentences.empty());
        panel.reset();
    }
}

TEST_F(BrokersTest, TwoNamesOfOneBrokerHaveOneConnection) {
    Play(broker.SetUpOf(2), "localhost", SameBroker);
    EXPECT_TRUE(Until([this] { return HasOneConnection(); }));
    EXPECT_TRUE(Tells("simulator up"));
    EXPECT_TRUE(Tells("framework up"));
    ServeFor(1000);
    panel->Told.clear();
    ServeFor(4000);
    EXPECT_TRUE(panel->Told.empty()) << panel->Told.front();
    EXPECT_TRUE(panel->Sentences.empty());
    // Each name by itself works on, and both as well after a restart of the broker.
    broker.Kill(SIGKILL);
    EXPECT_TRUE(Tells("simulator lost"));
    broker.Start();
    panel->Told.clear();
    EXPECT_TRUE(Tells("simulator up"));
    EXPECT_TRUE(Tells("framework up"));
    EXPECT_TRUE(Until([this] { return HasOneConnection(); }));
    panel->Simulator.Close();
    panel->Told.clear();
    ServeFor(1000);
    EXPECT_EQ(Count("framework lost"), 0);
}

TEST_F(BrokersTest, RecordsStayWhereTwoNamesBecomeOneConnection) {
    Play(broker.SetUpOf(2), "", "localhost");
    ASSERT_TRUE(Tells("framework up"));
    const Long id = panel->Framework.NewRecordId();
    panel->Framework.SayRecord(id, {"VOICE", "VVL", {}}, {});
    PlayedMember watcher(loop, broker.SetUpOf(3), Program::Panel);
    const std::string record = "orvelle/1/c02/panel/record/1 ";
    const auto heard = [&](const std::string& start) {
        return std::ranges::count_if(watcher.Heard, [&](const auto& each) { return each.starts_with(start); });
    };
    ASSERT_TRUE(Until([&] { return heard(record + "{") > 0; }));
    panel->Simulator.Open(SameBroker);
    EXPECT_TRUE(Tells("simulator up"));
    EXPECT_TRUE(Until([this] { return HasOneConnection(); }));
    ServeFor(1000);
    EXPECT_EQ(std::ranges::count(watcher.Heard, record), 0) << "it never ended";
    EXPECT_EQ(panel->Places.At("localhost")->OwnRecords().size(), 1);
}

TEST_F(BrokersTest, ASecondProgramOfOurNameMakesNoStormAndIsTold) {
    Play(broker.SetUpOf(2), "localhost", "localhost");
    ASSERT_TRUE(Tells("simulator up"));
    PlayedMember second(loop, broker.SetUpOf(2), Program::Panel);
    int losses = 0;
    second.AtBroker.Lost = [&] { ++losses; };
    ServeFor(9000);
    EXPECT_LE(Count("simulator lost") + losses, 10) << "twice as many where each attempt follows at once";
    ASSERT_EQ(panel->Sentences.size(), 1);
    EXPECT_TRUE(panel->Sentences.front().ends_with("as c02, too; each computer needs a code of its own."))
        << panel->Sentences.front();
    second.AtBroker.Close();
    panel->Told.clear();
    EXPECT_TRUE(Until([this] { return panel->Places.At("localhost")->IsThere(); }));
    ServeFor(3000);
    EXPECT_EQ(Count("simulator lost"), 0);
}

TEST_F(BrokersTest, AKeyThatIsNotTakenIsToldOnce) {
    SetUpSetting wrong = broker.SetUpOf(2);
    wrong.Key[0] ^= 1;
    Play(wrong, "AUTOMATIC", "localhost");
    const std::string place = "127.0.0.1:" + std::to_string(broker.Port());
    EXPECT_TRUE(Until([this] { return !panel->Sentences.empty(); }));
    ServeFor(3000);
    EXPECT_EQ(panel->Sentences,
              std::vector{"The set-up at " + place +
                          " doesn't take this computer's key: it is another set-up, or this computer was removed."});
}

TEST_F(BrokersTest, WhatOneComputerMayMakeUsKeepIsBounded) {
    Play(broker.SetUpOf(2), "localhost", "localhost");
    PlayedMember hostile(loop, broker.SetUpOf(3), Program::Panel);
    ASSERT_TRUE(Tells("framework up"));
    ASSERT_TRUE(Until([&] { return hostile.AtBroker.IsThere(); }));
    const auto say = [&](Long number) {
        hostile.AtBroker.Say(TopicKind::Record, R"({"type":"T","role":"R"})", 1, Retain::Yes, number);
    };
    for (Long number = 1; number <= 1010; ++number) say(number);
    hostile.AtBroker.Say(TopicKind::Record, std::string(100000, ' '), 1, Retain::Yes, 7);
    const auto at = panel->Places.At("localhost");
    EXPECT_TRUE(Until([&] { return at->Refused() == 11; })) << at->Refused();
    EXPECT_EQ(at->Kept().size(), 1000);
    EXPECT_TRUE(Tells("record " + std::to_string(RecordId(3, 1000)) + " R"));
    EXPECT_EQ(Count("record " + std::to_string(RecordId(3, 1001)) + " R"), 0);
    hostile.AtBroker.Say(TopicKind::Record, "", 1, Retain::Yes, 5);
    say(1001);
    EXPECT_TRUE(Tells("record " + std::to_string(RecordId(3, 1001)) + " R"));
}

}  // namespace
}  // namespace orvelle::mqtt
