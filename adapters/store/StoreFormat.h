// What the store's file looks like, and how one is made: a new file appears under its name only when it is complete.
// Used by what reads and writes it. SqliteError and filesystem_error mean that it can't be made now.
#pragma once

#include <array>
#include <filesystem>
#include <string>

#include "adapters/store/Sqlite.h"
#include "adapters/store/StoreState.h"

namespace orvelle::store {

constexpr Long ApplicationId = 0x4F72766C;  // "Orvl"
constexpr Long FormatVersion = 2;
constexpr Long VersionWithoutChecks = 1;

// By StoredTable
constexpr std::array<const char*, StoredTableCount> StoreTableNames{"setting", "registry", "control"};

// The parts of a store on disk that hold data: the file and its logs, in the order in which they may be moved.
constexpr std::array<const char*, 3> StoreFileSuffixes{"-wal", "-journal", ""};

// As SQLite wants them: in UTF-8, and for a file that is read as it stands, without its log and without a lock, which
// is all that can be had where nothing can be written.
std::string FileName(const std::filesystem::path& path);
std::string ImmutableName(const std::filesystem::path& path);

bool StoreFileExists(const std::filesystem::path& path);
// The tables are as this version makes them, or the one without checks.
bool HasOurTables(const Connection& file, Long version);
// Takes a file of the version without checks over, in one transaction. The values are all that it holds.
void Convert(const Connection& file, const StoredTables& values, const StoreState& state);
void MakeStoreFile(const std::filesystem::path& path, const StoredTables& values, const StoreState& state);

}  // namespace orvelle::store
