#include "simulators/directory/JsonEntries.h"

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <iterator>
#include <nlohmann/json.hpp>
#include <utility>

#include "adapters/shared/Utf8.h"

namespace orvelle::directory {

namespace {

using Kind = JsonValue::Kind;

constexpr std::size_t LongestQuoted = 40;  // characters
constexpr int NumberTooLarge = 406;        // the parser's own number of that error

// The text as the parser walks through it; tells how far it has come.
class Walk {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = char;

    Walk(const char* from, const char** toldPlace) : place(from), told(toldPlace) {}
    char operator*() const { return *place; }
    Walk& operator++() {
        *told = ++place;
        return *this;
    }
    Walk operator++(int) {
        Walk before = *this;
        ++*this;
        return before;
    }
    bool operator==(const Walk& other) const { return place == other.place; }

private:
    const char* place;
    const char** told;
};

bool IsPlain(char character) { return std::isalnum(static_cast<unsigned char>(character)) || character == '_'; }

// Takes the parser's events, and makes values of them. What is open stands in `open`, outermost first: the outermost
// object, perhaps a section, then the containers of the entry that is being read.
class EntryMaker {
public:
    EntryMaker(std::string_view whole, const std::vector<std::string>& itsSections,
               const std::function<void(const JsonEntry&)>& taker)
        : text(whole), sections(itsSections), take(taker) {}

    const char** Place() { return &place; }
    const std::optional<JsonTrouble>& Trouble() const { return trouble; }

    // The events, by the names that the parser gives them.
    bool null() { return Put(ValueOf(Kind::Null)); }
    bool boolean(bool) { return Put(ValueOf(Kind::Boolean)); }
    bool number_integer(std::int64_t number) { return PutNumber(static_cast<double>(number)); }
    bool number_unsigned(std::uint64_t number) { return PutNumber(static_cast<double>(number)); }
    bool number_float(double number, const std::string&) { return PutNumber(number); }
    bool string(std::string& content) {
        JsonValue value = ValueOf(Kind::Text);
        value.Text = std::move(content);
        return Put(std::move(value));
    }
    bool binary(nlohmann::json::binary_t&) { return false; }
    bool start_object(std::size_t) { return Open(Kind::Object); }
    bool start_array(std::size_t) { return Open(Kind::List); }
    bool key(std::string& content) {
        open.back().Name = std::move(content);
        ++open.back().Count;
        return true;
    }
    bool end_object() { return Close(); }
    bool end_array() { return Close(); }
    bool parse_error(std::size_t position, const std::string& last, const nlohmann::json::exception& error) {
        if (error.id == NumberTooLarge) return Fail("The number is too large.");
        if (position > text.size()) return Fail("The text ends here, before it is complete.");
        const std::string read = ToUtf8(last);
        const std::string_view shown = FirstCharacters(read, LongestQuoted);
        return Fail("This is no JSON: " + std::string(shown) + (shown.size() < read.size() ? "..." : "") +
                    " can't stand here.");
    }

private:
    struct Container {
        JsonValue* Value = nullptr;  // null where its members are not kept: the outermost object, a section
        Kind What = Kind::Object;
        std::string Name{};  // of its member that was read last
        std::size_t Count = 0;
    };

    bool IsSection(std::string_view member) const { return std::ranges::find(sections, member) != sections.end(); }
    // At the level of an entry: nothing is open above it but the outermost object, or that and a section.
    bool BeginsEntry() const { return open.back().Value == nullptr; }

    // A number's end is known by the character behind it, which may be a line feed.
    std::size_t Line() {
        const char* const last = place == text.data() ? place : place - 1;
        if (last > counted) {
            lines += static_cast<std::size_t>(std::count(counted, last, '\n'));
            counted = last;
        }
        return lines;
    }

    bool Fail(const std::string& sentence) {
        if (!trouble) trouble = {Line(), Path(), sentence};
        return false;
    }

    std::string Path() const {
        std::string path;
        for (const Container& container : open) {
            if (container.Count == 0) break;
            path += container.What == Kind::List ? ItemPath(container.Count - 1) : MemberPath(container.Name);
        }
        return path.starts_with('.') ? path.substr(1) : path;
    }

    static JsonValue ValueOf(Kind kind) {
        JsonValue value;
        value.What = kind;
        return value;
    }

    bool PutNumber(double number) {
        JsonValue value = ValueOf(Kind::Number);
        value.Number = number;
        return Put(std::move(value));
    }

    // A value without members; its line is that of its end.
    bool Put(JsonValue value) {
        if (open.empty()) return Fail("A directory is one JSON object, in braces.");
        value.Line = Line();
        Count();
        if (BeginsEntry()) {
            Begin(std::move(value));
            take(entry);
        } else {
            Add(std::move(value));
        }
        return true;
    }

    bool Open(Kind kind) {
        if (open.size() == DeepestJson)
            return Fail("It is nested too deep: " + std::to_string(DeepestJson) + " levels at most.");
        JsonValue value = ValueOf(kind);
        value.Line = Line();
        if (open.empty()) {
            if (kind == Kind::List) return Fail("A directory is one JSON object, in braces.");
            open.push_back({});
            return true;
        }
        Count();
        if (!BeginsEntry()) {
            JsonValue* const added = Add(std::move(value));
            open.push_back({.Value = added, .What = kind});
            return true;
        }
        Begin(std::move(value));
        const bool isSection = open.size() == 1 && IsSection(open.back().Name);
        if (isSection) {
            section = open.back().Name;
            take(entry);
        }
        open.push_back({.Value = isSection ? nullptr : &entry.Member.Value, .What = kind});
        return true;
    }

    bool Close() {
        const bool wasKept = open.back().Value != nullptr;
        open.pop_back();
        if (!open.empty() && BeginsEntry() && wasKept) take(entry);
        if (open.size() == 1) section.clear();
        return true;
    }

    // One more item, where a list is open; an object's members are counted by their names.
    void Count() {
        if (open.back().What == Kind::List) ++open.back().Count;
    }

    void Begin(JsonValue value) {
        entry = {.Section = section, .Index = open.back().Count - 1, .Member = {open.back().Name, std::move(value)}};
        values = 0;
    }

    // Values beyond the bound have nowhere to go but the one that is thrown away.
    JsonValue* Add(JsonValue value) {
        if (++values > MostJsonValues) {
            entry.IsCut = true;
            thrownAway = {};
            return &thrownAway;
        }
        std::vector<JsonMember>& members = open.back().Value->Members;
        members.push_back({open.back().Name, std::move(value)});
        return &members.back().Value;
    }

    const std::string_view text;
    const std::vector<std::string>& sections;
    const std::function<void(const JsonEntry&)>& take;
    const char* place = text.data();
    const char* counted = text.data();
    std::size_t lines = 1;
    std::string section;
    std::vector<Container> open;
    JsonEntry entry;
    JsonValue thrownAway;
    std::size_t values = 0;
    std::optional<JsonTrouble> trouble;
};

}  // namespace

std::string MemberPath(std::string_view name) {
    const std::string shown(FirstCharacters(name, LongestQuoted));
    return !name.empty() && std::ranges::all_of(shown, IsPlain) ? "." + shown : "[\"" + shown + "\"]";
}

std::string ItemPath(std::size_t index) { return "[" + std::to_string(index) + "]"; }

std::optional<JsonTrouble> ReadJsonEntries(std::string_view text, const std::vector<std::string>& sections,
                                           const std::function<void(const JsonEntry&)>& take) {
    EntryMaker maker(text, sections, take);
    const char* const end = text.data() + text.size();
    nlohmann::json::sax_parse(Walk(text.data(), maker.Place()), Walk(end, maker.Place()), &maker);
    return maker.Trouble();
}

}  // namespace orvelle::directory
