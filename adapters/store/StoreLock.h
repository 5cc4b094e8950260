// The lock beside the store, "<file>.lock", held while a panel runs: whoever holds it writes the store, other panels of
// the user only read it. The system drops it with the process. Within it stands which change was the last to be
// written. That is noted after each change and not synced: after a loss of power it may be old, but it is never ahead
// of the store, so a store that is behind it has lost something. Used by whoever opens the store, then by StoreFile.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

#include "adapters/shared/FileDescriptor.h"
#include "adapters/store/StoreState.h"

namespace orvelle::store {

class StoreLock {
public:
    enum class Outcome { Taken, HeldByAnother, Unavailable };
    struct Mark {
        std::int64_t Store;
        std::int64_t Change;
    };

    explicit StoreLock(const std::filesystem::path& storeFile);

    Outcome Take();
    // The lock's own file may have been deleted; then the one that has its name is locked.
    void TakeAgain();
    // None where nothing was noted, or where it can't be read: then nothing can be said.
    std::optional<Mark> LastNoted() const;
    void Note(const StoreState& state) const;
    // At the start, when what it found is told, and for a new store, which is on disk before and whose note is then as
    // well.
    void NoteStore(const StoreState& state) const;

private:
    std::filesystem::path path;
    FileDescriptor file;
};

}  // namespace orvelle::store
