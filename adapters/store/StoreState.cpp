#include "adapters/store/StoreState.h"

#include <random>

namespace orvelle::store {

StoreState FirstState(const StoredTables& values) {
    std::random_device chance;
    StoreState state{.Store = static_cast<std::int64_t>(std::uint64_t{chance()} << 32 | chance()), .Change = 1};
    for (std::size_t table = 0; table < StoredTableCount; ++table)
        for (const auto& [place, names] : values[table])
            for (const auto& [name, value] : names)
                state.Digests[table] ^= DigestPart(static_cast<StoredTable>(table), place, name, value);
    return state;
}

}  // namespace orvelle::store
