// The fuzz target of what comes from other computers and from the file setup.json: the first byte chooses a reader, the
// rest is what it reads. What a reader takes must be within the bounds and go through its writer and back unchanged;
// what is given to a writer, whatever it is, must come back by the reader. At the end it tells how many inputs were
// refused.
#include <cstddef>
#include <cstdint>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>

#include "adapters/mqtt/JoinCode.h"
#include "adapters/mqtt/Payloads.h"
#include "adapters/mqtt/SetUpFile.h"
#include "adapters/mqtt/Topics.h"
#include "tests/fuzz/Breach.h"

namespace orvelle::mqtt {

namespace {

constexpr std::size_t PayloadBound = 65536;

using fuzz::Fail;

fuzz::Counts& Tried() {
    static fuzz::Counts counts("payloads");
    return counts;
}

// The text that was taken, written again, is read as the same: compared as text, since the writer tells everything.
template <typename Read, typename Write>
void Hold(std::string_view text, Read read, Write write) {
    const auto content = read(text);
    Tried().Count(content.has_value());
    if (!content) return;
    const std::string written = write(*content);
    if (written.size() > PayloadBound) Fail("too long", written);
    const auto again = read(written);
    if (!again) Fail("what was written is refused", written);
    if (write(*again) != written) Fail("what was written is read as another", written);
}

void CheckParameters(const RecordParameters& parameters) {
    for (const auto& [index, number] : parameters.Numbers)
        if (index < 0 || index > 999) Fail("index", std::to_string(index));
    for (const auto& [index, text] : parameters.Texts)
        if (index < 0 || index > 999 || text.size() > 4000) Fail("text", text);
}

std::optional<RecordContent> ReadCheckedRecord(std::string_view text) {
    std::optional<RecordContent> record = ReadRecord(text);
    if (record) CheckParameters(record->Parameters);
    return record;
}

std::optional<InputMessage> ReadCheckedInput(std::string_view text) {
    std::optional<InputMessage> message = ReadInput(text);
    if (message && (message->Held.Keys.size() > 64 || message->Held.Buttons.size() > 64)) Fail("held names", text);
    return message;
}

// Any bytes as the texts of messages that this program sends.
void Send(std::string_view bytes) {
    InputMessage input;
    RecordContent record;
    SessionSetting session;
    session.Handle = 1;
    std::istringstream lines{std::string(bytes)};
    for (std::string line; std::getline(lines, line);) {
        input.Held.Keys.push_back(line);
        input.Held.Buttons.insert(input.Held.Buttons.begin(), line);
        input.Held.Repeat = line;
        record.Role = line;
        record.Parameters.Texts[static_cast<Long>(input.Held.Keys.size())] = line;
        session.Callsign = session.Frequency[0] = session.Receive = line;
        session.Voice.fill({1, line, line, line, line});
    }
    for (const std::string& payload : {WriteInput(input), WriteRecord(record), WriteSession(session)})
        if (payload.size() > PayloadBound) Fail("too long", payload);
    if (!ReadInput(WriteInput(input))) Fail("input is refused", WriteInput(input));
    if (!ReadRecord(WriteRecord(record))) Fail("a record is refused", WriteRecord(record));
    if (!ReadSession(WriteSession(session))) Fail("a session is refused", WriteSession(session));
}

void Read(unsigned char choice, std::string_view text) {
    switch (choice % 11) {
        case 0:
            return Hold(text, ReadPresence, WritePresence);
        case 1:
        case 2:
            return Hold(text, ReadCheckedInput, WriteInput);
        case 3:
            return Hold(text, ReadPlay, WritePlay);
        case 4:
            return Hold(text, ReadSession, WriteSession);
        case 5:
        case 6:
            return Hold(text, ReadCheckedRecord, WriteRecord);
        case 7:
            return Hold(text, ReadWrite, WriteWrite);
        case 8:
            return Hold(text, ReadTopic, WriteTopic);
        case 9:
            return Hold(text, ReadSetUp, WriteSetUp);
        default:
            return Hold(text, ReadJoinCode, WriteJoinCode);
    }
}

}  // namespace

}  // namespace orvelle::mqtt

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
    if (count == 0) return 0;
    const std::string_view text = orvelle::fuzz::TextOf(bytes + 1, count - 1);
    const auto read = [choice = bytes[0]](std::string_view each) { orvelle::mqtt::Read(choice, each); };
    read(text);
    orvelle::fuzz::ReadNeighbours(text, 64, read);
    if (bytes[0] % 16 == 0) orvelle::mqtt::Send(text);
    return 0;
}
