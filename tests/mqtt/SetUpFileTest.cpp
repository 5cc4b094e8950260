#include "adapters/mqtt/SetUpFile.h"

#include <gtest/gtest.h>

#include <fstream>

#include "tests/mqtt/Refusals.h"
#include "tests/shared/OwnFolder.h"

namespace orvelle::mqtt {
namespace {

namespace fs = std::filesystem;

const std::string Text =
    R"({"version":1,"setup":"Home","host":"simpc","port":8883,"identity":"c07","key":"000102030405060708090a0b0c"})";
const SetUpSetting Home{"Home", "simpc", 8883, 7, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}};

class SetUpFileTest : public testing::Test {
protected:
    OwnFolder folder;
    const fs::path file = folder.Path / "OrvelleCP" / "setup.json";
};

TEST_F(SetUpFileTest, IsTheSetUpAsText) {
    EXPECT_EQ(ReadSetUp(Text), Home);
    EXPECT_EQ(WriteSetUp(Home), Text);
}

TEST_F(SetUpFileTest, MayBeWrittenByHand) {
    ExpectTaken(ReadSetUp, Text,
                {{"{", "\n{\n\t\"note\": [1, 2],\n"},
                 {"}", "}\n"},
                 {"0a0b0c", "0A0B0C"},
                 {"8883", "1"},
                 {"8883", "65535"},
                 {"simpc", "192.0.2.7"},
                 {"simpc", "2001:db8::7"},
                 {"simpc", "s\xC3\xADmpc"},
                 {"simpc", std::string(253, 'x')}});
}

TEST_F(SetUpFileTest, OfAnythingElseIsNone) {
    ExpectRefusals(ReadSetUp, Text,
                   {{"\"version\":1,", ""},
                    {"\"setup\":\"Home\",", ""},
                    {"\"host\":\"simpc\",", ""},
                    {"\"port\":8883,", ""},
                    {"\"identity\":\"c07\",", ""},
                    {",\"key\":\"000102030405060708090a0b0c\"", ""},
                    {"\"version\":1", "\"version\":2"},
                    {"\"version\":1", "\"version\":\"1\""},
                    {"Home", ""},
                    {"Home", std::string(1001, 'x')},
                    {"simpc", ""},
                    {"simpc", "sim pc"},
                    {"simpc", "simpc\\n"},
                    {"simpc", "sim\\u0000pc"},
                    {"simpc", std::string(254, 'x')},
                    {"8883", "0"},
                    {"8883", "-1"},
                    {"8883", "65536"},
                    {"8883", "8883.0"},
                    {"8883", "\"8883\""},
                    {"c07", "c00"},
                    {"c07", "7"},
                    {"0a0b0c", "0a0b0"},
                    {"0a0b0c", "0a0b0c0d"},
                    {"0a0b0c", "0a0b0x"},
                    {"}", ""}});
    EXPECT_FALSE(ReadSetUp(""));
}

TEST_F(SetUpFileTest, IsWrittenReadAndRemoved) {
    EXPECT_EQ(ReadSetUpFile(file), FoundSetUp{});
    EXPECT_EQ(WriteSetUpFile(file, Home), "");
    EXPECT_EQ(ReadSetUpFile(file), (FoundSetUp{Home, ""}));
    EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(RemoveSetUpFile(file), "");
    EXPECT_EQ(ReadSetUpFile(file), FoundSetUp{});
    EXPECT_EQ(RemoveSetUpFile(file), "");
}

TEST_F(SetUpFileTest, ThatIsDamagedIsToldAndCountsAsNone) {
    fs::create_directory(file.parent_path());
    for (const std::string& text : {std::string(), Text.substr(0, 40), std::string("\0\0\0", 3), std::string("[]")}) {
        std::ofstream(file, std::ios::trunc) << text;
        const FoundSetUp found = ReadSetUpFile(file);
        EXPECT_FALSE(found.Setting);
        EXPECT_EQ(found.Sentence, "What " + file.string() +
                                      " holds is no set-up. This computer counts as one that has joined no set-up.");
    }
    std::ofstream(file, std::ios::trunc) << Text << std::string(65536, ' ');
    EXPECT_EQ(
        ReadSetUpFile(file).Sentence,
        "The set-up in " + file.string() +
            " can't be read: it is longer than 65536 bytes. This computer counts as one that has joined no set-up.");
}

TEST_F(SetUpFileTest, ThatCannotBeWrittenOrRemovedIsTold) {
    fs::create_directories(file);
    EXPECT_TRUE(WriteSetUpFile(file, Home).starts_with("The set-up can't be kept in " + file.string() + ": "));
    EXPECT_TRUE(RemoveSetUpFile(file).starts_with("The set-up in " + file.string() + " can't be removed: "));
    EXPECT_TRUE(ReadSetUpFile(file).Sentence.starts_with("The set-up in " + file.string() + " can't be read: "));
}

}  // namespace
}  // namespace orvelle::mqtt
