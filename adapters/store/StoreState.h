// Which store a file holds, and how far it has come: written with every change, as one row of the file, and noted
// beside it. Two states of one store are told apart by their change numbers, and what is missing from a table by its
// digest.
#pragma once

#include <array>
#include <cstdint>

#include "adapters/store/RowCheck.h"

namespace orvelle::store {

struct StoreState {
    std::int64_t Store = 0;   // made by chance with each new file
    std::int64_t Change = 0;  // counts transactions
    std::array<Check, StoredTableCount> Digests{};

    Check Seal() const { return NumbersCheck({Store, Change, Digests[0], Digests[1], Digests[2]}); }
    bool operator==(const StoreState&) const = default;
};
static_assert(StoredTableCount == 3);

// Of a store that begins with these values.
StoreState FirstState(const StoredTables& values);

}  // namespace orvelle::store
