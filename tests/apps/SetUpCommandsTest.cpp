// orvelle-setup as scripts use it: the program itself, its line and its exit status.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <fstream>

#include "adapters/mqtt/OwnSetUp.h"
#include "apps/FreePort.h"
#include "tests/avahi/AvahiRig.h"
#include "tests/mqtt/broker/BrokerProcess.h"
#include "tests/shared/OwnFolder.h"

namespace orvelle {
namespace {

// Without a message bus, unless a test brings one.
class SetUpCommands : public avahi::AvahiRig {
protected:
    struct Answer {
        int Status = -1;
        std::string Line;
        bool operator==(const Answer&) const = default;
    };

    Answer Run(std::vector<std::string> arguments) const {
        std::vector<std::string> command{SETUP_PROGRAM, "--data", (folder.Path / "data").string()};
        command.insert(command.end(), arguments.begin(), arguments.end());
        linux::ChildProcess program(command);
        Answer answer;
        answer.Line = program.ReadLine();
        const int status = program.Wait();
        answer.Status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        if (answer.Line.empty()) answer.Line = program.Errors();
        while (answer.Line.ends_with('\n')) answer.Line.pop_back();
        EXPECT_EQ(answer.Line.find('\n'), std::string::npos) << answer.Line;
        return answer;
    }
    std::string Code(int identity) const { return mqtt::WriteJoinCode({identity, broker.SetUpOf(identity).Key}); }
    std::string Place() const { return "127.0.0.1:" + std::to_string(broker.Port()); }
    std::optional<mqtt::SetUpSetting> Kept() const { return mqtt::ReadSetUpFile(file).Setting; }

    mqtt::BrokerProcess broker;
    OwnFolder folder;
    const std::filesystem::path file = folder.Path / "data" / "setup.json";
};

TEST_F(SetUpCommands, JoinShowAndLeave) {
    EXPECT_EQ(Run({"--show"}), (Answer{1, "This computer is in no set-up."}));
    const std::string where = "of the set-up 127.0.0.1";
    EXPECT_EQ(Run({"--join", Code(7), "--host", Place()}),
              (Answer{0, "This computer is c07 " + where + " now, whose broker is " + Place() + "."}));
    EXPECT_EQ(Kept()->Key, broker.SetUpOf(7).Key);
    EXPECT_EQ(std::filesystem::status(file).permissions(), std::filesystem::perms(0600));
    EXPECT_EQ(Run({"--show"}), (Answer{0, "This computer is c07 " + where + ", whose broker is " + Place() + "."}));
    EXPECT_EQ(Run({"--join", Code(8), "--host", Place()}).Status, 1) << "it has to leave first";
    EXPECT_EQ(Run({"--leave"}), (Answer{0, "This computer has left the set-up 127.0.0.1."}));
    EXPECT_FALSE(std::filesystem::exists(file));
    EXPECT_EQ(Run({"--leave"}), (Answer{0, "This computer is in no set-up."}));
}

TEST_F(SetUpCommands, WhoLeavesTheSetUpThatThisComputerMadeIsToldThatItIsNotGone) {
    const mqtt::OwnSetUp own(file.parent_path());
    ASSERT_EQ(own.MakeFolder(), "");
    const auto made = own.ReadOrMake("Home", 0);
    ASSERT_TRUE(made.Setting) << made.Sentence;
    ASSERT_EQ(own.JoinThisComputer(*made.Setting, "localhost", mqtt::UsualPort), "");
    EXPECT_EQ(
        Run({"--leave"}),
        (Answer{0, "The panel of this computer has left the set-up Home, which orvelle-sim serves whenever it runs."}));
    EXPECT_FALSE(std::filesystem::exists(file));
}

TEST_F(SetUpCommands, AMistypedCodeIsToldBeforeAnythingIsTried) {
    std::string code = Code(7);
    code.back() = code.back() == '0' ? '1' : '0';
    for (const std::string& mistyped : {code, std::string("1234"), std::string()})
        EXPECT_EQ(Run({"--join", mistyped, "--host", "no-such-host.invalid"}),
                  (Answer{1, "The code is mistyped; please compare it with the one that was given."}));
}

TEST_F(SetUpCommands, EachFailureHasItsSentence) {
    EXPECT_EQ(Run({"--join", Code(7), "--host", "no-such-host.invalid"}),
              (Answer{1, "There is no computer by the name no-such-host.invalid."}));
    const std::string nobody = "127.0.0.1:" + std::to_string(FreePort());
    EXPECT_EQ(Run({"--join", Code(7), "--host", nobody}),
              (Answer{1, "No set-up can be reached at " + nobody + ": nobody answers."}));
    EXPECT_EQ(
        Run({"--join", mqtt::WriteJoinCode({77, {}}), "--host", Place()}),
        (Answer{1, "The set-up at " + Place() + " doesn't take this code: it is another set-up's, or taken back."}));
    EXPECT_EQ(Run({"--join", Code(7), "--host", "sim pc"}), (Answer{1, "\"sim pc\" is no name of a host."}));
    EXPECT_EQ(Run({"--join", Code(7)}).Status, 1) << "nothing is found without a daemon";
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file) << "damaged";
    EXPECT_EQ(Run({"--show"}).Line,
              "What " + file.string() + " holds is no set-up. This computer counts as one that has joined no set-up.");
    EXPECT_EQ(Run({"--leave"}).Status, 0);
    EXPECT_FALSE(std::filesystem::exists(file));
}

TEST_F(SetUpCommands, WhatCannotBeReadIsRefused) {
    for (const std::vector<std::string>& wrong : std::vector<std::vector<std::string>>{{"--join"},
                                                                                       {"--host", "simpc"},
                                                                                       {"--leave", "--show"},
                                                                                       {"leave"},
                                                                                       {"--data"},
                                                                                       {"--show", "--host", "simpc"}})
        EXPECT_EQ(Run(wrong), (Answer{1, "orvelle-setup: this can't be read; orvelle-setup --help tells what can."}));
    EXPECT_EQ(Run({"--version"}), (Answer{0, "orvelle-setup " ORVELLE_VERSION}));
    linux::ChildProcess help({SETUP_PROGRAM, "--help"});
    EXPECT_TRUE(help.ReadLine().starts_with("usage: orvelle-setup"));
}

TEST_F(SetUpCommands, ASetUpOnTheNetworkIsFoundAndNamed) {
    StartBus();
    StartDaemon();
    const auto text = [](const std::string& name) { return std::vector<std::string>{"version=1", "setup=" + name}; };
    const auto tells = [this](const std::vector<std::string>& arguments, const std::string& part) {
        Answer answer;
        const bool tells = Until([&] {
            answer = Run(arguments);
            return answer.Line.find(part) != std::string::npos;
        });
        EXPECT_TRUE(tells) << answer.Line;
    };
    EXPECT_EQ(Run({"--join", Code(7)}), (Answer{1, "No set-up is found on the network; please name its host."}));
    // Nobody here can reach that host, since it is in a network of its own; but it is the one that is tried.
    const auto home = Announce("Home", 8884, text("Home"));
    tells({"--join", Code(7)}, "localhost.local");
    const auto club = Announce("Club", 8885, text("Club"));
    tells({"--join", Code(7)},
          "Several set-ups are found; please name the host of one: Club at localhost.local:8885, Home at "
          "localhost.local:8884.");
    // At a host that was named, the name of the set-up there is taken.
    const auto here = Announce("Here", broker.Port(), text("At home"));
    const std::string named = "localhost:" + std::to_string(broker.Port());
    tells({"--join", Code(7), "--host", named}, "This computer is c07 of the set-up At home");
    EXPECT_EQ(Kept()->Name, "At home");
    EXPECT_EQ(Kept()->Host, "localhost");
}

}  // namespace
}  // namespace orvelle
