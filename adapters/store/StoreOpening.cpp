#include "adapters/store/StoreOpening.h"

#include <exception>
#include <stdexcept>
#include <utility>

#include "adapters/store/DiskFile.h"
#include "adapters/store/StoreCopy.h"
#include "adapters/store/StoreFormat.h"
#include "adapters/store/StoreReader.h"
#include "adapters/store/StoreRepair.h"
#include "adapters/store/StoreWords.h"

namespace orvelle::store {

namespace {

namespace fs = std::filesystem;

// What must not even be opened: it could block, or is somebody's work to bring back.
void RefuseStrangeKind(const fs::path& path) {
    switch (KindOf(path)) {
        case PathKind::Missing:
        case PathKind::File:
        case PathKind::Characters:
            return;
        case PathKind::Folder:
            throw std::runtime_error("it is a folder");
        case PathKind::LinkToNowhere:
            throw std::runtime_error("it is a link that leads nowhere");
        case PathKind::Other:
            throw std::runtime_error("it is no file");
    }
}

// "" where the store is as far as it was when it was last written.
std::string WhatIsBehind(const fs::path& path, const StoreState& state, const StoreLock& lock) {
    const auto last = lock.LastNoted();
    if (!last || (last->Store == state.Store && last->Change <= state.Change)) return "";
    if (last->Store != state.Store) return NamedFile(path) + " is not the one that was written last";
    return NamedFile(path) + " is in an older state: the last " + std::to_string(last->Change - state.Change) +
           " changes are lost";
}

OpenedStore Take(const fs::path& path, FoundStore& found, StoreLock lock, std::string sentence) {
    for (const char* suffix : {"", "-wal", "-shm"}) MakePrivate(fs::path(path) += suffix);
    return {std::make_unique<StoreFile>(path, std::move(*found.Open), found.State, std::move(lock)),
            std::move(found.Values), std::move(sentence)};
}

OpenedStore OpenGood(const fs::path& path, FoundStore& found, StoreLock lock) {
    const std::string behind = WhatIsBehind(path, found.State, lock);
    if (behind.empty()) return Take(path, found, std::move(lock), "");
    FoundStore copy = ReadStoreCopy(CopyOf(path));
    if (copy.Verdict == StoreVerdict::ReadOnly && !copy.IsFaulty() && copy.State.Store == found.State.Store &&
        copy.State.Change > found.State.Change) {
        found.Open.reset();
        return ReplaceStore(path, std::move(lock), {std::move(copy.Values), "The last good copy is newer and is used"},
                            behind);
    }
    return Take(path, found, std::move(lock), behind + ". It is used as it is.");
}

OpenedStore UseWithoutWriting(const fs::path& path, FoundStore found, const std::string& why) {
    const bool isAllGood =
        (found.Verdict == StoreVerdict::Good || found.Verdict == StoreVerdict::ReadOnly) && !found.IsFaulty();
    if (isAllGood) return {nullptr, std::move(found.Values), why + " Its settings are used, but " + ChangesAreLost};
    CompletedStore completed = Complete(std::move(found), ReadStoreCopy(CopyOf(path)));
    return {nullptr, std::move(completed.Values), why + " " + completed.Source + ", and " + ChangesAreLost};
}

OpenedStore OpenFirst(const fs::path& path, StoreLock lock) {
    if (!StoreFileExists(path)) {
        FoundStore copy = ReadStoreCopy(CopyOf(path));
        if (copy.Verdict == StoreVerdict::ReadOnly)
            return ReplaceStore(path, std::move(lock), Complete({}, std::move(copy)), NamedFile(path) + " is gone");
        MakeStoreFile(path, {}, FirstState({}));
    }
    FoundStore found = ReadStoreFile(path, StoreAccess::Write);
    switch (found.Verdict) {
        case StoreVerdict::Good:
            if (!found.IsFaulty()) return OpenGood(path, found, std::move(lock));
            break;
        case StoreVerdict::ReadOnly: {
            const std::string why =
                NamedFile(path) + (found.IsFaulty() ? " is damaged and" : "") + " cannot be written.";
            return UseWithoutWriting(path, std::move(found), why);
        }
        case StoreVerdict::Newer:
            return UseWithoutWriting(path, std::move(found),
                                     NamedFile(path) + " is of a newer version and was left as it is.");
        case StoreVerdict::Damaged:
            break;
    }
    found.Open.reset();
    return ReplaceStore(path, std::move(lock), Complete(std::move(found), ReadStoreCopy(CopyOf(path))),
                        NamedFile(path) + " is damaged");
}

OpenedStore OpenBeside(const fs::path& path) {
    return UseWithoutWriting(path, ReadStoreFile(path, StoreAccess::Look),
                             NamedFile(path) + " is in use by another panel.");
}

}  // namespace

OpenedStore OpenStore(const fs::path& path) try {
    MakeFolder(path.parent_path());
    RefuseStrangeKind(path);
    StoreLock lock(path);
    const StoreLock::Outcome outcome = lock.Take();
    if (outcome == StoreLock::Outcome::HeldByAnother) return OpenBeside(path);
    OpenedStore opened = OpenFirst(path, std::move(lock));
    if (outcome == StoreLock::Outcome::Unavailable && opened.File)
        opened.Sentence += (opened.Sentence.empty() ? "" : "\n") + NamedFile(path) +
                           " cannot be locked. Do not run a second panel with it.";
    return opened;
} catch (const std::exception& error) {
    return UseWithoutWriting(path, {}, NamedFile(path) + " cannot be used (" + error.what() + ").");
}

}  // namespace orvelle::store
