// The SQLite file behind the store while a panel runs: written one transaction at a time, copied once. Called by the
// store's writer. It is made anew if somebody deletes it, and given up if somebody puts another one in its place.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "adapters/store/DiskFile.h"
#include "adapters/store/Sqlite.h"
#include "adapters/store/StoreCopy.h"
#include "adapters/store/StoreLock.h"
#include "adapters/store/StoreRows.h"
#include "adapters/store/StoreState.h"
#include "adapters/store/StoredValue.h"

namespace orvelle::store {

class StoreFile {
public:
    // WrittenAnew: the file had been deleted, and all values are in a new one. NotNow: nothing was written, for a
    // reason that may pass. Replaced: another file has its name, and is left alone from now on.
    enum class Outcome { Written, WrittenAnew, NotNow, Replaced };
    struct Result {
        Outcome What = Outcome::Written;
        std::string Reason{};  // NotNow only
    };

    StoreFile(std::filesystem::path path, Connection opened, const StoreState& state, StoreLock lock);

    const std::filesystem::path& Path() const { return path; }
    // Called when the user was told what the start found: a loss before this leaves it to the next start to tell.
    void NoteStart() const;
    // Writes all or nothing, on disk when it returns. It waits so long for a lock that somebody else holds; `values`
    // are all that the store holds then.
    Result Write(const StoredChanges& changes, const StoredTables& values, Long patienceMilliseconds);
    // Makes the last good copy, a part at each call. True while there is more to do; a failure throws.
    bool CopyOn();

private:
    struct Session {
        explicit Session(Connection opened);

        Connection File;
        Statement Begin;
        Statement Commit;
        StoreRows Rows;
        std::unique_ptr<StoreCopying> Copying;
    };

    void WriteHere(const StoredChanges& changes, Long patienceMilliseconds);
    void MakeAnew(const StoredTables& values);

    std::filesystem::path path;
    std::unique_ptr<Session> session;  // null while a deleted file could not be made anew
    StoreState state;
    StoreLock lock;
    FileIdentity identity;
};

}  // namespace orvelle::store
