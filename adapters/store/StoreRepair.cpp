#include "adapters/store/StoreRepair.h"

#include <algorithm>
#include <exception>
#include <optional>
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

// Takes a value of the copy that the good rows have not. True if it was taken.
bool Take(StoredPlaces& places, const std::string& place, const std::string& name, const StoredValue& value) {
    return places[place].try_emplace(name, value).second;
}

// What is missing, by name. If it is one row of the copy, or nothing, the digest tells so; else all that the copy has
// beyond the good rows may be missing, though some of it may have been deleted since.
std::vector<std::string> TakeMissing(StoredTable table, FoundStore& found, const FoundStore& copy) {
    const auto index = static_cast<std::size_t>(table);
    const std::optional<Check> missing = found.Missing[index];
    if (missing == Check{0}) return {};
    std::vector<std::string> taken;
    for (const auto& [place, names] : copy.Values[index])
        for (const auto& [name, value] : names) {
            if (missing == RowCheck(table, place, name, value) && Take(found.Values[index], place, name, value))
                return {NamedValue(place, name)};
        }
    for (const auto& [place, names] : copy.Values[index])
        for (const auto& [name, value] : names)
            if (Take(found.Values[index], place, name, value)) taken.push_back(NamedValue(place, name));
    return taken;
}

bool IsAnythingMissing(const FoundStore& found) {
    return std::ranges::any_of(found.Missing, [](const auto& missing) { return missing != Check{0}; });
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
    for (const StoredTable table : {StoredTable::Setting, StoredTable::Registry, StoredTable::Control})
        if (found.IsTableFaulty[static_cast<std::size_t>(table)])
            for (std::string& name : TakeMissing(table, found, copy)) taken.push_back(std::move(name));
    if (taken.empty() && !IsAnythingMissing(found))
        return {std::move(found.Values), "What does not belong there is left out"};
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
