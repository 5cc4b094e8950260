// The set-up that a computer makes, as it is kept in a folder.
#include "adapters/mqtt/OwnSetUp.h"

#include <gtest/gtest.h>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <fstream>
#include <sstream>
#include <vector>

#include "adapters/shared/FileDescriptor.h"

namespace orvelle::mqtt {
namespace {

namespace fs = std::filesystem;

class OwnSetUpTest : public testing::Test {
protected:
    OwnSetUpTest() {
        std::string pattern = fs::temp_directory_path() / "orvelle-own-XXXXXX";
        data = mkdtemp(pattern.data());
    }
    ~OwnSetUpTest() override { fs::remove_all(data); }

    std::string Text(const char* name) const {
        std::ostringstream text;
        text << std::ifstream(data / name).rdbuf();
        return text.str();
    }
    void Write(const char* name, const std::string& text) const { std::ofstream(data / name) << text; }

    fs::path data;
};

TEST_F(OwnSetUpTest, FilesAreTheirUsersAloneWhateverTheUmask) {
    const mode_t before = umask(0);
    const OwnSetUp setUp(data / "deep" / "folder");
    const auto made = setUp.ReadOrMake("Home", 0);
    umask(before);
    ASSERT_TRUE(made.Setting) << made.Sentence;
    EXPECT_EQ(fs::status(setUp.Folder()).permissions(), fs::perms::owner_all);
    for (const char* name : {"keys", "access", "mosquitto.conf", "set-up.json"})
        EXPECT_EQ(fs::status(setUp.Folder() / name).permissions(), fs::perms::owner_read | fs::perms::owner_write)
            << name;
}

TEST_F(OwnSetUpTest, ComputersAreAddedUntilItIsFullAndAFreedNumberIsTheNext) {
    const OwnSetUp setUp(data);
    ASSERT_TRUE(setUp.ReadOrMake("Home", 0).Setting);
    for (int number = 2; number <= 99; ++number) {
        const auto added = setUp.Add();
        ASSERT_TRUE(added.Code) << added.Sentence;
        ASSERT_EQ(added.Code->Number, number);
    }
    EXPECT_NE(setUp.Add().Sentence.find("full"), std::string::npos);
    const Key before = setUp.Read().Setting->Keys.at(7);
    EXPECT_EQ(setUp.Remove(7), "");
    EXPECT_NE(setUp.Remove(7), "");
    EXPECT_NE(setUp.Remove(1), "");
    const auto again = setUp.Add();
    ASSERT_TRUE(again.Code);
    EXPECT_EQ(again.Code->Number, 7);
    EXPECT_NE(again.Code->Key, before);
    EXPECT_EQ(setUp.Read().Setting->Keys.size(), 99U);
    EXPECT_NE(Text("broker/keys").find("c07:" + WriteKey(again.Code->Key) + "\n"), std::string::npos);
}

// The names of the files that came in a folder while the object was there, in order.
class Arrivals {
public:
    explicit Arrivals(const fs::path& folder) : events(inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
        inotify_add_watch(events.Number(), folder.c_str(), IN_MOVED_TO);
    }
    std::vector<std::string> Names() const {
        alignas(inotify_event) std::array<char, 4096> bytes{};
        const ssize_t count = read(events.Number(), bytes.data(), bytes.size());
        std::vector<std::string> names;
        for (ssize_t place = 0; place < count;) {
            const auto& event = reinterpret_cast<const inotify_event&>(bytes[static_cast<std::size_t>(place)]);
            names.emplace_back(event.name);
            place += static_cast<ssize_t>(sizeof event + event.len);
        }
        return names;
    }

private:
    FileDescriptor events;
};

TEST_F(OwnSetUpTest, TheBrokersKeysAreThereBeforeTheSetUpTellsOfAChange) {
    const OwnSetUp setUp(data);
    ASSERT_TRUE(setUp.ReadOrMake("Home", 0).Setting);
    const Arrivals arrivals(setUp.Folder());
    ASSERT_TRUE(setUp.Add().Code);
    EXPECT_EQ(arrivals.Names(), (std::vector<std::string>{"keys", "set-up.json"}));
    EXPECT_EQ(setUp.Remove(2), "");
    EXPECT_EQ(arrivals.Names(), (std::vector<std::string>{"keys", "set-up.json"}));
}

TEST_F(OwnSetUpTest, WhatCanNotBeKeptIsNotTheBrokersEither) {
    const OwnSetUp setUp(data);
    ASSERT_TRUE(setUp.ReadOrMake("Home", 0).Setting);
    const std::string before = Text("broker/keys");
    // No file can be written in its place, also by root.
    fs::create_directory(setUp.Folder() / "mosquitto.conf.aside");
    fs::rename(setUp.Folder() / "mosquitto.conf", setUp.Folder() / "mosquitto.conf.aside" / "file");
    fs::rename(setUp.Folder() / "mosquitto.conf.aside", setUp.Folder() / "mosquitto.conf");
    EXPECT_NE(setUp.Add().Sentence, "");
    EXPECT_EQ(Text("broker/keys"), before);
    EXPECT_EQ(setUp.Read().Setting->Keys.size(), 1U);
}

TEST_F(OwnSetUpTest, ADamagedFileIsToldAndLeftAlone) {
    const OwnSetUp setUp(data);
    ASSERT_TRUE(setUp.ReadOrMake("Home", 0).Setting);
    const std::string whole = Text("broker/set-up.json");
    for (const std::string& damaged : {std::string(), whole.substr(0, whole.size() / 2), std::string("{}")}) {
        Write("broker/set-up.json", damaged);
        EXPECT_NE(setUp.ReadOrMake("Home", 0).Sentence, "");
        EXPECT_NE(setUp.Add().Sentence, "");
        EXPECT_NE(setUp.Remove(2), "");
        EXPECT_EQ(Text("broker/set-up.json"), damaged);
    }
}

TEST_F(OwnSetUpTest, ASetUpFileOfAnotherSetUpIsNotOverwritten) {
    const OwnSetUp setUp(data);
    const auto made = setUp.ReadOrMake("Home", 0);
    ASSERT_TRUE(made.Setting);
    for (const std::string& other : {WriteSetUp({"Club", "elsewhere", 8883, 5, Key{}}), std::string("{damaged")}) {
        Write("setup.json", other);
        EXPECT_NE(setUp.JoinThisComputer(*made.Setting, "localhost", 8883), "");
        EXPECT_EQ(Text("setup.json"), other);
    }
    fs::remove(data / "setup.json");
    EXPECT_EQ(setUp.JoinThisComputer(*made.Setting, "localhost", 8883), "");
    EXPECT_EQ(setUp.OfThisComputer(*made.Setting)->Host, "localhost");
    EXPECT_EQ(setUp.JoinThisComputer(*made.Setting, "simpc", 8884), "");
    EXPECT_EQ(setUp.OfThisComputer(*made.Setting)->Port, 8884);
}

TEST_F(OwnSetUpTest, ItIsLeftForAnOwnOneByChoiceAlone) {
    const OwnSetUp setUp(data);
    const auto made = setUp.ReadOrMake("Home", 0);
    for (const std::string& other : {WriteSetUp({"Club", "elsewhere", 8883, 5, Key{}}), std::string("{damaged")}) {
        Write("setup.json", other);
        EXPECT_EQ(setUp.JoinThisComputer(*made.Setting, "localhost", 8883, OwnSetUp::OtherSetUp::IsLeft), "");
        EXPECT_EQ(setUp.OfThisComputer(*made.Setting)->Name, "Home");
    }
}

TEST_F(OwnSetUpTest, AnotherOneThatWasJoinedIsKnown) {
    const OwnSetUp setUp(data);
    EXPECT_FALSE(setUp.JoinedElsewhere());
    const SetUpSetting club{"Club", "elsewhere", 8883, 5, Key{}};
    Write("setup.json", WriteSetUp(club));
    EXPECT_EQ(setUp.JoinedElsewhere(), club);
    const auto made = setUp.ReadOrMake("Home", 0);
    EXPECT_EQ(setUp.JoinedElsewhere(), club);
    fs::remove(data / "setup.json");
    EXPECT_EQ(setUp.JoinThisComputer(*made.Setting, "localhost", 8883), "");
    EXPECT_FALSE(setUp.JoinedElsewhere());
    // Whose that file is can't be told then.
    Write("broker/set-up.json", "{damaged");
    EXPECT_FALSE(setUp.JoinedElsewhere());
}

TEST_F(OwnSetUpTest, AnotherNameIsKeptAndToldToThisComputersPanel) {
    const OwnSetUp setUp(data);
    EXPECT_NE(setUp.Rename("Club"), "") << "there is none";
    const auto made = setUp.ReadOrMake("Home", 0);
    EXPECT_EQ(setUp.JoinThisComputer(*made.Setting, "simpc", 8884), "");
    EXPECT_EQ(setUp.Rename("M\u00fcnchen \"2\""), "");
    EXPECT_EQ(setUp.Read().Setting->Name, "M\u00fcnchen \"2\"");
    EXPECT_EQ(setUp.Read().Setting->Keys, made.Setting->Keys);
    const auto own = ReadSetUpFile(data / "setup.json").Setting;
    ASSERT_TRUE(own);
    EXPECT_EQ(own->Name, "M\u00fcnchen \"2\"");
    EXPECT_EQ(own->Host, "simpc");
    EXPECT_EQ(own->Port, 8884);
    for (const std::string& none :
         {std::string(), std::string("  "), std::string("a\nb"), std::string("\xFF"), std::string(64, 'x')}) {
        EXPECT_FALSE(IsSetUpName(none));
        EXPECT_NE(setUp.Rename(none), "");
    }
    EXPECT_TRUE(IsSetUpName(std::string(63, 'x')));
}

TEST_F(OwnSetUpTest, IsNamedAsUsualWhereTheComputersNameIsNone) {
    EXPECT_EQ(OwnSetUp(data).ReadOrMake("sim pc", 0).Setting->Name, "sim pc");
    for (const std::string& none : {std::string(300, 'x'), std::string(" "), std::string("a\tb")}) {
        fs::remove_all(data / "broker");
        EXPECT_EQ(OwnSetUp(data).ReadOrMake(none, 0).Setting->Name, "OrvelleCP");
    }
}

// Whoever sees the set-up's own file change has the broker read its files, so these are written before.
TEST_F(OwnSetUpTest, AComputerCountsOnlyOnceTheBrokerCanKnowIt) {
    const OwnSetUp setUp(data);
    ASSERT_TRUE(setUp.ReadOrMake("Home", 0).Setting);
    const std::string before = Text("broker/set-up.json");
    fs::remove(data / "broker/keys");
    fs::create_directories(data / "broker/keys/in the way");
    EXPECT_NE(setUp.Add().Sentence.find("keys can't be written"), std::string::npos);
    EXPECT_EQ(Text("broker/set-up.json"), before);
}

TEST_F(OwnSetUpTest, ADataFolderThatCannotBeMadeIsTold) {
    Write("file", "");
    EXPECT_NE(OwnSetUp(data / "file").ReadOrMake("Home", 0).Sentence, "");
}

}  // namespace
}  // namespace orvelle::mqtt
