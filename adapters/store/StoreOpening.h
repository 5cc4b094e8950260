// Opens the store's file as it is found: takes the lock, judges what stands in its place, completes what is damaged
// from the last good copy, and makes a new file where one is missing or was set aside. Called by the store once. Never
// throws: what can't be used is told in a sentence, and never touched.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "adapters/store/StoreFile.h"
#include "adapters/store/StoredValue.h"

namespace orvelle::store {

struct OpenedStore {
    std::unique_ptr<StoreFile> File;  // null where nothing can be written
    StoredTables Values{};
    std::string Sentence;  // for the user; "" where all is well
};

OpenedStore OpenStore(const std::filesystem::path& path);

}  // namespace orvelle::store
