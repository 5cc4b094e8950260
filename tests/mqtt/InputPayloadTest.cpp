#include <gtest/gtest.h>

#include "adapters/mqtt/Payloads.h"
#include "tests/mqtt/Refusals.h"

namespace orvelle::mqtt {
namespace {

const std::string Held =
    R"({"number":43,"active":true,"keys":["Ctrl","F8"],"buttons":["Stick.Button 3"],"repeat":"F8"})";

TEST(InputPayloadTest, TellsAllThatIsHeld) {
    const InputMessage message{43, {true, {"Ctrl", "F8"}, {"Stick.Button 3"}, "F8"}};
    EXPECT_EQ(ReadInput(Held), message);
    EXPECT_EQ(WriteInput(message), Held);
}

TEST(InputPayloadTest, TellsThatNothingIsHeld) {
    const std::string nothing = R"({"number":1,"active":false,"keys":[],"buttons":[]})";
    const InputMessage message{1, {false, {}, {}, ""}};
    EXPECT_EQ(ReadInput(nothing), message);
    EXPECT_EQ(WriteInput(message), nothing);
}

TEST(InputPayloadTest, TakesMembersInAnyOrderAndIgnoresOthers) {
    const auto read = ReadInput(
        " {\"later\": [{\"keys\": null}, -1.5e300], \"buttons\" :[], \"keys\":[\"A\"],\n\"active\":true,\t\"number\": "
        "7} ");
    EXPECT_EQ(read, (InputMessage{7, {true, {"A"}, {}, ""}}));
}

TEST(InputPayloadTest, TakesWhatIsWithinTheBounds) {
    const std::string longest(1000, 'x');
    const std::string longestByCharacters = List(1, "\"" + std::string(999, 'x') + "\xE2\x82\xAC\"");
    ExpectTaken(ReadInput, Held,
                {{"43", "1"},
                 {"43", "2147483647"},
                 {",\"repeat\":\"F8\"", ""},
                 {"\"repeat\":\"F8\"", "\"repeat\":\"\""},
                 {"\"Stick.Button 3\"", NameList(64)},
                 {"\"Ctrl\",\"F8\"", NameList(63) + ",\"F8\""},
                 {"\"Stick.Button 3\"", '"' + longest + '"'},
                 {"\"Stick.Button 3\"", longestByCharacters},
                 {"\"Stick.Button 3\"", R"("F8","Ctrl")"}});
}

TEST(InputPayloadTest, DropsWhatBreaksARule) {
    ExpectRefusals(ReadInput, Held,
                   {{"\"number\":43,", ""},
                    {"\"active\":true,", ""},
                    {"\"keys\":[\"Ctrl\",\"F8\"],", ""},
                    {"\"buttons\":[\"Stick.Button 3\"],", ""},
                    {"43", "0"},
                    {"43", "-1"},
                    {"43", "2147483648"},
                    {"43", "18446744073709551616"},
                    {"43", "43.0"},
                    {"43", "4.3e1"},
                    {"43", "\"43\""},
                    {"43", "null"},
                    {"43", "043"},
                    {"true", "1"},
                    {"true", "\"true\""},
                    {"true", "null"},
                    {"[\"Ctrl\",\"F8\"]", "\"F8\""},
                    {"[\"Ctrl\",\"F8\"]", "null"},
                    {"[\"Ctrl\",\"F8\"]", "{\"0\":\"F8\"}"},
                    {"\"Ctrl\"", "1"},
                    {"\"Ctrl\"", "null"},
                    {"\"Ctrl\"", "\"\""},
                    {"\"Ctrl\"", "\"F8\""},
                    {"\"Stick.Button 3\"", "\"\""},
                    {"\"Stick.Button 3\"", "\"A\",\"B\",\"A\""},
                    {"\"Ctrl\",\"F8\"", NameList(64) + ",\"F8\""},
                    {"\"Stick.Button 3\"", NameList(65)},
                    {"\"Stick.Button 3\"", '"' + std::string(1001, 'x') + '"'},
                    {"\"repeat\":\"F8\"", "\"repeat\":\"F9\""},
                    {"\"repeat\":\"F8\"", "\"repeat\":\"Stick.Button 3\""},
                    {"\"repeat\":\"F8\"", "\"repeat\":null"},
                    {"\"repeat\":\"F8\"", "\"repeat\":[\"F8\"]"}});
}

TEST(InputPayloadTest, WritesWhatIsBeyondTheBoundsCut) {
    InputMessage message;
    for (int name = 0; name < 80; ++name) message.Held.Keys.push_back("Key " + std::to_string(name));
    message.Held.Buttons = {"", "A", std::string(1500, 'x'), "A", std::string(1501, 'x'), "M\xFC"};
    message.Held.Repeat = "Key 79";
    const auto read = ReadInput(WriteInput(message));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->Held.Keys.size(), 64U);
    EXPECT_EQ(read->Held.Keys.back(), "Key 63");
    EXPECT_EQ(read->Held.Buttons, (std::vector<std::string>{"A", std::string(1000, 'x'), "M\xC3\xBC"}));
    EXPECT_EQ(read->Held.Repeat, "");
}

TEST(InputPayloadTest, WritesNoMoreThanAPayloadHolds) {
    InputMessage message;
    for (char name = 1; name <= 64; ++name) {
        message.Held.Keys.push_back(std::string(999, '\1') + name);
        message.Held.Buttons.push_back(name + std::string(999, '\1'));
    }
    message.Held.Repeat = message.Held.Keys.front();
    const std::string payload = WriteInput(message);
    EXPECT_LE(payload.size(), 65536U);
    const auto read = ReadInput(payload);
    ASSERT_TRUE(read);
    EXPECT_FALSE(read->Held.Keys.empty());
    EXPECT_EQ(read->Held.Repeat, read->Held.Keys.front());
}

}  // namespace
}  // namespace orvelle::mqtt
