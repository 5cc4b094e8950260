// What the store holds, in memory: three tables of named values, and the writes that wait for the file.
#pragma once

#include <array>
#include <cstddef>
#include <map>
#include <string>
#include <utility>
#include <variant>

#include "platform/Types.h"

namespace orvelle {

enum class StoredTable { Setting, Registry, Control };
constexpr std::size_t StoredTableCount = 3;

// A value of neither type came from a file that something else wrote to; it reads as the default.
struct UnknownValue {
    bool operator==(const UnknownValue&) const = default;
};
using StoredValue = std::variant<UnknownValue, Long, std::string>;

// Place (a section or a path), then name
using StoredPlaces = std::map<std::string, std::map<std::string, StoredValue>>;
using StoredTables = std::array<StoredPlaces, StoredTableCount>;

// Every section below `section` stands in [first, second): behind its backslash, before the next character.
inline std::pair<std::string, std::string> SubSections(const std::string& section) {
    return {section + "\\", section + "]"};
}

struct StoredWrite {
    enum class Kind { Put, Delete, DeleteSection };

    Kind What;
    StoredTable Table;
    std::string Place;
    std::string Name;
    StoredValue Value;
};

}  // namespace orvelle
