// orvelle-sim as a program, with the broker that it brings, and other members beside it.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <chrono>
#include <csignal>
#include <fstream>

#include "adapters/mqtt/JoinCode.h"
#include "adapters/mqtt/OwnSetUp.h"
#include "tests/linux/WaitUntil.h"
#include "tests/mqtt/broker/BrokerProcess.h"
#include "tests/mqtt/broker/SetUpRig.h"

namespace orvelle::mqtt {
namespace {

namespace fs = std::filesystem;

struct Ended {
    int Status;
    std::string Output;  // the first line
    std::string Errors;
};

class SimulatorProgramTest : public testing::Test {
protected:
    SimulatorProgramTest() {
        std::string pattern = fs::temp_directory_path() / "orvelle-sim-XXXXXX";
        data = mkdtemp(pattern.data());
    }
    ~SimulatorProgramTest() override {
        program.reset();
        fs::remove_all(data);
    }

    std::vector<std::string> Words(std::vector<std::string> more) const {
        std::vector<std::string> words{SIMULATOR_PROGRAM, "--data", data.string()};
        words.insert(words.end(), more.begin(), more.end());
        return words;
    }
    Ended Run(std::vector<std::string> words) const {
        linux::ChildProcess errand(Words(std::move(words)));
        const std::string line = errand.ReadLine();
        const int status = errand.Wait();
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, line, errand.Errors()};
    }
    bool Lists(const std::string& start, const std::string& end) const {
        return linux::WaitUntil([&] {
            linux::ChildProcess list(Words({"--list"}));
            for (std::string line; !(line = list.ReadLine()).empty();)
                if (line.starts_with(start) && line.ends_with(end)) return true;
            return false;
        });
    }
    void Serve() {
        program = std::make_unique<linux::ChildProcess>(Words({"--no-window", "--port", std::to_string(port)}));
        ASSERT_TRUE(Lists("c01\t", "\tthere"));
    }
    SetUpSetting Add() const {
        const auto code = ReadJoinCode(Run({"--add"}).Output);
        EXPECT_TRUE(code);
        return {"Test", "127.0.0.1", port, code ? code->Number : 99, code ? code->Key : Key{}};
    }
    // The broker's processes of this set-up.
    std::vector<pid_t> Brokers() const {
        std::vector<pid_t> found;
        for (const auto& entry : fs::directory_iterator("/proc")) {
            std::ifstream file(entry.path() / "cmdline");
            const std::string line((std::istreambuf_iterator<char>(file)), {});
            if (line.find("mosquitto") != std::string::npos && line.find(data.string()) != std::string::npos)
                found.push_back(std::stoi(entry.path().filename()));
        }
        return found;
    }
    template <typename Condition>
    bool Until(Condition isSo) {
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(30);
        while (!isSo() && std::chrono::steady_clock::now() < end) {
            const Ticket moment = loop.After(2, [this] { loop.Stop(); });
            loop.Run();
        }
        return isSo();
    }
    fs::path data;
    const int port = FreePort();
    linux::PollEventLoop loop;
    std::unique_ptr<linux::ChildProcess> program;
};

TEST_F(SimulatorProgramTest, AComputerThatIsAddedComesAndIsListed) {
    Serve();
    const SetUpSetting added = Add();
    EXPECT_EQ(added.Identity, 2);
    EXPECT_TRUE(Lists("c02\t-\t", "away"));
    PlayedMember member(loop, added, Program::Panel);
    ASSERT_TRUE(Until([&] { return member.AtBroker.IsThere(); }));
    ASSERT_TRUE(Until([&] { return member.AtBroker.Others().SimulatorOffering(&PresenceSetting::OffersSimulator); }));
    const Ended list = Run({"--list"});
    EXPECT_EQ(list.Status, 0);
}

TEST_F(SimulatorProgramTest, NobodyComesWithoutAKeyOfTheSetUp) {
    Serve();
    SetUpSetting wrong = Add();
    wrong.Key[0] ^= 1;
    const SetUpSetting unknown{"Test", "127.0.0.1", port, 50, Key{}};
    PlayedMember withWrongKey(loop, wrong, Program::Panel);
    PlayedMember withUnknownName(loop, unknown, Program::Panel);
    EXPECT_TRUE(Until([&] { return withWrongKey.AtBroker.Trouble() == BrokerTrouble::Refused; }));
    EXPECT_TRUE(Until([&] { return withUnknownName.AtBroker.Trouble() == BrokerTrouble::Refused; }));
    linux::ChildProcess withNoKey(
        {"mosquitto_pub", "-h", "127.0.0.1", "-p", std::to_string(port), "-t", "a", "-m", "b"});
    EXPECT_NE(withNoKey.Wait(), 0);
}

TEST_F(SimulatorProgramTest, WhatIsWrittenBelowAnotherIdentityIsDropped) {
    Serve();
    const SetUpSetting second = Add();
    const SetUpSetting third = Add();
    PlayedMember member(loop, second, Program::Panel);
    ASSERT_TRUE(Until([&] { return member.AtBroker.IsThere(); }));
    const auto publish = [&](const std::string& topic) {
        linux::ChildProcess publisher({"mosquitto_pub", "-h", "127.0.0.1", "-p", std::to_string(port), "-V", "5",
                                       "--psk-identity", "c03", "--psk", WriteKey(third.Key), "-q", "1", "-t", topic,
                                       "-m", "forged"});
        publisher.Wait();
    };
    publish("orvelle/1/c01/sim/session");
    publish("orvelle/1/c03/sim/session");
    ASSERT_TRUE(Until([&] { return std::ranges::count(member.Heard, "orvelle/1/c03/sim/session forged") == 1; }));
    EXPECT_EQ(std::ranges::count(member.Heard, "orvelle/1/c01/sim/session forged"), 0);
}

TEST_F(SimulatorProgramTest, ARemovedComputerIsCutOffWithinASecondUnderWhateverName) {
    Serve();
    const SetUpSetting removed = Add();
    const SetUpSetting stays = Add();
    PlayedMember other(loop, stays, Program::Panel);
    PlayedMember gone(loop, removed, Program::Panel);
    ASSERT_TRUE(Until([&] { return other.AtBroker.IsThere() && gone.AtBroker.IsThere(); }));
    bool hasOtherLost = false;
    other.AtBroker.Lost = [&] { hasOtherLost = true; };
    // Somebody with the removed key who only listens, under a name that looks like a line of the broker's own.
    bool listens = false;
    BrokerConnection listener(loop);
    listener.Up = [&] { listens = true; };
    listener.Lost = [&] { listens = false; };
    listener.Open({.Access = {"127.0.0.1", port, "c02", WriteKey(removed.Key)},
                   .ClientId = "some) name (p5, u'c01').",
                   .WillTopic = "",
                   .Subscriptions = {{"orvelle/1/#", 0}}});
    ASSERT_TRUE(Until([&] { return listens; }));

    const std::vector<pid_t> brokers = Brokers();
    ASSERT_EQ(Run({"--remove", "c02"}).Status, 0);
    const auto start = std::chrono::steady_clock::now();
    ASSERT_TRUE(Until([&] { return !listens && !gone.AtBroker.IsThere(); }));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
    EXPECT_TRUE(Until([&] { return gone.AtBroker.Trouble() == BrokerTrouble::Refused; }));
    EXPECT_FALSE(hasOtherLost);
    EXPECT_EQ(Brokers(), brokers);
}

TEST_F(SimulatorProgramTest, TheBrokerEndsWithTheProgramHoweverItEnds) {
    for (const int signal : {SIGKILL, SIGTERM}) {
        Serve();
        ASSERT_EQ(Brokers().size(), 1U);
        program->Kill(signal);
        const int status = program->Wait();
        EXPECT_EQ(status, signal == SIGTERM ? 0 : SIGKILL);
        EXPECT_TRUE(linux::WaitUntil([this] { return Brokers().empty(); }));
    }
}

TEST_F(SimulatorProgramTest, ABrokerThatEndsIsStartedAgain) {
    Serve();
    const SetUpSetting added = Add();
    const std::vector<pid_t> before = Brokers();
    ASSERT_EQ(before.size(), 1U);
    kill(before.front(), SIGKILL);
    PlayedMember member(loop, added, Program::Panel);
    EXPECT_TRUE(Until([&] { return member.AtBroker.IsThere() && Brokers() != before; }));
    EXPECT_TRUE(Lists("c01\t", "\tthere"));
}

TEST_F(SimulatorProgramTest, APortThatIsTakenIsToldAndEndsTheProgram) {
    BrokerProcess taken;
    const Ended ended = Run({"--no-window", "--port", std::to_string(taken.Port())});
    EXPECT_EQ(ended.Status, 1);
    EXPECT_NE(ended.Errors.find("port"), std::string::npos) << ended.Errors;
    EXPECT_TRUE(ended.Errors.ends_with(": another program uses its port already; --port names another one.\n"))
        << ended.Errors;
}

TEST_F(SimulatorProgramTest, ASecondOneIsToldAndEndsAndTheFirstGoesOn) {
    Serve();
    const Ended second = Run({"--no-window"});
    EXPECT_EQ(second.Status, 1);
    EXPECT_NE(second.Errors.find("Another"), std::string::npos) << second.Errors;
    EXPECT_TRUE(Lists("c01\t", "\tthere"));
}

TEST_F(SimulatorProgramTest, AnExistingBrokerServesWhereItIsNamed) {
    BrokerProcess existing;
    ASSERT_TRUE(OwnSetUp(data).ReadOrMake("Test", 0).Setting);
    // Its keys are the other broker's, as somebody has copied them.
    std::ofstream(data / "broker/set-up.json")
        << R"({"version":1,"setup":"Test","port":8883,"keys":{"1":")" << WriteKey(existing.SetUpOf(1).Key) << "\"}}";
    program = std::make_unique<linux::ChildProcess>(
        Words({"--no-window", "--host", "127.0.0.1:" + std::to_string(existing.Port())}));
    EXPECT_TRUE(Lists("c01\t", "\tthere"));
    EXPECT_TRUE(Brokers().empty());
}

TEST_F(SimulatorProgramTest, WordsThatAreNotUnderstoodAreToldInOneLine) {
    for (const std::vector<std::string>& words :
         {std::vector<std::string>{"--nonsense"}, {"--remove", "c00"}, {"--port", "0"}, {"--add"}, {"--list"}}) {
        const Ended ended = Run(words);
        EXPECT_EQ(ended.Status, 1);
        EXPECT_EQ(std::ranges::count(ended.Errors, '\n'), 1) << ended.Errors;
    }
}

}  // namespace
}  // namespace orvelle::mqtt
