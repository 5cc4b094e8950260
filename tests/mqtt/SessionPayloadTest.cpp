#include <gtest/gtest.h>

#include "adapters/mqtt/Payloads.h"
#include "tests/mqtt/Refusals.h"

namespace orvelle::mqtt {
namespace {

const std::string Com1 =
    R"({"frequency":"118.300","software":1,"server":"voice.example","channel":"tower","login":"me","password":"secret"})";
const std::string Com2 = R"({"frequency":"121.500","software":0,"server":"","channel":"","login":"","password":""})";
const std::string Open =
    R"({"handle":3,"status":1,"callsign":"ABC123","receive":"B","transmit":"1","radios":[)" + Com1 + ',' + Com2 + "]}";

TEST(SessionPayloadTest, TellsTheSessionWhole) {
    SessionSetting session;
    session.Handle = 3;
    session.Status = 1;
    session.Callsign = "ABC123";
    session.Receive = "B";
    session.Transmit = "1";
    session.Frequency = {"118.300", "121.500"};
    session.Voice[0] = {1, "voice.example", "tower", "me", "secret"};
    EXPECT_EQ(ReadSession(Open), session);
    EXPECT_EQ(WriteSession(session), Open);
}

TEST(SessionPayloadTest, NoSessionIsAnEmptyPayload) {
    EXPECT_EQ(ReadSession(""), SessionSetting{});
    EXPECT_EQ(WriteSession({}), "");
}

TEST(SessionPayloadTest, TakesWhatIsWithinTheBounds) {
    ExpectTaken(ReadSession, Open,
                {{"\"handle\":3", "\"handle\":2147483647"},
                 {"\"status\":1", "\"status\":-2147483648"},
                 {"\"status\":1", "\"status\":-0"},
                 {"\"receive\":\"B\"", "\"receive\":\"1\""},
                 {"\"receive\":\"B\"", "\"receive\":\"2\""},
                 {"\"receive\":\"B\"", "\"receive\":\"\""},
                 {"\"transmit\":\"1\"", "\"transmit\":\"B\""},
                 {"\"software\":0", "\"software\":-7"},
                 {"tower", std::string(1000, 't')},
                 {"{\"frequency\"", "{\"later\":1,\"frequency\""}});
}

TEST(SessionPayloadTest, DropsWhatBreaksARule) {
    std::vector<Change> changes{{"\"handle\":3", "\"handle\":0"},
                                {"\"handle\":3", "\"handle\":-3"},
                                {"\"handle\":3", "\"handle\":2147483648"},
                                {"\"handle\":3", "\"handle\":\"3\""},
                                {"\"status\":1", "\"status\":2147483648"},
                                {"\"status\":1", "\"status\":-2147483649"},
                                {"\"status\":1", "\"status\":1.0"},
                                {"\"status\":1", "\"status\":true"},
                                {"\"receive\":\"B\"", "\"receive\":\"b\""},
                                {"\"receive\":\"B\"", "\"receive\":\"3\""},
                                {"\"receive\":\"B\"", "\"receive\":1"},
                                {"\"receive\":\"B\"", "\"receive\":null"},
                                {"\"transmit\":\"1\"", "\"transmit\":\"12\""},
                                {"tower", std::string(1001, 't')},
                                {Com1 + ',' + Com2, ""},
                                {Com1 + ',' + Com2, Com1},
                                {Com1 + ',' + Com2, Com1 + ',' + Com2 + ',' + Com2},
                                {Com2, "null"},
                                {Com2, "[]"},
                                {'[' + Com1 + ',' + Com2 + ']', "{\"0\":" + Com1 + ",\"1\":" + Com2 + "}"},
                                {"\"software\":0", "\"software\":0.5"},
                                {"\"software\":0", "\"software\":4294967296"}};
    for (const char* member :
         {"\"handle\":3,", "\"status\":1,", "\"callsign\":\"ABC123\",", "\"receive\":\"B\",", "\"transmit\":\"1\",",
          "\"frequency\":\"118.300\",", "\"software\":1,", "\"server\":\"voice.example\",", "\"channel\":\"tower\",",
          "\"login\":\"me\",", ",\"password\":\"secret\""})
        changes.push_back({member, ""});
    changes.push_back({",\"radios\":[" + Com1 + ',' + Com2 + ']', ""});
    ExpectRefusals(ReadSession, Open, changes);
}

TEST(SessionPayloadTest, WritesNoSelectionThatIsNone) {
    SessionSetting session;
    session.Handle = 1;
    session.Receive = "C";
    session.Transmit = "2";
    const auto read = ReadSession(WriteSession(session));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->Receive, "");
    EXPECT_EQ(read->Transmit, "2");
}

TEST(SessionPayloadTest, WritesNoMoreThanAPayloadHolds) {
    const std::string longest(5000, '\1');
    SessionSetting session;
    session.Handle = 1;
    session.Callsign = longest;
    session.Frequency = {longest, longest};
    session.Voice.fill({1, longest, longest, longest, longest});
    const std::string payload = WriteSession(session);
    EXPECT_LE(payload.size(), 65536U);
    EXPECT_TRUE(ReadSession(payload));
}

}  // namespace
}  // namespace orvelle::mqtt
