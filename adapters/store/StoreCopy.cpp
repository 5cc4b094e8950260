#include "adapters/store/StoreCopy.h"

#include "adapters/store/DiskFile.h"
#include "adapters/store/StoreFormat.h"
#include "adapters/store/StoreReader.h"

namespace orvelle::store {

namespace {

namespace fs = std::filesystem;

constexpr int PagesInAStep = 64;

bool IsWholeAndOf(const fs::path& copy, const StoreState& state) {
    const FoundStore found = ReadStoreCopy(copy);
    return found.Verdict == StoreVerdict::ReadOnly && !found.IsFaulty() && found.State == state;
}

}  // namespace

fs::path CopyOf(const fs::path& storeFile) { return fs::path(storeFile) += ".copy"; }

StoreCopying::StoreCopying(const Connection& store, const fs::path& storeFile, const StoreState& state)
    : path(CopyOf(storeFile)), unfinished(fs::path(path) += ".new") {
    if (!IsWholeAndOf(path, state)) Begin(store);
}

void StoreCopying::Begin(const Connection& store) {
    MakeEmptyFile(unfinished);
    copy.emplace(FileName(unfinished), SQLITE_OPEN_READWRITE);
    // It has no name yet, so one sync at the end is enough.
    copy->Run("PRAGMA synchronous = OFF");
    copy->Run("PRAGMA journal_mode = OFF");
    backup.reset(sqlite3_backup_init(copy->Handle(), "main", store.Handle(), "main"));
    if (!backup) throw SqliteError(sqlite3_errcode(copy->Handle()), sqlite3_errmsg(copy->Handle()));
}

bool StoreCopying::Step() {
    if (!backup) return false;
    const int code = sqlite3_backup_step(backup.get(), PagesInAStep);
    // A store that somebody else has locked is tried again in the next turn.
    if (code == SQLITE_OK || code == SQLITE_BUSY || code == SQLITE_LOCKED) return true;
    backup.reset();
    if (code != SQLITE_DONE) throw SqliteError(code, sqlite3_errstr(code));
    copy.reset();
    PutInPlace(unfinished, path);
    return false;
}

}  // namespace orvelle::store
