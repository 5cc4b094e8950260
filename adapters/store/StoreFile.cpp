#include "adapters/store/StoreFile.h"

#include <exception>
#include <utility>

#include "adapters/store/StoreFormat.h"

namespace orvelle::store {

namespace {

namespace fs = std::filesystem;

constexpr const char* Defaults = " The panel starts with default settings";
constexpr const char* Lost = " changes are lost when the panel ends.";

std::string Quoted(const fs::path& path) {
    const std::u8string name = path.u8string();
    return '"' + std::string(name.begin(), name.end()) + '"';
}

std::string Named(const fs::path& path) { return "The settings file " + Quoted(path); }

// The name that a damaged file gets: never one that is taken.
fs::path FreeName(const fs::path& path) {
    for (int number = 1;; ++number) {
        fs::path name = fs::path(path) += ".damaged-" + std::to_string(number);
        if (!StoreFileExists(name)) return name;
    }
}

// The logs go first: whatever interrupts this, a new file is never taken together with an old log.
fs::path SetAside(const fs::path& path) {
    fs::path name = FreeName(path);
    for (const char* suffix : StoreFileSuffixes) {
        const fs::path part = fs::path(path) += suffix;
        if (fs::exists(part)) fs::rename(part, fs::path(name) += suffix);
    }
    fs::remove(fs::path(path) += "-shm");
    return name;
}

}  // namespace

StoreFile::StoreFile(Connection opened)
    : connection(std::move(opened)), begin(connection, "BEGIN IMMEDIATE"), commit(connection, "COMMIT") {
    for (const std::string table : StoreTableNames)
        tables.push_back({{connection, "INSERT INTO " + table +
                                           " (place, name, value) VALUES (?1, ?2, ?3)"
                                           " ON CONFLICT DO UPDATE SET value = excluded.value"},
                          {connection, "DELETE FROM " + table + " WHERE place = ?1 AND name = ?2"}});
}

StoreFile::Opened StoreFile::Open(const fs::path& path) try {
    if (path.has_parent_path()) fs::create_directories(path.parent_path());
    if (!StoreFileExists(path)) MakeStoreFile(path);
    FoundStore found = ReadStoreFile(path);
    switch (found.Verdict) {
        case StoreVerdict::Good:
            return {Take(found), std::move(found.Values), ""};
        case StoreVerdict::ReadOnly:
            return {nullptr, std::move(found.Values),
                    Named(path) + " cannot be written. Its settings are used, but" + Lost};
        case StoreVerdict::Newer:
            return {
                nullptr, {}, Named(path) + " is of a newer version and was left as it is." + Defaults + " and" + Lost};
        case StoreVerdict::Damaged:
            break;
    }
    return Replace(path);
} catch (const std::exception& error) {
    return {nullptr, {}, Named(path) + " cannot be used (" + error.what() + ")." + Defaults + " and" + Lost};
}

StoreFile::Opened StoreFile::Replace(const fs::path& path) {
    std::string sentence = Named(path) + " is damaged";
    try {
        sentence += " and was kept as " + Quoted(SetAside(path));
        MakeStoreFile(path);
        FoundStore fresh = ReadStoreFile(path);
        if (fresh.Verdict == StoreVerdict::Good) return {Take(fresh), {}, sentence + "." + Defaults + "."};
    } catch (const std::exception& error) {
        sentence += std::string(", and no new one can be made (") + error.what() + ")";
    }
    return {nullptr, {}, sentence + "." + Defaults + " and" + Lost};
}

std::unique_ptr<StoreFile> StoreFile::Take(FoundStore& found) {
    return std::unique_ptr<StoreFile>(new StoreFile(std::move(*found.Open)));
}

std::string StoreFile::Write(const StoredChanges& changes) try {
    begin.Finish();
    try {
        for (const StoredChange& change : changes) WriteOne(change);
        commit.Finish();
    } catch (const SqliteError&) {
        // Some errors have rolled the transaction back already.
        if (sqlite3_get_autocommit(connection.Handle()) == 0) connection.Run("ROLLBACK");
        throw;
    }
    return "";
} catch (const SqliteError& error) {
    return error.what();
}

void StoreFile::WriteOne(const StoredChange& change) {
    TableStatements& table = tables[static_cast<std::size_t>(change.Table)];
    if (std::holds_alternative<NoValue>(*change.Value))
        table.Delete.Bind(1, *change.Place).Bind(2, *change.Name).Finish();
    else
        table.Put.Bind(1, *change.Place).Bind(2, *change.Name).Bind(3, *change.Value).Finish();
}

}  // namespace orvelle::store
