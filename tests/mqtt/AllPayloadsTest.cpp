// What no reader takes, and what each takes, whatever the message is about.
#include <gtest/gtest.h>

#include <functional>

#include "adapters/mqtt/Payloads.h"
#include "adapters/mqtt/SetUpFile.h"
#include "tests/mqtt/Refusals.h"

namespace orvelle::mqtt {
namespace {

struct Reader {
    const char* Name;
    std::function<bool(const std::string&)> Takes;
    std::string Taken;  // an object that ends in a text
};

const std::string Radio = R"({"frequency":"","software":0,"server":"","channel":"","login":"","password":""})";

const std::vector<Reader>& Readers() {
    static const std::vector<Reader> All{
        {"presence", [](const std::string& text) { return ReadPresence(text).has_value(); },
         R"({"name":"","address":"","beat":1,"desktop":"X"})"},
        {"input", [](const std::string& text) { return ReadInput(text).has_value(); },
         R"({"number":1,"active":true,"keys":["X"],"buttons":[],"repeat":"X"})"},
        {"play", [](const std::string& text) { return ReadPlay(text).has_value(); }, R"({"to":"c01","sound":"X"})"},
        {"session", [](const std::string& text) { return ReadSession(text).has_value(); },
         R"({"handle":1,"status":1,"receive":"","transmit":"","radios":[)" + Radio + "," + Radio +
             R"(],"callsign":"X"})"},
        {"record", [](const std::string& text) { return ReadRecord(text).has_value(); }, R"({"type":"","role":"X"})"},
        {"write", [](const std::string& text) { return ReadWrite(text).has_value(); },
         R"({"to":"c01","record":1,"numbers":{},"texts":{"1":"X"}})"},
        {"set-up", [](const std::string& text) { return ReadSetUp(text).has_value(); },
         R"({"version":1,"setup":"Home","host":"simpc","port":8883,"identity":"c07",)"
         R"("key":"000102030405060708090a0b0c","comment":"X"})"},
    };
    return All;
}

void ExpectAll(bool taken, const std::function<std::string(const std::string&)>& make) {
    for (const Reader& reader : Readers())
        EXPECT_EQ(reader.Takes(make(reader.Taken)), taken) << reader.Name << ": " << make(reader.Taken).substr(0, 300);
}

std::string WithMember(const std::string& message, const std::string& member) {
    return Changed(message, {"{", "{" + member + ","});
}

TEST(AllPayloadsTest, AreTakenAsTheyAre) {
    ExpectAll(true, [](const std::string& message) { return message; });
}

TEST(AllPayloadsTest, MayHaveBlanksAndOtherMembers) {
    ExpectAll(true, [](const std::string& message) { return " \t\r\n" + message + " \t\r\n"; });
    for (const char* member :
         {"\"x\":null", "\"x\":[[],{}]", "\"\":1.5", R"("x":{"name":1,"keys":2})", R"("Name":1)", R"("\u006bey ":1)"})
        ExpectAll(true, [member](const std::string& message) { return WithMember(message, member); });
}

TEST(AllPayloadsTest, AreOneJsonObjectEach) {
    for (const char* text :
         {"{}", "[]", "1", "null", "true", "\"\"", " ", "{", "}", "nul", "\xEF\xBB\xBF", "{\"name\"}"})
        ExpectAll(false, [text](const std::string&) { return text; });
    ExpectAll(false, [](const std::string& message) { return "[" + message + "]"; });
    ExpectAll(false, [](const std::string& message) { return message + message; });
    ExpectAll(false, [](const std::string& message) { return message + ","; });
    ExpectAll(false, [](const std::string& message) { return "// a remark\n" + message; });
    ExpectAll(false, [](const std::string& message) { return Changed(message, {"}", ",}"}); });
    ExpectAll(false, [](const std::string& message) { return Changed(message, {"\"", "'"}); });
    ExpectAll(false, [](const std::string& message) { return "\xEF\xBB\xBF" + message; });
    ExpectAll(false, [](const std::string& message) { return message + std::string(1, '\0'); });
    ExpectAll(false, [](const std::string& message) { return message + std::string(1, '\0') + "more"; });
    ExpectAll(false, [](const std::string& message) { return std::string(1, '\0') + message; });
}

TEST(AllPayloadsTest, EndWhereTheyEnd) {
    for (const Reader& reader : Readers())
        for (std::size_t length = 1; length < reader.Taken.size(); ++length)
            EXPECT_FALSE(reader.Takes(reader.Taken.substr(0, length))) << reader.Name << " " << length;
}

TEST(AllPayloadsTest, AreUtf8Throughout) {
    for (const char* text : {"\xFC", "\xC3", "\xC0\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\\ud800", "\\udc00",
                             "\\u12", "\n", "\x01"}) {
        ExpectAll(false, [text](const std::string& message) {
            return Changed(message, {"\"X\"", "\"" + std::string(text) + "\""});
        });
        ExpectAll(false, [text](const std::string& message) {
            return WithMember(message, "\"" + std::string(text) + "\":1");
        });
    }
    ExpectAll(false, [](const std::string& message) { return message + "\xA0"; });
    ExpectAll(true, [](const std::string& message) { return WithMember(message, R"("x":"\ud83d\ude00\u0000")"); });
}

TEST(AllPayloadsTest, HaveSixtyFourKibibytesAtMost) {
    const auto fill = [](const std::string& message, std::size_t size) {
        return message + std::string(size - message.size(), ' ');
    };
    ExpectAll(true, [&fill](const std::string& message) { return fill(message, 65536); });
    ExpectAll(false, [&fill](const std::string& message) { return fill(message, 65537); });
}

TEST(AllPayloadsTest, TheLastOfTwoMembersOfOneNameCounts) {
    ExpectAll(true, [](const std::string& message) {
        const std::string first = message.substr(1, message.find(':') - 1);
        return WithMember(message, first + ":[null]");
    });
    ExpectAll(false, [](const std::string& message) {
        const std::string first = message.substr(1, message.find(':') - 1);
        return message.substr(0, message.size() - 1) + "," + first + ":[null]}";
    });
}

TEST(AllPayloadsTest, MayBeAsDeepAsTheyAreLong) {
    const std::string deep = std::string(30000, '[') + std::string(30000, ']');
    ExpectAll(true, [&deep](const std::string& message) { return WithMember(message, "\"x\":" + deep); });
    ExpectAll(false, [](const std::string&) { return std::string(65536, '['); });
    ExpectAll(false, [](const std::string&) {
        std::string text;
        while (text.size() < 65000) text += "{\"x\":";
        return text;
    });
}

}  // namespace
}  // namespace orvelle::mqtt
