#include "simulators/directory/EntryFields.h"

#include <algorithm>
#include <cstdio>
#include <utility>

#include "adapters/shared/Utf8.h"

namespace orvelle::directory {

namespace {

using Kind = JsonValue::Kind;

constexpr std::size_t LongestShown = 40;  // characters of a text that is told
constexpr char Delete = 0x7F;

const char* NameOf(Kind kind) {
    switch (kind) {
        case Kind::Null:
            return "null";
        case Kind::Boolean:
            return "true or false";
        case Kind::Number:
            return "a number";
        case Kind::Text:
            return "a text";
        case Kind::List:
            return "a list";
        case Kind::Object:
            break;
    }
    return "an object";
}

// "stations[3].name" -> "stations[].name"
std::string WithoutNumbers(const std::string& field) {
    std::string without;
    bool isInside = false;
    for (const char character : field) {
        const bool isDigit = character >= '0' && character <= '9';
        if (!(isInside && isDigit)) without += character;
        isInside = character == '[' || (isInside && isDigit);
    }
    return without;
}

bool IsByLine(const Fault& one, const Fault& other) { return one.Line < other.Line; }

std::string AsWritten(double number) {
    char text[32];
    std::snprintf(text, sizeof text, "%.10g", number);
    return text;
}

}  // namespace

void Findings::Tell(std::size_t line, const std::string& field, const std::string& sentence) {
    if (++count <= MostFaults) faults.push_back({line, field, sentence});
}

void Findings::TellUnknown(std::size_t line, const std::string& field) {
    UnknownMember& member = unknown[WithoutNumbers(field)];
    if (++member.Count == 1) member.First = {line, field, ""};
}

void Findings::MoveTo(ReadText& read) {
    for (auto& [field, member] : unknown) {
        const std::size_t others = member.Count - 1;
        member.First.Sentence =
            "It means nothing here" + (others == 0 ? "" : ", nor in " + std::to_string(others) + " more entries") + ".";
        read.Unknown.push_back(std::move(member.First));
    }
    std::ranges::stable_sort(faults, IsByLine);
    std::ranges::stable_sort(read.Unknown, IsByLine);
    read.Faults = std::move(faults);
    read.FaultCount = count;
}

Fields::Fields(const JsonValue& from, const std::string& itsPath, Findings& all,
               std::initializer_list<std::string_view> known)
    : object(from), path(itsPath), findings(all) {
    if (object.What != Kind::Object) {
        isSound = false;
        findings.Tell(object.Line, path, NotExpected(Kind::Object, object.What));
    }
    std::vector<std::string_view> found;
    for (const JsonMember& member : object.Members) {
        if (std::ranges::find(known, member.Name) == known.end()) {
            findings.TellUnknown(member.Value.Line, PathOf(member.Name));
        } else if (std::ranges::find(found, member.Name) != found.end()) {
            isSound = false;
            findings.Tell(member.Value.Line, PathOf(member.Name), "It stands here a second time.");
        } else {
            found.push_back(member.Name);
        }
    }
}

std::string Fields::PathOf(std::string_view name) const { return path + MemberPath(name); }

std::size_t Fields::LineOf(std::string_view name) const {
    const auto member = std::ranges::find(object.Members, name, &JsonMember::Name);
    return member == object.Members.end() ? object.Line : member->Value.Line;
}

void Fields::Tell(std::string_view name, const std::string& sentence) {
    isSound = false;
    findings.Tell(LineOf(name), PathOf(name), sentence);
}

const JsonValue* Fields::Find(std::string_view name, Kind kind, Need need) {
    const auto member = std::ranges::find(object.Members, name, &JsonMember::Name);
    if (member == object.Members.end()) {
        if (need == Need::Required && object.What == Kind::Object) Tell(name, "It is missing.");
        return nullptr;
    }
    if (member->Value.What == kind) return &member->Value;
    Tell(name, NotExpected(kind, member->Value.What));
    return nullptr;
}

std::string Fields::Text(std::string_view name, Need need) {
    const JsonValue* const value = Find(name, Kind::Text, need);
    if (value == nullptr) return "";
    if (need == Need::Required && value->Text.empty()) Tell(name, "It is empty.");
    if (const std::string fault = TextFault(value->Text); !fault.empty()) Tell(name, fault);
    return value->Text;
}

std::optional<std::string> Fields::OptionalText(std::string_view name) {
    const bool isThere = std::ranges::find(object.Members, name, &JsonMember::Name) != object.Members.end();
    return isThere ? std::optional(Text(name, Need::Required)) : std::nullopt;
}

std::optional<double> Fields::Number(std::string_view name, Need need, const NumberBounds& bounds) {
    const JsonValue* const value = Find(name, Kind::Number, need);
    if (value == nullptr) return std::nullopt;
    if (value->Number >= bounds.Least && value->Number <= bounds.Greatest) return value->Number;
    Tell(name, AsWritten(value->Number) + " is no " + bounds.Noun + ": " + bounds.Range + ".");
    return std::nullopt;
}

const JsonValue* Fields::Object(std::string_view name) { return Find(name, Kind::Object, Need::Required); }
const JsonValue* Fields::List(std::string_view name) { return Find(name, Kind::List, Need::Required); }

std::string TextFault(std::string_view text) {
    if (const std::size_t characters = CharactersOf(text); characters > LongestText)
        return "It has " + std::to_string(characters) + " characters, more than " + std::to_string(LongestText) + ".";
    const bool holdsControl = std::ranges::any_of(
        text, [](char character) { return (character >= 0 && character < ' ') || character == Delete; });
    return holdsControl ? "It holds a control character." : "";
}

std::string Quoted(std::string_view text) {
    const std::string_view shown = FirstCharacters(text, LongestShown);
    return "\"" + std::string(shown) + (shown.size() < text.size() ? "...\"" : "\"");
}

std::string NotExpected(Kind expected, Kind found) {
    return std::string(NameOf(expected)).replace(0, 1, "A") + " is expected here, not " + NameOf(found) + ".";
}

}  // namespace orvelle::directory
