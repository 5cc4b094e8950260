// A JSON text read entry by entry, each with its line: the members of its outermost object, and of those that are named
// as sections each member by itself. So a long list is never in memory as a whole. For the reader of directories.
// Nothing throws and nothing recurses by the text's depth.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvelle::directory {

struct JsonMember;

struct JsonValue {
    enum class Kind { Null, Boolean, Number, Text, List, Object };

    Kind What = Kind::Null;
    std::size_t Line = 0;  // from 1, where it begins
    double Number = 0;
    std::string Text;
    std::vector<JsonMember> Members;  // of an object, in its order; of a list, without names
};

struct JsonMember {
    std::string Name;
    JsonValue Value;
};

struct JsonEntry {
    std::string Section;    // "" for a member of the outermost object
    std::size_t Index = 0;  // its place in the section, from 0
    JsonMember Member;
    bool IsCut = false;  // it had more than MostJsonValues values
};

struct JsonTrouble {
    std::size_t Line = 0;
    std::string Field;  // "stations[3].voice", as far as the text was read
    std::string Sentence;
};

constexpr std::size_t DeepestJson = 16;         // levels
constexpr std::size_t MostJsonValues = 20'000;  // of one entry

// The text is UTF-8, without a byte order mark. A section that is a list or an object is told at its beginning, empty,
// as a member, then its entries; one that is neither is a member alone. Nothing for success, else why the text could
// not be read to its end; the entries before that were told.
std::optional<JsonTrouble> ReadJsonEntries(std::string_view text, const std::vector<std::string>& sections,
                                           const std::function<void(const JsonEntry&)>& take);

// A member's path behind that of its object: "voice" -> ".voice", "my club" -> "[\"my club\"]".
std::string MemberPath(std::string_view name);
std::string ItemPath(std::size_t index);  // "[3]"

}  // namespace orvelle::directory
