// What the store's file looks like, and what a file that is found in its place is worth. A new file appears under its
// name only when it is complete. Used by StoreFile only; SqliteError and filesystem_error mean that the file can't be
// used now, and say nothing against what it holds.
#pragma once

#include <array>
#include <filesystem>
#include <optional>

#include "adapters/store/Sqlite.h"
#include "adapters/store/StoredValue.h"

namespace orvelle::store {

// By StoredTable
constexpr std::array<const char*, StoredTableCount> StoreTableNames{"setting", "registry", "control"};

// The parts of a store on disk that hold data: the file and its logs, in the order in which they may be moved.
constexpr std::array<const char*, 3> StoreFileSuffixes{"-wal", "-journal", ""};

enum class StoreVerdict { Good, ReadOnly, Newer, Damaged };

struct FoundStore {
    StoreVerdict Verdict = StoreVerdict::Damaged;
    StoredTables Values{};
    std::optional<Connection> Open{};  // Good only
};

bool StoreFileExists(const std::filesystem::path& path);
void MakeStoreFile(const std::filesystem::path& path);
FoundStore ReadStoreFile(const std::filesystem::path& path);

}  // namespace orvelle::store
