#include <gtest/gtest.h>

#include "adapters/mqtt/Payloads.h"
#include "tests/mqtt/Refusals.h"

namespace orvelle::mqtt {
namespace {

using Numbers = std::map<Long, Long>;
using Texts = std::map<Long, std::string>;

const std::string Voice =
    R"({"type":"VOICE","role":"VVL","numbers":{"0":3,"1":7},"texts":{"7":"voice.example/tower"}})";
const std::string Write = R"({"to":"c07","record":3,"numbers":{"9":1},"texts":{}})";

// All that both lists of parameters refuse.
const std::vector<Change> WrongParameters{
    {"\"numbers\":{", "\"numbers\":{\"-1\":1,"},
    {"\"numbers\":{", "\"numbers\":{\"1000\":1,"},
    {"\"numbers\":{", "\"numbers\":{\"01\":1,"},
    {"\"numbers\":{", "\"numbers\":{\"+1\":1,"},
    {"\"numbers\":{", "\"numbers\":{\" 1\":1,"},
    {"\"numbers\":{", "\"numbers\":{\"1 \":1,"},
    {"\"numbers\":{", "\"numbers\":{\"\":1,"},
    {"\"numbers\":{", "\"numbers\":{\"0x1\":1,"},
    {"\"numbers\":{", "\"numbers\":{\"1.0\":1,"},
    {"\"numbers\":{", "\"numbers\":{\"-0\":1,"},
    {"\"numbers\":{", "\"numbers\":{\"4294967296\":1,"},
    {"\"numbers\":{", "\"numbers\":{\"5\":\"1\","},
    {"\"numbers\":{", "\"numbers\":{\"5\":null,"},
    {"\"numbers\":{", "\"numbers\":{\"5\":1.5,"},
    {"\"numbers\":{", "\"numbers\":{\"5\":true,"},
    {"\"numbers\":{", "\"numbers\":{\"5\":2147483648,"},
    {"\"numbers\":{", "\"numbers\":{\"5\":-2147483649,"},
    {"\"numbers\":{", "\"numbers\":null,\"other\":{"},
    {"\"numbers\":{", "\"numbers\":[],\"other\":{"},
    {"\"texts\":{", "\"texts\":\"7\",\"other\":{"},
    {"\"texts\":{", "\"texts\":{\"1000\":\"\"},\"other\":{"},
    {"\"texts\":{", "\"texts\":{\"07\":\"\"},\"other\":{"},
    {"\"texts\":{", "\"texts\":{\"5\":5},\"other\":{"},
    {"\"texts\":{", "\"texts\":{\"5\":null},\"other\":{"},
    {"\"texts\":{", "\"texts\":{\"5\":\"" + std::string(1001, 'x') + "\"},\"other\":{"}};

TEST(RecordPayloadTest, TellsTheRecordWhole) {
    const auto record = ReadRecord(Voice);
    ASSERT_TRUE(record);
    EXPECT_EQ(record->Type, "VOICE");
    EXPECT_EQ(record->Role, "VVL");
    EXPECT_EQ(record->Parameters.Numbers, (Numbers{{0, 3}, {1, 7}}));
    EXPECT_EQ(record->Parameters.Texts, (Texts{{7, "voice.example/tower"}}));
    EXPECT_EQ(WriteRecord(*record), Voice);
}

TEST(RecordPayloadTest, ListsNothingThatIsZeroOrEmpty) {
    const auto record =
        ReadRecord(R"({"type":"A","role":"B","numbers":{"5":0,"999":-1,"0":0},"texts":{"1":"","2":"x"}})");
    ASSERT_TRUE(record);
    EXPECT_EQ(record->Parameters.Numbers, (Numbers{{999, -1}}));
    EXPECT_EQ(record->Parameters.Texts, (Texts{{2, "x"}}));
    EXPECT_EQ(WriteRecord({"A", "B", {{{5, 0}, {6, 6}}, {{1, ""}}}}),
              R"({"type":"A","role":"B","numbers":{"6":6},"texts":{}})");
}

TEST(RecordPayloadTest, NeedsNoLists) {
    const auto record = ReadRecord(R"({"type":"","role":""})");
    ASSERT_TRUE(record);
    EXPECT_TRUE(record->Parameters.Numbers.empty());
    EXPECT_TRUE(record->Parameters.Texts.empty());
}

TEST(RecordPayloadTest, DropsWhatBreaksARule) {
    ExpectRefusals(ReadRecord, Voice, WrongParameters);
    ExpectRefusals(ReadRecord, Voice,
                   {{"\"type\":\"VOICE\",", ""},
                    {"\"role\":\"VVL\",", ""},
                    {"\"VOICE\"", "null"},
                    {"\"VVL\"", "1"},
                    {"VVL", std::string(1001, 'x')}});
    EXPECT_FALSE(ReadRecord(""));
}

TEST(RecordPayloadTest, WritesNoMoreThanAPayloadHolds) {
    RecordContent record{"VOICE", "VVL", {}};
    for (Long index = -2; index < 1010; ++index) {
        record.Parameters.Numbers[index] = -2147483647;
        record.Parameters.Texts[index] = std::string(1200, 'x');
    }
    const std::string payload = WriteRecord(record);
    EXPECT_LE(payload.size(), 65536U);
    const auto read = ReadRecord(payload);
    ASSERT_TRUE(read);
    EXPECT_EQ(read->Parameters.Numbers.size(), 1000U);
    EXPECT_GT(read->Parameters.Texts.size(), 10U);
}

TEST(RecordPayloadTest, AWriteListsWhatIsWrittenAlsoZero) {
    const auto request = ReadWrite(R"({"to":"c99","record":65535,"numbers":{"9":0},"texts":{"1":""}})");
    ASSERT_TRUE(request);
    EXPECT_EQ(request->To, 99);
    EXPECT_EQ(request->Record, 65535);
    EXPECT_EQ(request->Written.Numbers, (Numbers{{9, 0}}));
    EXPECT_EQ(request->Written.Texts, (Texts{{1, ""}}));
    EXPECT_EQ(WriteWrite(*request), R"({"to":"c99","record":65535,"numbers":{"9":0},"texts":{"1":""}})");
    EXPECT_EQ(WriteWrite({7, 3, {{{9, 1}}, {}}}), Write);
}

TEST(RecordPayloadTest, AWriteThatBreaksARuleIsDropped) {
    ExpectTaken(ReadWrite, Write, {{",\"numbers\":{\"9\":1},\"texts\":{}", ""}});
    std::vector<Change> changes = WrongParameters;
    changes.insert(changes.end(), {{"\"to\":\"c07\",", ""},
                                   {"\"record\":3,", ""},
                                   {"\"c07\"", "7"},
                                   {"c07", "c7"},
                                   {"c07", "c00"},
                                   {"c07", "C07"},
                                   {"c07", "c100"},
                                   {"c07", ""},
                                   {"\"record\":3", "\"record\":0"},
                                   {"\"record\":3", "\"record\":65536"},
                                   {"\"record\":3", "\"record\":3.0"},
                                   {"\"record\":3", "\"record\":\"3\""}});
    ExpectRefusals(ReadWrite, Write, changes);
}

}  // namespace
}  // namespace orvelle::mqtt
