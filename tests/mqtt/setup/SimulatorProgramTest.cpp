// orvelle-sim as a program, with the broker that it brings, and other members beside it.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <set>
#include <sstream>

#include "adapters/mqtt/JoinCode.h"
#include "adapters/mqtt/OwnSetUp.h"
#include "adapters/shared/WholeFile.h"
#include "apps/FreePort.h"
#include "tests/linux/WaitUntil.h"
#include "tests/mqtt/broker/BrokerProcess.h"
#include "tests/mqtt/broker/SetUpRig.h"
#include "tests/shared/OwnFolder.h"

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
    void Serve(const std::vector<std::string>& more = {}) {
        std::vector<std::string> words{"--no-window", "--port", std::to_string(port)};
        words.insert(words.end(), more.begin(), more.end());
        program = std::make_unique<linux::ChildProcess>(Words(words));
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

TEST_F(SimulatorProgramTest, ACodeThatWasAskedForBeforeTheFirstStartIsTaken) {
    const SetUpSetting added = Add();
    EXPECT_EQ(added.Identity, 2);
    Serve();
    PlayedMember member(loop, added, Program::Panel);
    EXPECT_TRUE(Until([&] { return member.AtBroker.IsThere(); }));
}

TEST_F(SimulatorProgramTest, ComputersThatAreAddedOneAfterTheOtherAreAllKnown) {
    Serve();
    // By the set-up's files as they are, with no time between two of them.
    const OwnSetUp setUp(data);
    std::vector<std::unique_ptr<PlayedMember>> members;
    for (int number = 2; number <= 40; ++number) {
        const auto added = setUp.Add();
        ASSERT_TRUE(added.Code) << added.Sentence;
        if (number % 8 != 0) continue;
        const SetUpSetting known{"Test", "127.0.0.1", port, number, added.Code->Key};
        members.push_back(std::make_unique<PlayedMember>(loop, known, Program::Panel));
    }
    for (const auto& member : members) EXPECT_TRUE(Until([&] { return member->AtBroker.IsThere(); }));
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
        return publisher.Wait() == 0;
    };
    // The broker knows a new key a moment after it was made.
    ASSERT_TRUE(Until([&] { return publish("orvelle/1/c03/sim/play"); }));
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
    EXPECT_TRUE(
        ended.Errors.ends_with(": another program uses its port already; orvelle-sim --port PORT takes another one.\n"))
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

TEST_F(SimulatorProgramTest, AClockThatJumpsLosesNobody) {
    // The sanitizers' own libraries, where there are any, come first as a rule.
    setenv("ASAN_OPTIONS", "verify_asan_link_order=0", 0);
    setenv("LD_PRELOAD", JUMPING_CLOCK, 1);
    program = std::make_unique<linux::ChildProcess>(Words({"--no-window", "--port", std::to_string(port)}));
    unsetenv("LD_PRELOAD");
    ASSERT_TRUE(Lists("c01\t", "\tthere"));
    PlayedMember member(loop, Add(), Program::Panel);
    const auto beat = [&] {
        const auto* said = member.AtBroker.Others().Find({1, Program::Simulator});
        return said ? said->Beat : 0;
    };
    ASSERT_TRUE(Until([&] { return beat() > 0; }));
    bool isLost = false;
    member.AtBroker.Lost = [&] { isLost = true; };
    member.AtBroker.OthersChanged = [&] { isLost = isLost || beat() == 0; };
    // Longer than what a beat is worth.
    const Long enough = beat() + 5;
    EXPECT_TRUE(Until([&] { return beat() >= enough; }));
    EXPECT_FALSE(isLost);
}

TEST_F(SimulatorProgramTest, ASetUpHasTheNameThatIsGivenAlsoBesideARunningOne) {
    const auto nameForThePanel = [this] { return ReadSetUpFile(data / "setup.json").Setting->Name; };
    EXPECT_EQ(Run({"--name", "Club", "--list"}).Status, 1) << "there is none yet";
    EXPECT_EQ(Run({"--name", "Club", "--add"}).Status, 0);
    EXPECT_EQ(OwnSetUp(data).Read().Setting->Name, "Club");
    Serve({"--name", "Home"});
    EXPECT_EQ(OwnSetUp(data).Read().Setting->Name, "Home");
    EXPECT_EQ(nameForThePanel(), "Home");
    const Ended renaming = Run({"--no-window", "--name", "M\u00fcnchen 2"});
    EXPECT_EQ(renaming.Status, 0) << renaming.Errors;
    EXPECT_EQ(OwnSetUp(data).Read().Setting->Name, "M\u00fcnchen 2");
    EXPECT_EQ(nameForThePanel(), "M\u00fcnchen 2");
    EXPECT_TRUE(ReadJoinCode(Run({"--name", "Club", "--add"}).Output));
    EXPECT_EQ(nameForThePanel(), "Club");
    EXPECT_TRUE(Lists("c01\t", "\tthere"));
    // A terminal is told the name, too; a script reads a computer a line.
    linux::ChildProcess terminal(
        {"script", "-qec", std::string(SIMULATOR_PROGRAM) + " --list --data " + data.string(), "/dev/null"});
    EXPECT_EQ(terminal.ReadLine(), "Set-up Club\r");
    EXPECT_TRUE(Run({"--list"}).Output.starts_with("c01\t"));
}

TEST_F(SimulatorProgramTest, ASetUpFileThatIsDamagedIsToldAndLeftAlone) {
    std::ofstream(data / "setup.json") << "damaged";
    const Ended ended = Run({"--no-window", "--port", std::to_string(port)});
    EXPECT_EQ(ended.Status, 1);
    EXPECT_EQ(ended.Errors, "orvelle-sim: What " + (data / "setup.json").string() +
                                " holds is no set-up. This computer counts as one that has joined no set-up. Remove "
                                "that file, or leave the set-up, first.\n");
    Serve({"--own"});
    EXPECT_EQ(ReadSetUpFile(data / "setup.json").Setting->Identity, 1);
}

// A computer that has joined a set-up, whose simulator's program serves there.
class GuestTest : public SimulatorProgramTest {
protected:
    void Join(int identity) { ASSERT_EQ(WriteSetUpFile(file, existing.SetUpOf(identity)), ""); }
    void ServeAsGuest() {
        program = std::make_unique<linux::ChildProcess>(Words({"--no-window"}));
        ASSERT_TRUE(Lists("c03\t", "\tthere"));
    }

    BrokerProcess existing;
    PlayedMember member{loop, existing.SetUpOf(5), Program::Panel};
    const fs::path file = data / "setup.json";
};

TEST_F(GuestTest, AComputerThatHasJoinedServesThereAndTakesPartWhenALowerOneGoes) {
    PlayedMember lower(loop, existing.SetUpOf(2), Program::Simulator);
    const auto serving = [this] {
        return member.AtBroker.Others().SimulatorOffering(&PresenceSetting::OffersSimulator);
    };
    Join(3);
    ServeAsGuest();
    EXPECT_TRUE(Until([&] { return serving() == 2 && member.AtBroker.Others().IsThere({3, Program::Simulator}); }));
    EXPECT_TRUE(Brokers().empty()) << "it brings no broker";
    EXPECT_FALSE(OwnSetUp(data).Read().Setting);
    lower.AtBroker.Close();
    EXPECT_TRUE(Until([&] { return serving() == 3; }));
    EXPECT_TRUE(Lists("c05\tPLAYED", "\tthere"));
}

TEST_F(GuestTest, ItLeavesAndComesWithItsFileWhileItRuns) {
    Join(3);
    ServeAsGuest();
    EXPECT_EQ(RemoveSetUpFile(file), "");
    EXPECT_TRUE(Until([&] { return !member.AtBroker.Others().IsThere({3, Program::Simulator}); }));
    Join(4);
    EXPECT_TRUE(Until([&] { return member.AtBroker.Others().IsThere({4, Program::Simulator}); }));
    EXPECT_FALSE(WriteWholeFile(file, "damaged"));
    EXPECT_TRUE(Until([&] { return !member.AtBroker.Others().IsThere({4, Program::Simulator}); }));
    program->Kill(SIGTERM);
    EXPECT_EQ(program->Wait(), 0);
    const std::string told = program->Errors();
    EXPECT_NE(told.find("This computer has left its set-up, so nothing is served."), std::string::npos) << told;
    EXPECT_NE(told.find("holds is no set-up"), std::string::npos) << told;
    EXPECT_FALSE(OwnSetUp(data).Read().Setting) << "none is made unasked";
}

TEST_F(GuestTest, ItIsNotItsOwnToChangeOrName) {
    Join(3);
    for (const std::vector<std::string>& words :
         {std::vector<std::string>{"--add"}, {"--remove", "c04"}, {"--list", "--name", "Club"}}) {
        const Ended ended = Run(words);
        EXPECT_EQ(ended.Status, 1);
        EXPECT_EQ(ended.Errors,
                  "orvelle-sim: This computer belongs to the set-up \"Test\" of another one; that is "
                  "changed on the computer that made it.\n");
    }
    const Ended ended = Run({"--no-window", "--name", "Club"});
    EXPECT_EQ(ended.Status, 1);
    EXPECT_NE(ended.Errors.find("--own"), std::string::npos) << ended.Errors;
}

TEST_F(GuestTest, AnOwnSetUpIsMadeByChoice) {
    Join(3);
    Serve({"--own"});
    EXPECT_EQ(ReadSetUpFile(file).Setting->Identity, 1);
    EXPECT_EQ(ReadSetUpFile(file).Setting->Port, port);
    // Who joins another one while it serves goes there.
    Join(3);
    EXPECT_TRUE(Until([&] { return member.AtBroker.Others().IsThere({3, Program::Simulator}); }));
    EXPECT_TRUE(linux::WaitUntil([this] { return Brokers().empty(); }));
}

TEST_F(GuestTest, TwoAsOneComputerGoOnAndDoNotTellAgainAndAgain) {
    Join(3);
    ServeAsGuest();
    const auto isThere = [this] { return member.AtBroker.Others().IsThere({3, Program::Simulator}); };
    ASSERT_TRUE(Until(isThere));
    const OwnFolder otherData;
    ASSERT_EQ(WriteSetUpFile(otherData.Path / "setup.json", existing.SetUpOf(3)), "");
    int times = 0;  // that it went
    member.AtBroker.OthersChanged = [&] { times += isThere() ? 0 : 1; };
    linux::ChildProcess second({SIMULATOR_PROGRAM, "--no-window", "--data", otherData.Path.string()});
    // Each ends the other.
    EXPECT_TRUE(Until([&] { return times >= 2; }));
    EXPECT_TRUE(Until(isThere));
    second.Kill(SIGTERM);
    EXPECT_EQ(second.Wait(), 0);
    program->Kill(SIGTERM);
    EXPECT_EQ(program->Wait(), 0);
    // Each reason once, however often.
    for (const std::string& told : {program->Errors(), second.Errors()}) {
        std::istringstream lines(told);
        std::set<std::string> seen;
        for (std::string line; std::getline(lines, line);) EXPECT_TRUE(seen.insert(line).second) << told;
    }
}

TEST_F(SimulatorProgramTest, WordsThatAreNotUnderstoodAreToldInOneLine) {
    for (const std::vector<std::string>& words : {std::vector<std::string>{"--nonsense"},
                                                  {"--remove", "c00"},
                                                  {"--port", "0"},
                                                  {"--host", "sim pc"},
                                                  {"--host", std::string(300, 'x')},
                                                  {"--host", "simpc:0"},
                                                  {"--name", ""},
                                                  {"--name", "two\nlines"},
                                                  {"--name", std::string(300, 'x')},
                                                  {"--add", "--own"},
                                                  {"--host", "simpc", "--port", "8884"},
                                                  {"--list"}}) {
        const Ended ended = Run(words);
        EXPECT_EQ(ended.Status, 1);
        EXPECT_EQ(std::ranges::count(ended.Errors, '\n'), 1) << ended.Errors;
    }
}

}  // namespace
}  // namespace orvelle::mqtt
