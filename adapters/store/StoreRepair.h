// Puts a whole file in the place of a store that is damaged, behind or gone: the old one is set aside under a name of
// its own, and what it lacks comes from the last good copy. Called by StoreOpening.
#pragma once

#include <filesystem>
#include <string>

#include "adapters/store/StoreLock.h"
#include "adapters/store/StoreOpening.h"
#include "adapters/store/StoreReader.h"

namespace orvelle::store {

// Values for a store of which `found` is what can be read, and the sentence on where they come from.
struct CompletedStore {
    StoredTables Values;
    std::string Source;
};
CompletedStore Complete(FoundStore found, FoundStore copy);

// `why` begins the sentence for the user: "The settings file ... is damaged".
OpenedStore ReplaceStore(const std::filesystem::path& path, StoreLock lock, CompletedStore completed,
                         const std::string& why);

}  // namespace orvelle::store
