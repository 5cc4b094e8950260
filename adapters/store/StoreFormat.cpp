#include "adapters/store/StoreFormat.h"

#include <algorithm>
#include <cctype>

#include "adapters/store/DiskFile.h"
#include "adapters/store/StoreRows.h"

namespace orvelle::store {

namespace {

namespace fs = std::filesystem;

// The state is one row, which has a sum of its own.
constexpr const char* CreateState = "CREATE TABLE state (store, change, setting, registry, control, hash)";

std::string CreateStatement(const std::string& table, Long version) {
    const std::string hash = version == VersionWithoutChecks ? "" : "hash, ";
    return "CREATE TABLE " + table + " (place, name, value, " + hash + "PRIMARY KEY (place, name)) WITHOUT ROWID";
}

bool IsMadeBy(const Connection& file, const std::string& table, const std::string& statement) {
    return file.Text(("SELECT sql FROM sqlite_master WHERE name = '" + table + "'").c_str()) == statement;
}

void SetNumber(const Connection& file, const std::string& name, Long number) {
    file.Run(("PRAGMA " + name + " = " + std::to_string(number)).c_str());
}

void FillNew(const Connection& file, const StoredTables& values, const StoreState& state) {
    SetNumber(file, "application_id", ApplicationId);
    SetNumber(file, "user_version", FormatVersion);
    for (const char* table : StoreTableNames) file.Run(CreateStatement(table, FormatVersion).c_str());
    file.Run(CreateState);
    StoreRows(file).WriteAll(values, state);
}

}  // namespace

std::string FileName(const fs::path& path) {
    const std::u8string name = path.u8string();
    return {name.begin(), name.end()};
}

std::string ImmutableName(const fs::path& path) {
    static constexpr char Digits[] = "0123456789ABCDEF";
    std::string name = "file:";
    for (const char character : FileName(fs::absolute(path))) {
        const auto byte = static_cast<unsigned char>(character);
        if (byte < 0x80 && (std::isalnum(byte) != 0 || byte == '/' || byte == '.' || byte == '-' || byte == '_')) {
            name += character;
        } else {
            name += '%';
            name += Digits[byte >> 4];
            name += Digits[byte & 15];
        }
    }
    return name + "?immutable=1";
}

bool StoreFileExists(const fs::path& path) {
    return std::ranges::any_of(
        StoreFileSuffixes, [&](const char* suffix) { return KindOf(fs::path(path) += suffix) != PathKind::Missing; });
}

bool HasOurTables(const Connection& file, Long version) {
    return std::ranges::all_of(
               StoreTableNames,
               [&](const char* table) { return IsMadeBy(file, table, CreateStatement(table, version)); }) &&
           (version == VersionWithoutChecks || IsMadeBy(file, "state", CreateState));
}

void Convert(const Connection& file, const StoredTables& values, const StoreState& state) {
    file.Run("BEGIN IMMEDIATE");
    try {
        for (const std::string table : StoreTableNames) file.Run(("DROP TABLE " + table).c_str());
        FillNew(file, values, state);
        file.Run("COMMIT");
    } catch (const SqliteError&) {
        file.RollBack();
        throw;
    }
}

// One sync at the end is enough, since the file has no name before.
void MakeStoreFile(const fs::path& path, const StoredTables& values, const StoreState& state) {
    const fs::path unfinished = fs::path(path) += ".new";
    for (const char* suffix : StoreFileSuffixes) fs::remove(fs::path(unfinished) += suffix);
    MakeEmptyFile(unfinished);
    {
        const Connection file(FileName(unfinished), SQLITE_OPEN_READWRITE);
        file.Run("PRAGMA synchronous = OFF");
        file.Run("PRAGMA journal_mode = OFF");
        file.Run("BEGIN");
        FillNew(file, values, state);
        file.Run("COMMIT");
        file.Run("PRAGMA journal_mode = WAL");
    }
    PutInPlace(unfinished, path);
}

}  // namespace orvelle::store
