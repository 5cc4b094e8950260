// Joining a real broker, and whatever else may answer or not.
#include "adapters/mqtt/Joining.h"

#include <fstream>

#include "apps/FreePort.h"
#include "tests/linux/WaitUntil.h"
#include "tests/mqtt/broker/LoopbackPorts.h"
#include "tests/mqtt/broker/SetUpRig.h"
#include "tests/shared/OwnFolder.h"

namespace orvelle::mqtt {
namespace {

class JoiningTest : public SetUpRig {
protected:
    JoiningTest() {
        joining.Ended = [this](JoinOutcome how, const std::string& what) {
            outcome = how;
            sentence = what;
        };
    }

    std::optional<JoinOutcome> Try(const SetUpSetting& setUp) {
        outcome.reset();
        joining.Try(setUp);
        EXPECT_FALSE(outcome) << "told from the loop";
        EXPECT_TRUE(Until([this] { return outcome.has_value(); }));
        EXPECT_FALSE(joining.IsUnderWay());
        EXPECT_TRUE(sentence.ends_with(".")) << sentence;
        return outcome;
    }
    std::optional<SetUpSetting> Kept() const { return ReadSetUpFile(file).Setting; }
    SetUpSetting At(int port) const {
        SetUpSetting setUp = broker.SetUpOf(7);
        setUp.Port = port;
        return setUp;
    }

    OwnFolder folder;
    const std::filesystem::path file = folder.Path / "OrvelleCP" / "setup.json";
    Joining joining{loop, file};
    std::optional<JoinOutcome> outcome;
    std::string sentence;
};

TEST_F(JoiningTest, WithTheRightKeyTheSetUpIsKept) {
    EXPECT_EQ(Try(broker.SetUpOf(7)), JoinOutcome::Joined);
    EXPECT_EQ(Kept(), broker.SetUpOf(7));
    EXPECT_EQ(sentence, "This computer is c07 of the set-up Test now, whose broker is 127.0.0.1:" +
                            std::to_string(broker.Port()) + ".");
}

TEST_F(JoiningTest, AnotherKeyAndAnUnknownNumberAreRefused) {
    SetUpSetting wrong = broker.SetUpOf(7);
    wrong.Key[0] ^= 1;
    EXPECT_EQ(Try(wrong), JoinOutcome::Refused) << sentence;
    wrong = broker.SetUpOf(7);
    wrong.Identity = 77;
    EXPECT_EQ(Try(wrong), JoinOutcome::Refused) << sentence;
    EXPECT_EQ(Kept(), std::nullopt);
}

TEST_F(JoiningTest, WhereNobodyListensOrAnswersItEnds) {
    EXPECT_EQ(Try(At(FreePort())), JoinOutcome::Unreachable);
    const LoopbackListener silent;
    EXPECT_EQ(Try(At(silent.Port())), JoinOutcome::Unreachable);
    EXPECT_EQ(Kept(), std::nullopt);
}

TEST_F(JoiningTest, AHostThatNobodyKnowsIsToldAsSuch) {
    SetUpSetting setUp = broker.SetUpOf(7);
    setUp.Host = "no-such-host.invalid";
    EXPECT_EQ(Try(setUp), JoinOutcome::HostUnknown);
    EXPECT_EQ(sentence, "There is no computer by the name no-such-host.invalid.");
}

TEST_F(JoiningTest, ABrokerWithoutEncryptionIsNoSetUp) {
    const int port = FreePort();
    std::ofstream(folder.Path / "plain") << "listener " << port << " 127.0.0.1\nallow_anonymous true\nuser root\n";
    linux::ChildProcess plain({"/usr/sbin/mosquitto", "-c", (folder.Path / "plain").string()});
    // Until it listens there is nobody.
    EXPECT_TRUE(linux::WaitUntil([&] { return Try(At(port)) != JoinOutcome::Unreachable; }));
    EXPECT_EQ(outcome, JoinOutcome::NotASetUp) << sentence;
    EXPECT_EQ(Kept(), std::nullopt);
}

TEST_F(JoiningTest, ABrokerOfTheProtocolBeforeIsNoSetUp) {
    const int port = FreePort();
    linux::ChildProcess older({"openssl", "s_server", "-quiet", "-nocert", "-psk_identity", "c07", "-psk",
                               WriteKey(broker.SetUpOf(7).Key), "-tls1_2", "-accept",
                               "127.0.0.1:" + std::to_string(port)});
    // What it has for whoever comes: CONNACK of version 3.1.1, "unacceptable protocol version".
    older.WriteLine(std::string("\x20\x02\x00\x01", 4));
    EXPECT_TRUE(linux::WaitUntil([&] { return Try(At(port)) != JoinOutcome::Unreachable; }));
    EXPECT_EQ(outcome, JoinOutcome::NotASetUp) << sentence;
    EXPECT_NE(sentence.find("MQTT 5"), std::string::npos) << sentence;
}

TEST_F(JoiningTest, AnotherSetUpHasToBeLeftFirstAndAnotherHostNot) {
    ASSERT_EQ(Try(broker.SetUpOf(7)), JoinOutcome::Joined);
    EXPECT_EQ(Try(broker.SetUpOf(8)), JoinOutcome::InAnotherSetUp);
    EXPECT_EQ(sentence, "This computer is in the set-up Test already; leave that first.");
    EXPECT_EQ(Kept(), broker.SetUpOf(7));
    SetUpSetting elsewhere = broker.SetUpOf(7);
    elsewhere.Host = "localhost";
    EXPECT_EQ(Try(elsewhere), JoinOutcome::Joined) << sentence;
    EXPECT_EQ(Kept(), elsewhere);
}

TEST_F(JoiningTest, ADamagedFileCountsAsNone) {
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file) << "{";
    EXPECT_EQ(Try(broker.SetUpOf(7)), JoinOutcome::Joined);
    EXPECT_EQ(Kept(), broker.SetUpOf(7));
}

TEST_F(JoiningTest, WhereTheFileCannotBeWrittenNothingIsJoined) {
    std::ofstream(folder.Path / "OrvelleCP") << "a file where the folder should be";
    EXPECT_EQ(Try(broker.SetUpOf(7)), JoinOutcome::NotKept) << sentence;
    EXPECT_NE(sentence.find("setup.json"), std::string::npos) << sentence;
}

TEST_F(JoiningTest, NoProgramOfTheComputerIsDisturbed) {
    PlayedMember panel(loop, broker.SetUpOf(7), Program::Panel);
    ASSERT_TRUE(Until([&] { return panel.AtBroker.IsThere(); }));
    bool isLost = false;
    panel.AtBroker.Lost = [&] { isLost = true; };
    EXPECT_EQ(Try(broker.SetUpOf(7)), JoinOutcome::Joined);
    ServeFor(200);
    EXPECT_FALSE(isLost);
    EXPECT_TRUE(panel.Heard.empty());
}

TEST_F(JoiningTest, CancelledItTellsNothing) {
    joining.Try(broker.SetUpOf(7));
    joining.Cancel();
    ServeFor(300);
    EXPECT_EQ(outcome, std::nullopt);
    EXPECT_EQ(Kept(), std::nullopt);
}

}  // namespace
}  // namespace orvelle::mqtt
