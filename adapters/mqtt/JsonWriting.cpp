#include "adapters/mqtt/JsonWriting.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "adapters/mqtt/Bounds.h"
#include "adapters/shared/Utf8.h"

namespace orvelle::mqtt {

namespace {

// Lists of names and of parameters end here, so that the payload has room for the texts beside and behind them. No list
// that is not made up comes near.
constexpr std::size_t RoomWithLists = bounds::Payload - 8192;
// Bytes of a text as it is written. A control character takes six there; all else of 1,000 characters is within this.
constexpr std::size_t LongestWritten = 4 * bounds::Text + 2;

// `text` is valid UTF-8.
std::string Quoted(const std::string& text) { return nlohmann::json(text).dump(); }

void Append(std::string& list, const std::string& entry) {
    if (!list.empty()) list += ',';
    list += entry;
}

std::string IndexName(Long index) { return '"' + std::to_string(index) + "\":"; }

}  // namespace

std::string WrittenText(const std::string& text) {
    std::string written(ToUtf8(text));
    for (std::size_t count = bounds::Text; count > 0; count /= 2) {
        written = FirstCharacters(written, count);
        if (written.size() * 6 < LongestWritten || Quoted(written).size() <= LongestWritten) break;
    }
    return written;
}

void JsonWriting::Begin(std::string_view name) {
    if (!members.empty()) members += ',';
    members.append("\"").append(name).append("\":");
}

void JsonWriting::List(std::string_view name, const std::string& entries, char opening, char closing) {
    Begin(name);
    members += opening + entries + closing;
}

bool JsonWriting::Fits(const std::string& list, const std::string& entry) const {
    return members.size() + list.size() + entry.size() < RoomWithLists;
}

void JsonWriting::Number(std::string_view name, Long number) {
    Begin(name);
    members += std::to_string(number);
}

void JsonWriting::Flag(std::string_view name, bool flag) {
    Begin(name);
    members += flag ? "true" : "false";
}

void JsonWriting::Text(std::string_view name, const std::string& text) {
    Begin(name);
    members += Quoted(WrittenText(text));
}

void JsonWriting::Texts(std::string_view name, const std::vector<std::string>& texts) {
    std::string list;
    for (const std::string& text : texts) Append(list, Quoted(WrittenText(text)));
    List(name, list, '[', ']');
}

std::vector<std::string> JsonWriting::HeldNames(std::string_view name, const std::vector<std::string>& names) {
    std::vector<std::string> written;
    std::string list;
    for (const std::string& held : names) {
        const std::string text = WrittenText(held);
        const std::string quoted = Quoted(text);
        const bool isThere = std::find(written.begin(), written.end(), text) != written.end();
        if (text.empty() || isThere || written.size() == bounds::HeldNames || !Fits(list, quoted)) continue;
        Append(list, quoted);
        written.push_back(text);
    }
    List(name, list, '[', ']');
    return written;
}

void JsonWriting::Objects(std::string_view name, const std::vector<JsonWriting>& objects) {
    std::string list;
    for (const JsonWriting& object : objects) Append(list, object.Whole());
    List(name, list, '[', ']');
}

void JsonWriting::Indexed(std::string_view name, const std::map<Long, Long>& numbers) {
    std::string list;
    for (const auto& [index, number] : numbers)
        if (index >= 0 && index <= bounds::LastIndex) Append(list, IndexName(index) + std::to_string(number));
    List(name, list, '{', '}');
}

void JsonWriting::Indexed(std::string_view name, const std::map<Long, std::string>& texts) {
    std::string list;
    for (const auto& [index, text] : texts) {
        const std::string entry = IndexName(index) + Quoted(WrittenText(text));
        if (index >= 0 && index <= bounds::LastIndex && Fits(list, entry)) Append(list, entry);
    }
    List(name, list, '{', '}');
}

}  // namespace orvelle::mqtt
