#include "adapters/store/StoreFile.h"

#include <exception>
#include <stdexcept>
#include <utility>

#include "adapters/store/StoreFormat.h"
#include "adapters/store/StoreReader.h"

namespace orvelle::store {

namespace {

StoreState After(StoreState state, const StoredChanges& changes) {
    ++state.Change;
    for (const StoredChange& change : changes)
        state.Digests[static_cast<std::size_t>(change.Table)] ^=
            DigestPart(change.Table, *change.Place, *change.Name, *change.Before) ^
            DigestPart(change.Table, *change.Place, *change.Name, *change.Value);
    return state;
}

}  // namespace

StoreFile::Session::Session(Connection opened)
    : File(std::move(opened)), Begin(File, "BEGIN IMMEDIATE"), Commit(File, "COMMIT"), Rows(File) {}

StoreFile::StoreFile(std::filesystem::path storePath, Connection opened, const StoreState& storeState,
                     StoreLock storeLock)
    : path(std::move(storePath)),
      session(std::make_unique<Session>(std::move(opened))),
      state(storeState),
      lock(std::move(storeLock)),
      identity(IdentityOf(path)) {}

void StoreFile::NoteStart() const { lock.NoteStore(state); }

StoreFile::Result StoreFile::Write(const StoredChanges& changes, const StoredTables& values,
                                   Long patienceMilliseconds) try {
    const FileIdentity found = IdentityOf(path);
    if (found == FileIdentity{} || (!session && found == identity)) {
        MakeAnew(values);
        return {Outcome::WrittenAnew};
    }
    if (found != identity) {
        if (session) session->File.KeepLogAtClose(true);
        return {Outcome::Replaced};
    }
    WriteHere(changes, patienceMilliseconds);
    return {Outcome::Written};
} catch (const std::exception& error) {
    return {Outcome::NotNow, error.what()};
}

void StoreFile::WriteHere(const StoredChanges& changes, Long patienceMilliseconds) {
    const StoreState next = After(state, changes);
    session->File.WaitForLock(patienceMilliseconds);
    session->Begin.Finish();
    try {
        for (const StoredChange& change : changes)
            session->Rows.Write(change.Table, *change.Place, *change.Name, *change.Value);
        session->Rows.Write(next);
        session->Commit.Finish();
    } catch (const SqliteError&) {
        session->File.RollBack();
        throw;
    }
    state = next;
    lock.Note(state);
}

// The old file's log must not be taken for the new one's.
void StoreFile::MakeAnew(const StoredTables& values) {
    session.reset();
    for (const char* suffix : {"-wal", "-journal", "-shm"})
        std::filesystem::remove(std::filesystem::path(path) += suffix);
    MakeFolder(path.parent_path());
    MakeStoreFile(path, values, FirstState(values));
    identity = IdentityOf(path);
    FoundStore fresh = ReadStoreFile(path, StoreAccess::Write);
    if (!fresh.Open) throw std::runtime_error("the new file cannot be opened");
    session = std::make_unique<Session>(std::move(*fresh.Open));
    state = fresh.State;
    lock.TakeAgain();
    lock.NoteStore(state);
}

bool StoreFile::CopyOn() {
    if (!session) return false;
    if (!session->Copying) {
        session->File.WaitForLock(0);
        session->Copying = std::make_unique<StoreCopying>(session->File, path, state);
    }
    return session->Copying->Step();
}

}  // namespace orvelle::store
