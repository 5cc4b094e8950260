// What the store holds, in memory: three tables of named values, and the changes that a handler makes to them.
#pragma once

#include <array>
#include <cstddef>
#include <map>
#include <string>
#include <variant>
#include <vector>

#include "platform/Types.h"

namespace orvelle::store {

enum class StoredTable { Setting, Registry, Control };
constexpr std::size_t StoredTableCount = 3;

struct NoValue {};

// Neither number nor text: it came from a file that something else wrote to, and reads as the default.
struct UnknownValue {};

using StoredValue = std::variant<NoValue, UnknownValue, Long, std::string>;

// Unlike the variant's own comparison it never throws, so that a store can write as it goes away.
inline bool Same(const StoredValue& one, const StoredValue& other) {
    if (one.index() != other.index()) return false;
    if (const auto* number = std::get_if<Long>(&one)) return *number == *std::get_if<Long>(&other);
    if (const auto* text = std::get_if<std::string>(&one)) return *text == *std::get_if<std::string>(&other);
    return true;
}

// Place (a section or a path), then name
using StoredNames = std::map<std::string, StoredValue>;
using StoredPlaces = std::map<std::string, StoredNames>;
using StoredTables = std::array<StoredPlaces, StoredTableCount>;

// Points into the tables that it was taken from.
struct StoredChange {
    StoredTable Table;
    const std::string* Place;
    const std::string* Name;
    const StoredValue* Value;   // NoValue: it is deleted
    const StoredValue* Before;  // in the file; NoValue: it is not there
};
using StoredChanges = std::vector<StoredChange>;

}  // namespace orvelle::store
