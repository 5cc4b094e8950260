// Directories that computers of a set-up hold at a real broker, as the simulator's program hears them. They are written
// by the broker's own client, as a club's tool would.
#include <csignal>
#include <filesystem>
#include <fstream>

#include "adapters/mqtt/Bounds.h"
#include "adapters/mqtt/SimulatorAtBroker.h"
#include "tests/mqtt/broker/SetUpRig.h"
#include "tests/shared/OwnFolder.h"

namespace orvelle::mqtt {
namespace {

class DirectoriesAtBroker : public SetUpRig {
protected:
    DirectoriesAtBroker() {
        hearing = program.DirectoryHeard.Attach([this](int identity, const std::string& name, const std::string& text) {
            heard.push_back(WriteIdentity(identity) + ' ' + name + ' ' +
                            (text.size() < 100 ? text : std::to_string(text.size()) + " bytes"));
        });
    }

    // As that computer.
    void Write(int identity, const std::string& name, const std::string& text) {
        const std::filesystem::path file = folder.Path / "text";
        std::ofstream(file) << text;
        std::vector<std::string> words{
            "mosquitto_pub", "-q", "1", "-r", "-t", "orvelle/1/" + WriteIdentity(identity) + "/directory/" + name};
        for (const std::string& option : broker.ClientOptions(identity)) words.push_back(option);
        words.insert(words.end(), {"-f", file.string()});
        EXPECT_EQ(linux::ChildProcess(words).Wait(), 0);
    }
    bool Hears(const std::vector<std::string>& all) {
        const bool hears = Until([&] { return heard.size() >= all.size(); });
        EXPECT_EQ(heard, all);
        return hears;
    }

    OwnFolder folder;
    SimulatorAtBroker program{loop, [] { return PresenceSetting{.Name = "COCKPIT", .Address = "", .Desktop = "X11"}; }};
    std::vector<std::string> heard;
    Ticket hearing;
};

TEST_F(DirectoriesAtBroker, AreHeardWhetherTheyWereThereOrCome) {
    Write(3, "club", "one");
    program.Open(broker.SetUpOf(1));
    ASSERT_TRUE(Hears({"c03 club one"}));
    Write(1, "own one", "two");
    ASSERT_TRUE(Hears({"c03 club one", "c01 own one two"}));
    Write(3, "club", "");
    ASSERT_TRUE(Hears({"c03 club one", "c01 own one two", "c03 club "}));
    EXPECT_EQ(program.Refused(), 0U);
}

TEST_F(DirectoriesAtBroker, AreAsLongAsADirectoryMayBe) {
    Write(3, "a", std::string(bounds::Directory, ' '));
    Write(4, "b", std::string(bounds::Directory + 1, ' '));
    program.Open(broker.SetUpOf(1));
    ASSERT_TRUE(Until([this] { return program.Refused() == 1 && heard.size() == 1; }));
    EXPECT_EQ(heard[0], "c03 a 16777216 bytes");
    ASSERT_TRUE(Until([this] { return program.IsThere(); }));
}

TEST_F(DirectoriesAtBroker, ThoseThatARestartedBrokerHasNoMoreAreTaken) {
    Write(3, "club", "one");
    Write(4, "other", "two");
    program.Open(broker.SetUpOf(1));
    ASSERT_TRUE(Hears({"c03 club one", "c04 other two"}));
    broker.Kill(SIGKILL);
    ASSERT_TRUE(Until([this] { return !program.IsThere(); }));
    EXPECT_EQ(heard.size(), 2U) << "they count while there is no broker";
    broker.Start();
    Write(3, "club", "one");
    ASSERT_TRUE(Until([this] { return heard.size() >= 4; }));
    std::ranges::sort(heard);
    EXPECT_EQ(heard, (std::vector<std::string>{"c03 club one", "c03 club one", "c04 other ", "c04 other two"}));
}

}  // namespace
}  // namespace orvelle::mqtt
