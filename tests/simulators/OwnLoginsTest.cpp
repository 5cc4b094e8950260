// The user's own logins, in a real file.
#include "simulators/directory/OwnLogins.h"

#include <gtest/gtest.h>

#include <fstream>

#include "tests/shared/OwnFolder.h"

namespace orvelle::directory {
namespace {

namespace fs = std::filesystem;

class OwnLoginsTest : public testing::Test {
protected:
    void Write(const std::string& text) { std::ofstream(file) << text; }

    OwnFolder own;
    const fs::path file = own.Path / "data" / "directory-logins.json";
    OwnLogins logins{file};
};

TEST_F(OwnLoginsTest, AreKeptForTheirUserAlone) {
    EXPECT_EQ(logins.Read(), "");
    const OwnLogin strange{"M\u00fcller \"\\\n", "\x01{}'"};
    EXPECT_EQ(logins.Set("Voice.Example.org:8767", {"pilot7", "secret"}), "");
    EXPECT_EQ(logins.Set("b", strange), "");
    EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);

    OwnLogins again(file);
    EXPECT_EQ(again.Read(), "");
    ASSERT_NE(again.Find("voice.example.ORG:8767"), nullptr);
    EXPECT_EQ(*again.Find("voice.example.ORG:8767"), (OwnLogin{"pilot7", "secret"}));
    ASSERT_NE(again.Find("B"), nullptr);
    EXPECT_EQ(*again.Find("B"), strange);
    EXPECT_EQ(again.Find("voice.example.org"), nullptr);
    EXPECT_EQ(again.All().size(), 2U);

    EXPECT_EQ(again.Set("B", {}), "");
    EXPECT_EQ(logins.Read(), "");
    EXPECT_EQ(logins.Find("b"), nullptr);
    EXPECT_EQ(logins.All().size(), 1U);
}

TEST_F(OwnLoginsTest, ADamagedFileIsToldAndKeptAside) {
    fs::create_directory(file.parent_path());
    for (const std::string text :
         {"", "{", "[]", "{\"logins\": {}}", "{\"version\": 2, \"logins\": {}}",
          "{\"version\": 1, \"logins\": {\"a\": 1}}", "{\"version\": 1, \"logins\": {\"a\": {\"login\": 1}}}",
          "{\"version\": 1, \"logins\": {\"a\": {\"login\": \"\xFF\"}}}"}) {
        Write(text);
        EXPECT_EQ(logins.Read(),
                  "Your logins at voice servers in " + file.string() + " can't be read: it holds something else.")
            << text;
    }
    const std::string damaged = "{\"version\": 1, \"logins\": {\"a\": {\"login\": \"old\"}, \"b\": 7}}";
    Write(damaged);
    EXPECT_NE(logins.Read(), "");
    EXPECT_EQ(logins.Set("c", {"new", ""}), "");
    std::string kept;
    std::getline(std::ifstream(file.string() + ".damaged"), kept);
    EXPECT_EQ(kept, damaged);
    EXPECT_EQ(logins.Read(), "");
    EXPECT_EQ(logins.Find("a")->Login, "old") << "what could be read counts";
    EXPECT_EQ(logins.Find("c")->Login, "new");
}

TEST_F(OwnLoginsTest, WhereTheyCanNotBeKeptNothingChanges) {
    std::ofstream(own.Path / "data") << "no folder";
    EXPECT_NE(logins.Set("a", {"pilot", ""}), "");
    EXPECT_EQ(logins.Find("a"), nullptr);
}

}  // namespace
}  // namespace orvelle::directory
