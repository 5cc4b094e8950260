// The last good copy of the store, "<file>.copy": what a damaged store is completed from. It is made from the loop
// after a start that found the store whole, a few pages a turn, beside the one before, which it replaces only when it
// is on disk. A copy that stands already and is whole is left as it is. Steps throw SqliteError or filesystem_error.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>

#include "adapters/store/Sqlite.h"
#include "adapters/store/StoreState.h"

namespace orvelle::store {

std::filesystem::path CopyOf(const std::filesystem::path& storeFile);

class StoreCopying {
public:
    // The connection is the store's own and stays open; `state` is that of the store now.
    StoreCopying(const Connection& store, const std::filesystem::path& storeFile, const StoreState& state);

    // False when the copy is made.
    bool Step();

private:
    struct Finish {
        void operator()(sqlite3_backup* backup) const { sqlite3_backup_finish(backup); }
    };

    void Begin(const Connection& store);

    std::filesystem::path path;
    std::filesystem::path unfinished;
    std::optional<Connection> copy;
    std::unique_ptr<sqlite3_backup, Finish> backup;  // null: there is nothing to do
};

}  // namespace orvelle::store
