// The examples of docs/protocol.md, one by one: what stands in a fenced block is held against the reader and the writer
// that the block names.
#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <map>
#include <nlohmann/json.hpp>
#include <sstream>

#include "adapters/mqtt/JoinCode.h"
#include "adapters/mqtt/Payloads.h"
#include "adapters/mqtt/SetUpFile.h"
#include "adapters/mqtt/Topics.h"

namespace orvelle::mqtt {
namespace {

using Json = nlohmann::json;

struct Example {
    int Line = 0;
    std::string Kind;  // what stands behind the fence
    std::vector<std::string> Lines;

    std::string Text() const {
        std::string text;
        for (const std::string& line : Lines) text += line + '\n';
        return text;
    }
};

std::vector<Example> Examples() {
    std::ifstream document(PROTOCOL_DOCUMENT);
    EXPECT_TRUE(document) << PROTOCOL_DOCUMENT;
    std::vector<Example> examples;
    bool isInside = false;
    int number = 0;
    for (std::string line; std::getline(document, line);) {
        ++number;
        if (line.starts_with("```")) {
            if (!isInside) examples.push_back({number, line.substr(3), {}});
            isInside = !isInside;
        } else if (isInside) {
            examples.back().Lines.push_back(line);
        }
    }
    EXPECT_FALSE(isInside);
    return examples;
}

// What the writer makes of what the reader took; nothing where it takes nothing.
using WayBack = std::function<std::optional<std::string>(const std::string&)>;

template <typename Read, typename Write>
WayBack Both(Read read, Write write) {
    return [read, write](const std::string& text) -> std::optional<std::string> {
        const auto content = read(text);
        return content ? std::optional(write(*content)) : std::nullopt;
    };
}

const std::map<std::string, WayBack>& Messages() {
    static const std::map<std::string, WayBack> All{
        {"presence", Both(ReadPresence, WritePresence)},
        {"input", Both(ReadInput, WriteInput)},
        {"play", Both(ReadPlay, WritePlay)},
        {"session", Both(ReadSession, WriteSession)},
        {"record", Both(ReadRecord, WriteRecord)},
        {"write", Both(ReadWrite, WriteWrite)},
        {"setup", Both(ReadSetUp, WriteSetUp)},
    };
    return All;
}

void HoldMessage(const WayBack& wayBack, const Example& example) {
    const std::optional<std::string> written = wayBack(example.Text());
    ASSERT_TRUE(written);
    EXPECT_EQ(Json::parse(*written), Json::parse(example.Text()));
}

// Each line is another spelling of what is taken: it is read, and what is written of it is read as the same.
void HoldTaken(const WayBack& wayBack, const Example& example) {
    for (const std::string& line : example.Lines) {
        const std::optional<std::string> written = wayBack(line);
        ASSERT_TRUE(written) << line;
        EXPECT_EQ(wayBack(*written), written) << line;
    }
}

void HoldRefused(const WayBack& wayBack, const Example& example) {
    for (const std::string& line : example.Lines) EXPECT_FALSE(wayBack(line)) << line;
}

void HoldTopics(const Example& example) {
    for (const std::string& line : example.Lines) {
        const std::optional<Topic> topic = ReadTopic(line);
        ASSERT_TRUE(topic) << line;
        EXPECT_EQ(WriteTopic(*topic), line);
    }
}

// Number, key and code.
void HoldCodes(const Example& example) {
    for (const std::string& line : example.Lines) {
        std::istringstream words(line);
        int number = 0;
        std::string key;
        std::string code;
        words >> number >> key >> code;
        const std::optional<Key> bytes = ReadKey(key);
        ASSERT_TRUE(bytes) << line;
        EXPECT_EQ(ReadJoinCode(code), (JoinCode{number, *bytes})) << line;
        EXPECT_EQ(WriteJoinCode({number, *bytes}), code) << line;
    }
}

std::map<std::string, std::function<void(const Example&)>> Kinds() {
    std::map<std::string, std::function<void(const Example&)>> kinds{{"topics", HoldTopics}, {"codes", HoldCodes}};
    for (const auto& message : Messages()) {
        const std::string& name = message.first;
        const WayBack& wayBack = message.second;
        kinds["json " + name] = [&wayBack](const Example& example) { HoldMessage(wayBack, example); };
        kinds["taken " + name] = [&wayBack](const Example& example) { HoldTaken(wayBack, example); };
        kinds["refused " + name] = [&wayBack](const Example& example) { HoldRefused(wayBack, example); };
    }
    return kinds;
}

TEST(ProtocolDocumentTest, HasExamplesThatReadersAndWritersHoldTo) {
    const auto kinds = Kinds();
    for (const Example& example : Examples()) {
        SCOPED_TRACE("docs/protocol.md:" + std::to_string(example.Line) + ": " + example.Kind);
        const auto kind = kinds.find(example.Kind);
        ASSERT_NE(kind, kinds.end()) << "an example of an unknown kind";
        ASSERT_FALSE(example.Lines.empty());
        kind->second(example);
    }
}

TEST(ProtocolDocumentTest, HasAnExampleOfEachMessage) {
    std::map<std::string, int> counts;
    for (const Example& example : Examples()) ++counts[example.Kind];
    for (const auto& [name, wayBack] : Messages()) EXPECT_GE(counts["json " + name], 1) << name;
    EXPECT_GE(counts["topics"], 1);
    EXPECT_GE(counts["codes"], 1);
}

}  // namespace
}  // namespace orvelle::mqtt
