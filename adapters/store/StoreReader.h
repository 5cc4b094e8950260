// Reads a file that is found in the store's place: what it is worth, and every value in it whose check is right. Used
// by whoever opens the store; SqliteError and filesystem_error mean that the file can't be used now, and say nothing
// against what it holds.
#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "adapters/store/Sqlite.h"
#include "adapters/store/StoreState.h"

namespace orvelle::store {

// Damaged: nothing in it can be read.
enum class StoreVerdict { Good, ReadOnly, Newer, Damaged };

struct FoundStore {
    StoreVerdict Verdict = StoreVerdict::Damaged;
    StoredTables Values{};
    StoreState State{};
    std::array<bool, StoredTableCount> IsTableFaulty{};            // rows in it are wrong or missing
    std::array<std::optional<Check>, StoredTableCount> Missing{};  // their digest; none where it isn't known
    bool IsStateFaulty = false;
    std::optional<Connection> Open{};  // Good only

    bool IsFaulty() const { return IsStateFaulty || IsTableFaulty != std::array<bool, StoredTableCount>{}; }
};

// A store that is only looked at is left as it is, also where it is of an older version.
enum class StoreAccess { Write, Look };

FoundStore ReadStoreFile(const std::filesystem::path& path, StoreAccess access);
// A file that nobody writes to. It is looked at as it stands; Damaged where there is none.
FoundStore ReadStoreCopy(const std::filesystem::path& path);

}  // namespace orvelle::store
