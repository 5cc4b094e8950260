#include "adapters/store/StoreRepair.h"

#include <exception>
#include <utility>
#include <vector>

#include "adapters/store/DiskFile.h"
#include "adapters/store/StoreFormat.h"
#include "adapters/store/StoreWords.h"

namespace orvelle::store {

namespace {

namespace fs = std::filesystem;

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
        if (KindOf(part) != PathKind::Missing) fs::rename(part, fs::path(name) += suffix);
    }
    fs::remove(fs::path(path) += "-shm");
    return name;
}

// What the copy has and the good rows have not, by name.
std::vector<std::string> TakeMissing(StoredPlaces& places, StoredPlaces&& copied) {
    std::vector<std::string> taken;
    for (auto& [place, names] : copied)
        for (auto& [name, value] : names)
            if (places[place].try_emplace(name, std::move(value)).second) taken.push_back(NamedValue(place, name));
    return taken;
}

}  // namespace

CompletedStore Complete(FoundStore found, FoundStore copy) {
    const bool isCopyRead = copy.Verdict == StoreVerdict::ReadOnly;
    if (found.Verdict == StoreVerdict::Newer || found.Verdict == StoreVerdict::Damaged) {
        if (!isCopyRead) return {{}, "The panel starts with default settings"};
        return {std::move(copy.Values), "The settings of the last good copy are used"};
    }
    if (found.IsTableFaulty == decltype(found.IsTableFaulty){})
        return {std::move(found.Values), "Every value passes its check and is used"};

    std::vector<std::string> taken;
    for (std::size_t table = 0; table < StoredTableCount; ++table)
        if (found.IsTableFaulty[table])
            for (std::string& name : TakeMissing(found.Values[table], std::move(copy.Values[table])))
                taken.push_back(std::move(name));
    std::string source = "Values that pass their check are used; ";
    if (!isCopyRead)
        source += "the others have their defaults, since there is no good copy";
    else if (taken.empty())
        source += "the others are not in the last good copy and have their defaults";
    else
        source += "from the last good copy come " + Listed(taken);
    return {std::move(found.Values), std::move(source)};
}

OpenedStore ReplaceStore(const fs::path& path, StoreLock lock, CompletedStore completed, const std::string& why) {
    std::string sentence = why;
    try {
        if (StoreFileExists(path)) sentence += " and was kept as " + Quoted(SetAside(path));
        const StoreState state = FirstState(completed.Values);
        MakeStoreFile(path, completed.Values, state);
        FoundStore fresh = ReadStoreFile(path, StoreAccess::Write);
        if (fresh.Open)
            return {std::make_unique<StoreFile>(path, std::move(*fresh.Open), fresh.State, std::move(lock)),
                    std::move(fresh.Values), sentence + ". " + completed.Source + "."};
    } catch (const std::exception& error) {
        sentence += std::string(", and no new one can be made (") + error.what() + ")";
    }
    return {nullptr, std::move(completed.Values), sentence + ". " + completed.Source + ", and " + ChangesAreLost};
}

}  // namespace orvelle::store
