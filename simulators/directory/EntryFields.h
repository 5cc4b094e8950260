// The members of one object of a directory's text, asked for by name; what is not as it should be is told with its line
// and field, and 0, "" or nothing is returned. The object is sound where nothing was told of it. For the reader of
// directories.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "simulators/directory/DirectoryReading.h"
#include "simulators/directory/JsonEntries.h"

namespace orvelle::directory {

constexpr std::size_t LongestText = 1000;  // characters

// All that is found in one text.
class Findings {
public:
    void Tell(std::size_t line, const std::string& field, const std::string& sentence);
    // A member that nobody asked for; alike ones of a list's entries count as one.
    void TellUnknown(std::size_t line, const std::string& field);
    void MoveTo(ReadText& read);

private:
    struct UnknownMember {
        Fault First;
        std::size_t Count = 0;
    };

    std::vector<Fault> faults;
    std::size_t count = 0;
    std::map<std::string, UnknownMember> unknown;  // by the field without its lists' numbers
};

enum class Need { Required, Optional };

struct NumberBounds {
    const char* Noun;  // "latitude"
    double Least;
    double Greatest;
    const char* Range;  // "-90 to 90 degrees"
};

class Fields {
public:
    // `known` are the members that will be asked for; what is no object is told and has none.
    Fields(const JsonValue& object, const std::string& path, Findings& findings,
           std::initializer_list<std::string_view> known);

    bool IsSound() const { return isSound; }
    std::string PathOf(std::string_view name) const;
    std::size_t LineOf(std::string_view name) const;

    // Required ones are not empty.
    std::string Text(std::string_view name, Need need);
    std::optional<std::string> OptionalText(std::string_view name);  // not empty where it is there
    std::optional<double> Number(std::string_view name, Need need, const NumberBounds& bounds);
    // Null where there is none, which is told where it is required.
    const JsonValue* Object(std::string_view name);
    const JsonValue* List(std::string_view name);

    void Tell(std::string_view name, const std::string& sentence);

private:
    const JsonValue* Find(std::string_view name, JsonValue::Kind kind, Need need);

    const JsonValue& object;
    const std::string path;
    Findings& findings;
    bool isSound = true;
};

// Why a text can't be one of a directory, "" where it can: too long, or with control characters.
std::string TextFault(std::string_view text);
std::string Quoted(std::string_view text);  // in quotation marks, its beginning where it is long
std::string NotExpected(JsonValue::Kind expected, JsonValue::Kind found);

}  // namespace orvelle::directory
