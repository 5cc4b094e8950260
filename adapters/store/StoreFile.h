// The SQLite file behind the store: opened, judged, read whole, and written one transaction at a time. Called by the
// store only. A file that turns out damaged is set aside under a name of its own; one that can't be used is left alone.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "adapters/store/Sqlite.h"
#include "adapters/store/StoredValue.h"

namespace orvelle::store {

struct FoundStore;

class StoreFile {
public:
    struct Opened {
        std::unique_ptr<StoreFile> File;  // null where nothing can be written
        StoredTables Values;
        std::string Sentence;  // for the user; "" where all is well
    };

    // Opens the file, or makes it. Never throws.
    static Opened Open(const std::filesystem::path& path);

    // Writes all or nothing, on disk when it returns. "" for success, else the reason.
    std::string Write(const StoredChanges& changes);

private:
    explicit StoreFile(Connection opened);

    static Opened Replace(const std::filesystem::path& path);  // a damaged file
    static std::unique_ptr<StoreFile> Take(FoundStore& found);
    void WriteOne(const StoredChange& change);

    struct TableStatements {
        Statement Put;
        Statement Delete;
    };

    Connection connection;
    Statement begin;
    Statement commit;
    std::vector<TableStatements> tables;  // by StoredTable
};

}  // namespace orvelle::store
