#include "adapters/mqtt/Topics.h"

#include <gtest/gtest.h>

#include <string>

namespace orvelle::mqtt {
namespace {

TEST(TopicsTest, TellWhoSaysWhat) {
    struct Row {
        const char* Text;
        Topic Meant;
    };
    using enum TopicKind;
    for (const Row& row :
         {Row{"orvelle/1/c07/panel/presence", {7, Program::Panel, Presence}},
          Row{"orvelle/1/c07/panel/sync", {7, Program::Panel, Sync}},
          Row{"orvelle/1/c07/panel/play", {7, Program::Panel, Play}},
          Row{"orvelle/1/c07/panel/record/1", {7, Program::Panel, Record, 1}},
          Row{"orvelle/1/c99/panel/record/65535", {99, Program::Panel, Record, 65535}},
          Row{"orvelle/1/c07/panel/write", {7, Program::Panel, Write}},
          Row{"orvelle/1/c01/sim/presence", {1, Program::Simulator, Presence}},
          Row{"orvelle/1/c01/sim/sync", {1, Program::Simulator, Sync}},
          Row{"orvelle/1/c10/sim/input", {10, Program::Simulator, Input}},
          Row{"orvelle/1/c01/sim/session", {1, Program::Simulator, Session}},
          Row{"orvelle/1/c01/sim/write", {1, Program::Simulator, Write}},
          Row{"orvelle/1/c03/directory/club", {3, Program::Simulator, Directory, 0, "club"}},
          Row{"orvelle/1/c03/directory/M\u00fcnchen $1", {3, Program::Simulator, Directory, 0, "M\u00fcnchen $1"}}}) {
        EXPECT_EQ(ReadTopic(row.Text), row.Meant) << row.Text;
        EXPECT_EQ(WriteTopic(row.Meant), row.Text);
    }
}

TEST(TopicsTest, OfOthersAreNone) {
    for (const char* text : {"",
                             "orvelle",
                             "orvelle/1",
                             "orvelle/1/",
                             "orvelle/1/c07",
                             "orvelle/1/c07/",
                             "orvelle/1/c07/panel",
                             "orvelle/1/c07/panel/",
                             "orvelle/1/c07/panel/presence/",
                             "orvelle/1/c07/panel/presence/1",
                             "orvelle/1/c07/panel/Presence",
                             "orvelle/2/c07/panel/presence",
                             "Orvelle/1/c07/panel/presence",
                             "/orvelle/1/c07/panel/presence",
                             "orvelle/1//panel/presence",
                             "orvelle/1/c00/panel/presence",
                             "orvelle/1/c0/panel/presence",
                             "orvelle/1/c100/panel/presence",
                             "orvelle/1/c-1/panel/presence",
                             "orvelle/1/c 1/panel/presence",
                             "orvelle/1/c1 /panel/presence",
                             "orvelle/1/d07/panel/presence",
                             "orvelle/1/C07/panel/presence",
                             "orvelle/1/c07/other/presence",
                             "orvelle/1/c07/panel/input",
                             "orvelle/1/c07/panel/session",
                             "orvelle/1/c07/sim/play",
                             "orvelle/1/c07/sim/record/1",
                             "orvelle/1/c07/panel/record",
                             "orvelle/1/c07/panel/record/",
                             "orvelle/1/c07/panel/record/0",
                             "orvelle/1/c07/panel/record/01",
                             "orvelle/1/c07/panel/record/-1",
                             "orvelle/1/c07/panel/record/65536",
                             "orvelle/1/c07/panel/record/4294967297",
                             "orvelle/1/c07/panel/record/1/2",
                             "orvelle/1/c07/panel/record/1x",
                             "orvelle/1/c03/directory",
                             "orvelle/1/c03/directory/",
                             "orvelle/1/c03/directory/a/b",
                             "orvelle/1/c03/directory/+",
                             "orvelle/1/c03/directory/a#",
                             "orvelle/1/c03/directory/a\nb",
                             "orvelle/1/c03/directory/a\xFF",
                             "orvelle/1/c03/panel/directory/a",
                             "orvelle/1/#",
                             "$SYS/broker/uptime"})
        EXPECT_FALSE(ReadTopic(text)) << text;
    EXPECT_FALSE(ReadTopic(std::string("orvelle/1/c07/panel/sync\0", 25)));
    std::string longest = "orvelle/1/c03/directory/";
    for (int count = 0; count < 100; ++count) longest += "\u00fc";
    EXPECT_TRUE(ReadTopic(longest));
    EXPECT_FALSE(ReadTopic(longest + "a"));
}

TEST(TopicsTest, AreOnlyThoseThatTheProgramPublishes) {
    EXPECT_EQ(WriteTopic({1, Program::Panel, TopicKind::Input}), "");
    EXPECT_EQ(WriteTopic({1, Program::Panel, TopicKind::Session}), "");
    EXPECT_EQ(WriteTopic({1, Program::Simulator, TopicKind::Play}), "");
    EXPECT_EQ(WriteTopic({1, Program::Simulator, TopicKind::Record, 1}), "");
    EXPECT_EQ(WriteTopic({1, Program::Panel, TopicKind::Directory, 0, "club"}), "");
}

TEST(TopicsTest, CallEachComputerByItsNumber) {
    for (int number = 1; number <= LastIdentity; ++number) EXPECT_EQ(ReadIdentity(WriteIdentity(number)), number);
    EXPECT_EQ(WriteIdentity(7), "c07");
    EXPECT_EQ(WriteIdentity(10), "c10");
    EXPECT_EQ(ClientId(7, Program::Panel), "c07.panel");
    EXPECT_EQ(ClientId(1, Program::Simulator), "c01.sim");
}

TEST(TopicsTest, RecordsHaveOneIdInTheSetUp) {
    EXPECT_EQ(RecordId(7, 3), 458755);
    EXPECT_EQ(RecordId(1, 1), 65537);
    for (const auto& [identity, record] : {std::pair(1, 1), std::pair(7, 65535), std::pair(99, 65535)}) {
        EXPECT_EQ(IdentityOf(RecordId(identity, record)), identity);
        EXPECT_EQ(RecordOf(RecordId(identity, record)), record);
    }
}

}  // namespace
}  // namespace orvelle::mqtt
