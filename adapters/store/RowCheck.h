// The check of a row of the store's file: 64 bits of its table, place, name and value, kept in the row. A row of which
// a bit is changed never passes. Checks of a table are put together by XOR, so that a row that is missing shows. The
// numbers are part of the file's format. Called by whoever reads or writes rows.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>

#include "adapters/store/StoredValue.h"

namespace orvelle::store {

using Check = std::int64_t;

Check RowCheck(StoredTable table, const std::string& place, const std::string& name, const StoredValue& value);
Check NumbersCheck(std::initializer_list<std::int64_t> numbers);

// The part of a row in the digest of its table: none where there is no row.
inline Check DigestPart(StoredTable table, const std::string& place, const std::string& name,
                        const StoredValue& value) {
    return std::holds_alternative<NoValue>(value) ? 0 : RowCheck(table, place, name, value);
}

}  // namespace orvelle::store
